#pragma once

#include <QBrush>
#include <QChart>
#include <QPalette>
#include <QPen>

namespace Ledgrove {

/// The fill of the series at `index` of `count`. The fills differ in lightness, and the last of many is
/// hatched, so they are distinct in black and white.
QBrush SeriesFill(int index, int count);

/// The outline of a bar with this palette.
QPen SeriesOutline(const QPalette& palette);

/// The line of the savings with this palette.
QPen SavingsPen(const QPalette& palette);

/// Gives title, legend and axes the palette's colours and the font.
void ApplyLook(QChart& chart, const QPalette& palette, const QFont& font);

} // namespace Ledgrove
