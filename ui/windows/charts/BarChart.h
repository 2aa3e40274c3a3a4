#pragma once

#include <vector>

#include "ui/windows/charts/QtChart.h"

class QAbstractBarSeries;
class QBarCategoryAxis;
class QBarSet;

namespace Ledgrove {

/// Bars of both homes: the parts of the monthly cost stacked, or mortgage and maximum loan side by side.
class BarChart : public QtChart {
    Q_OBJECT

public:
    BarChart(ChartKind kind, QWidget* parent);

protected:
    void Draw(const ChartFigures& figures) override;
    void Recolour() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitSets(std::size_t count);
    void ShowCategories();
    bool IsNarrow() const;

    QAbstractBarSeries* m_bars;
    QBarCategoryAxis* m_homes;
    std::vector<QBarSet*> m_sets;
    bool m_hasLegendBeside;
    QStringList m_names;
};

} // namespace Ledgrove
