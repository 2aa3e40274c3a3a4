#include "ui/windows/insight/PicturePainter.h"

#include <algorithm>
#include <cmath>

#include "ui/windows/insight/BarsPainter.h"
#include "ui/windows/insight/CurvesPainter.h"
#include "ui/windows/insight/StackPainter.h"
#include "ui/windows/insight/WaterfallPainter.h"

namespace Ledgrove {

namespace {

double TitleHeight(const QFontMetricsF& metrics) {
    return std::round(metrics.height()) * 1.4;
}

/// Paints the title; returns the rectangle below it.
QRectF BelowTitle(QPainter& painter, const QRectF& place, const ChartFigures& chart) {
    if (chart.Title.empty())
        return place;
    painter.save();
    QFont bold = painter.font();
    bold.setBold(true);
    painter.setFont(bold);
    const double height = TitleHeight(QFontMetricsF(painter.font()));
    painter.drawText(QRectF(place.topLeft(), QSizeF(place.width(), height)), Qt::AlignCenter,
                     QString::fromStdString(chart.Title));
    painter.restore();
    return place.adjusted(0, height, 0, 0);
}

} // namespace

void PaintPicture(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette,
                  const std::optional<MapCell>& cursor) {
    painter.setPen(palette.color(QPalette::Text));
    const QRectF below = BelowTitle(painter, place, chart);
    if (chart.Kind == ChartKind::NetMap)
        PaintMap(painter, below, chart, palette, cursor);
    else if (chart.Kind == ChartKind::Curves)
        PaintCurves(painter, below, chart, palette);
    else if (chart.Kind == ChartKind::MonthlyCost)
        PaintStacks(painter, below, chart, palette);
    else if (chart.Kind == ChartKind::Waterfall)
        PaintWaterfall(painter, below, chart, palette);
    else
        PaintBars(painter, below, chart, palette);
}

double LeastPictureHeight(const ChartFigures& chart, const QFontMetricsF& metrics) {
    constexpr double mapLines = 14, otherLines = 11;
    if (chart.Kind == ChartKind::NetMap)
        return metrics.height() * mapLines;
    const double least = metrics.height() * otherLines;
    if (chart.Kind != ChartKind::Sensitivity)
        return least;
    return std::max(least, TitleHeight(metrics) + LeastBarsHeight(chart, metrics));
}

std::optional<MapCell> MapCellAt(const QRectF& place, const QFontMetricsF& metrics, const ChartFigures& chart,
                                 const QPointF& point) {
    const QRectF plot = MapPlot(place.adjusted(0, TitleHeight(metrics), 0, 0), metrics);
    if (chart.Grid.Columns.empty() || !plot.contains(point))
        return std::nullopt;
    const auto columns = static_cast<double>(chart.Grid.Columns.size());
    const auto rows = static_cast<double>(chart.Grid.Rows.size());
    const int column = static_cast<int>((point.x() - plot.left()) / plot.width() * columns);
    const int row = static_cast<int>((plot.bottom() - point.y()) / plot.height() * rows);
    return MapCell{std::clamp(column, 0, static_cast<int>(columns) - 1),
                   std::clamp(row, 0, static_cast<int>(rows) - 1)};
}

} // namespace Ledgrove
