#pragma once

#include <QGraphicsSimpleTextItem>
#include <vector>

#include "ui/windows/charts/QtChart.h"

class QLineSeries;
class QScatterSeries;

namespace Ledgrove {

/// The accumulated savings over the years as a line around zero, with marked years.
class SavingsChart : public QtChart {
    Q_OBJECT

public:
    explicit SavingsChart(QWidget* parent);

protected:
    void Draw(const ChartFigures& figures) override;
    void Recolour() override;

private:
    void ShowMarks(const std::vector<ChartMark>& marks);
    QList<QPointF> CurvePoints() const;
    void PlaceTexts();

    QLineSeries* m_zero;
    QLineSeries* m_savings;
    QScatterSeries* m_marks;
    std::vector<QGraphicsSimpleTextItem*> m_texts;
};

} // namespace Ledgrove
