#include "ui/windows/charts/SavingsChart.h"

#include <QCategoryAxis>
#include <QLegend>
#include <QLineSeries>
#include <QScatterSeries>

#include "ui/windows/charts/ChartLook.h"
#include "ui/windows/charts/MarkLabels.h"

namespace Ledgrove {

SavingsChart::SavingsChart(QWidget* parent)
    : QtChart(parent)
    , m_zero(new QLineSeries(this))
    , m_savings(new QLineSeries(this))
    , m_marks(new QScatterSeries(this)) {
    m_zero->append({{0, 0}, {ChartYears, 0}});
    m_marks->setMarkerSize(9);
    for (QAbstractSeries* series : std::initializer_list<QAbstractSeries*>{m_zero, m_savings, m_marks})
        Chart().addSeries(series);
    // The axis is slightly wider than the years, so that the last point is drawn completely.
    auto* years = new QCategoryAxis(this);
    years->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    for (int year = 0; year <= ChartYears; year += 5)
        years->append(QString::number(year), year);
    // Qt would blend vertical lines with several threads, and every update would wait for them.
    years->setGridLineVisible(false);
    years->setRange(0, ChartYears + 0.5);
    AddAxes(years, Qt::AlignBottom, Qt::AlignLeft);
    // Half of the last year's number stands to the right of the plot.
    Chart().setMargins({0, 0, fontMetrics().averageCharWidth(), 0});
    Chart().legend()->hide();
    connect(&Chart(), &QChart::plotAreaChanged, this, &SavingsChart::PlaceTexts);
}

void SavingsChart::Draw(const ChartFigures& figures) {
    QList<QPointF> points;
    for (std::size_t year = 0; year < figures.Series.front().Values.size(); ++year)
        points.append({static_cast<qreal>(year), figures.Series.front().Values[year]});
    m_savings->replace(points);
    ShowMarks(figures.Marks);
}

void SavingsChart::ShowMarks(const std::vector<ChartMark>& marks) {
    QList<QPointF> points;
    for (const ChartMark& mark : marks)
        points.append({static_cast<qreal>(mark.Year), mark.Value});
    m_marks->replace(points);
    while (m_texts.size() < marks.size()) {
        m_texts.push_back(new QGraphicsSimpleTextItem(&Chart()));
        m_texts.back()->setFont(font());
        m_texts.back()->setBrush(palette().color(QPalette::Text));
    }
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        m_texts[i]->setVisible(i < marks.size());
        if (i < marks.size())
            m_texts[i]->setText(QString::fromStdString(marks[i].Text));
    }
    PlaceTexts();
}

/// The curve in pixels, in steps that are shorter than a label.
QList<QPointF> SavingsChart::CurvePoints() const {
    constexpr int steps = 8;
    const QList<QPointF> years = m_savings->points();
    QList<QPointF> points;
    for (qsizetype year = 0; year + 1 < years.size(); ++year) {
        for (int step = 0; step < steps; ++step) {
            const QPointF between = years[year] + (years[year + 1] - years[year]) * step / steps;
            points += Chart().mapToPosition(between, m_savings);
        }
    }
    return points;
}

/// Puts each text near its point: above it, or below it for a loss, where there is room.
void SavingsChart::PlaceTexts() {
    MarkRoom room{Chart().plotArea(), {}, CurvePoints()};
    QList<MarkLabel> labels;
    for (int i = 0; i < m_marks->count(); ++i) {
        room.Markers += Chart().mapToPosition(m_marks->at(i), m_marks);
        labels += {m_texts[static_cast<std::size_t>(i)]->boundingRect().size(), m_marks->at(i).y() < 0};
    }
    const QList<QRectF> places = PlaceMarkLabels(room, labels);
    for (int i = 0; i < places.size(); ++i) {
        QGraphicsSimpleTextItem& text = *m_texts[static_cast<std::size_t>(i)];
        text.setVisible(!places[i].isNull());
        text.setPos(places[i].topLeft());
    }
}

void SavingsChart::Recolour() {
    const QColor text = palette().color(QPalette::Text);
    m_zero->setPen(QPen(text, 1.2, Qt::DashLine));
    m_savings->setPen(SavingsPen(palette()));
    m_marks->setBrush(SavingsPen(palette()).color());
    m_marks->setPen(QPen(text, 1));
    for (QGraphicsSimpleTextItem* item : m_texts) {
        item->setBrush(text);
        item->setFont(font());
    }
    PlaceTexts();
}

} // namespace Ledgrove
