#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>

#include "ui/ChartFigures.h"

namespace Ledgrove {

/// Paints the parts of each category as a bar, with a table of their amounts below, into the rectangle. The
/// parts differ by their pattern, so that a black and white print tells them apart. Amounts below 0 stand on
/// the left of the zero line.
void PaintStacks(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette);

} // namespace Ledgrove
