#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>

#include "ui/ChartFigures.h"

namespace Ledgrove {

/// Paints a waterfall into the rectangle, with the painter's font and the palette's text colour: a row for
/// each category, whose bar leads from the first series to the second, and the amount on the right. Where
/// both are the same, the row is a total, which begins at 0 or at the edge of the scale.
void PaintWaterfall(QPainter& painter, const QRectF& place, const ChartFigures& chart,
                    const QPalette& palette);

} // namespace Ledgrove
