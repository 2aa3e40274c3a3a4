#pragma once

#include <QBrush>
#include <QChart>
#include <QPalette>
#include <QPen>

namespace Ledgrove {

/// The fill of the series at `index` among `count`. The fills differ in lightness, and the last of many is
/// hatched, so that they can be told apart in black and white.
QBrush SeriesFill(int index, int count);

/// The outline of a bar on this palette.
QPen SeriesOutline(const QPalette& palette);

/// The line of the savings on this palette.
QPen SavingsPen(const QPalette& palette);

/// Title, legend and axes in the palette's colours and font.
void ApplyLook(QChart& chart, const QPalette& palette, const QFont& font);

} // namespace Ledgrove
