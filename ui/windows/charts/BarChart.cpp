#include "ui/windows/charts/BarChart.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QLegend>
#include <QStackedBarSeries>

#include "ui/windows/charts/ChartLook.h"

namespace Ledgrove {

namespace {

QAbstractBarSeries* MakeBars(ChartKind kind, QObject* parent) {
    if (kind == ChartKind::MonthlyCost)
        return new QStackedBarSeries(parent);
    return new QBarSeries(parent);
}

} // namespace

BarChart::BarChart(ChartKind kind, QWidget* parent)
    : QtChart(parent)
    , m_bars(MakeBars(kind, this))
    , m_homes(new QBarCategoryAxis(this))
    , m_hasLegendBeside(kind == ChartKind::MonthlyCost) {
    m_bars->setBarWidth(kind == ChartKind::MonthlyCost ? 0.6 : 0.7);
    Chart().addSeries(m_bars);
    AddAxes(m_homes, Qt::AlignBottom, Qt::AlignLeft);
    m_homes->setGridLineVisible(false);
    m_homes->setTruncateLabels(false);
    // Six names do not fit next to each other.
    Chart().legend()->setAlignment(m_hasLegendBeside ? Qt::AlignRight : Qt::AlignBottom);
}

void BarChart::Draw(const ChartFigures& figures) {
    FitSets(figures.Series.size());
    for (std::size_t i = 0; i < m_sets.size(); ++i) {
        const ChartSeries& series = figures.Series[i];
        const QString name = QString::fromStdString(series.Name);
        if (m_sets[i]->label() != name)
            m_sets[i]->setLabel(name);
        if (m_sets[i]->count() == 0)
            m_sets[i]->append(QList<qreal>(series.Values.begin(), series.Values.end()));
        for (int home = 0; home < m_sets[i]->count(); ++home) {
            const double value = series.Values[static_cast<std::size_t>(home)];
            if (m_sets[i]->at(home) != value)
                m_sets[i]->replace(home, value);
        }
    }
    m_names.clear();
    for (const std::string& home : figures.Categories)
        m_names += QString::fromStdString(home);
    ShowCategories();
}

/// The last series can come and go: "Tax Savings" does with the taxes.
void BarChart::FitSets(std::size_t count) {
    if (m_sets.size() == count)
        return;
    while (m_sets.size() > count) {
        m_bars->remove(m_sets.back());
        m_sets.pop_back();
    }
    while (m_sets.size() < count) {
        m_sets.push_back(new QBarSet({}));
        m_bars->append(m_sets.back());
    }
    Recolour();
}

/// Whether the homes' names do not fit side by side between the axis and the legend.
bool BarChart::IsNarrow() const {
    int needed = fontMetrics().horizontalAdvance("$200,000  ");
    for (const QString& name : m_names)
        needed += fontMetrics().horizontalAdvance(name) + 4 * fontMetrics().averageCharWidth();
    if (m_hasLegendBeside)
        needed += fontMetrics().horizontalAdvance("Principal and Interest      ");
    return width() < needed;
}

void BarChart::ShowCategories() {
    QStringList shown = m_names;
    // In two lines, the axis would otherwise leave a name out.
    if (IsNarrow())
        shown.replaceInStrings(" ", "<br>");
    if (m_homes->categories() == shown)
        return;
    m_homes->clear();
    m_homes->append(shown);
}

void BarChart::resizeEvent(QResizeEvent* event) {
    QtChart::resizeEvent(event);
    ShowCategories();
}

void BarChart::Recolour() {
    const auto count = static_cast<int>(m_sets.size());
    for (int i = 0; i < count; ++i) {
        m_sets[static_cast<std::size_t>(i)]->setBrush(SeriesFill(i, count));
        m_sets[static_cast<std::size_t>(i)]->setPen(SeriesOutline(palette()));
    }
}

} // namespace Ledgrove
