#include "ui/windows/charts/QtChart.h"

#include <QCategoryAxis>
#include <QEvent>
#include <QGraphicsLayout>
#include <QLegend>
#include <QVBoxLayout>

#include "ui/windows/Identify.h"
#include "ui/windows/charts/BarChart.h"
#include "ui/windows/charts/ChartLook.h"
#include "ui/windows/charts/ChartPicture.h"
#include "ui/windows/charts/SavingsChart.h"

namespace Ledgrove {

QtChart::QtChart(QWidget* parent)
    : ChartWidget(parent)
    , m_view(new QChartView(this))
    , m_dollars(new QCategoryAxis(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    m_view->setRenderHint(QPainter::Antialiasing);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setFocusPolicy(Qt::NoFocus);
    // The chart has one description as a whole; its parts have none.
    m_view->setAttribute(Qt::WA_TransparentForMouseEvents);
    // The tab's background shows through.
    m_view->setBackgroundBrush(Qt::NoBrush);
    m_view->viewport()->setAutoFillBackground(false);
    Chart().setBackgroundVisible(false);
    Chart().setMargins({});
    Chart().layout()->setContentsMargins(0, 0, 0, 0);
    Chart().legend()->setAlignment(Qt::AlignBottom);
    m_dollars->setTruncateLabels(false);
    m_dollars->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
}

void QtChart::AddAxes(QAbstractAxis* other, Qt::Alignment otherSide, Qt::Alignment dollarSide) {
    Chart().addAxis(other, otherSide);
    Chart().addAxis(m_dollars, dollarSide);
    for (QAbstractSeries* series : Chart().series()) {
        series->attachAxis(other);
        series->attachAxis(m_dollars);
    }
}

void QtChart::Show(const ChartFigures& figures) {
    // Unchanged figures are not drawn again.
    if (m_figures == figures)
        return;
    ShowTicks(figures);
    Draw(figures);
    ShowWords(figures);
    const bool isFirst = m_figures.Series.empty();
    m_figures = figures;
    if (isFirst)
        ShowLook();
}

void QtChart::ShowTicks(const ChartFigures& figures) {
    const bool isSame = figures.Ticks == m_figures.Ticks && figures.Lowest == m_figures.Lowest;
    if (isSame)
        return;
    for (const QString& label : m_dollars->categoriesLabels())
        m_dollars->remove(label);
    m_dollars->setStartValue(figures.Lowest);
    for (const ChartTick& tick : figures.Ticks)
        m_dollars->append(QString::fromStdString(tick.Text), tick.Value);
    m_dollars->setRange(figures.Lowest, figures.Highest);
}

void QtChart::ShowWords(const ChartFigures& figures) {
    const QString title = QString::fromStdString(figures.Title);
    const QString words = QString::fromStdString(figures.Sentence + ' ' + figures.Numbers);
    const QString note = QString::fromStdString(figures.Note);
    // Beside each other, both would be too wide for a small chart.
    Chart().setTitle(note.isEmpty() ? title : title + "<br>" + note);
    SetSpokenName(*this, title);
    SetSpokenDescription(*this, words);
    setToolTip("<p>" + words.toHtmlEscaped() + "</p>");
}

void QtChart::ShowLook() {
    ApplyLook(Chart(), palette(), font());
    Recolour();
}

QByteArray QtChart::Picture(PictureFormat format) const {
    return ChartPicture(m_figures, format, {960, 600});
}

QSize QtChart::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 84, fontMetrics().height() * 11};
}

QSize QtChart::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 42, fontMetrics().height() * 7};
}

void QtChart::changeEvent(QEvent* event) {
    ChartWidget::changeEvent(event);
    const bool isLook = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (isLook && !m_figures.Series.empty())
        ShowLook();
}

QtChart* MakeQtChart(ChartKind kind, QWidget* parent) {
    if (kind == ChartKind::Savings)
        return new SavingsChart(parent);
    return new BarChart(kind, parent);
}

} // namespace Ledgrove
