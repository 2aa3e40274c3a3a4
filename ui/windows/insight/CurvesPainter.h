#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>

#include "ui/ChartFigures.h"

namespace Ledgrove {

/// Paints curves over the years into the rectangle, with the painter's font and the palette's text colour.
/// Each curve has its own dashes and its name at its end, so that nothing depends on colours.
void PaintCurves(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette);

} // namespace Ledgrove
