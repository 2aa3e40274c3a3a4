#pragma once

#include <QChartView>

#include "ui/windows/ChartWidget.h"

class QCategoryAxis;

namespace Ledgrove {

/// Shared by all charts: the view, the dollar axis and the description.
class QtChart : public ChartWidget {
    Q_OBJECT

public:
    void Show(const ChartFigures& figures) final;
    QByteArray Picture(PictureFormat format) const final;
    const ChartFigures& Figures() const { return m_figures; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    explicit QtChart(QWidget* parent);

    virtual void Draw(const ChartFigures& figures) = 0;
    virtual void Recolour() = 0;

    QChart& Chart() const { return *m_view->chart(); }
    /// Gives all series their axes: the dollar axis and the other one.
    void AddAxes(QAbstractAxis* other, Qt::Alignment otherSide, Qt::Alignment dollarSide);

    void changeEvent(QEvent* event) override;

private:
    void ShowTicks(const ChartFigures& figures);
    void ShowWords(const ChartFigures& figures);
    void ShowLook();

    QChartView* m_view;
    QCategoryAxis* m_dollars;
    ChartFigures m_figures;
};

/// A chart of this kind.
QtChart* MakeQtChart(ChartKind kind, QWidget* parent);

} // namespace Ledgrove
