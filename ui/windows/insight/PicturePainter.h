#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <optional>

#include "ui/ChartFigures.h"
#include "ui/windows/insight/MapPainter.h"

// Paints the pictures of the Insight window as vectors: on the screen, into a file and on paper.
namespace Ledgrove {

/// Paints the chart into the rectangle, with the painter's font and the palette's text colour, on its window
/// colour. The chart is a
/// sensitivity, a map, curves, monthly costs or a waterfall. `cursor` is outlined on a map.
void PaintPicture(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette,
                  const std::optional<MapCell>& cursor = {});

/// The least height with which the chart can be read.
double LeastPictureHeight(const ChartFigures& chart, const QFontMetricsF& metrics);

/// The cell of a map painted into this rectangle at this point; empty beside the cells.
std::optional<MapCell> MapCellAt(const QRectF& place, const QFontMetricsF& metrics, const ChartFigures& chart,
                                 const QPointF& point);

} // namespace Ledgrove
