#pragma once

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <QRectF>

#include "ui/ChartFigures.h"

namespace Ledgrove {

/// Paints the bars of what moves the result into the rectangle, with the painter's font and the palette's
/// text colour.
void PaintBars(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette);

/// The least height with which each input has a line of its own.
double LeastBarsHeight(const ChartFigures& chart, const QFontMetricsF& metrics);

} // namespace Ledgrove
