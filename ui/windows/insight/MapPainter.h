#pragma once

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <optional>

#include "ui/ChartFigures.h"

namespace Ledgrove {

/// A cell of the map: the index of its price difference and that of its saving.
struct MapCell {
    int Column = 0;
    int Row = 0;

    bool operator==(const MapCell&) const = default;
};

/// Where the cells are of a map that is painted into this rectangle.
QRectF MapPlot(const QRectF& place, const QFontMetricsF& metrics);

/// Paints the map into the rectangle, with the painter's font and the palette's text colour. `cursor` is
/// outlined.
void PaintMap(QPainter& painter, const QRectF& place, const ChartFigures& chart, const QPalette& palette,
              const std::optional<MapCell>& cursor);

} // namespace Ledgrove
