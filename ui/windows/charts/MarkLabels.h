#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace Ledgrove {

/// The plot in which marks get their labels, in pixels.
struct MarkRoom {
    QRectF Plot;
    QList<QPointF> Markers;
    QList<QPointF> Curve; ///< close points of the drawn line
};

/// A label's size, and the side of its marker that it takes if there is room.
struct MarkLabel {
    QSizeF Size;
    bool Below = false;
};

/// A rectangle for the label of each marker, inside the plot, clear of all markers and of the other labels,
/// and off the curve where there is room. A label without room gets a null rectangle.
QList<QRectF> PlaceMarkLabels(const MarkRoom& room, const QList<MarkLabel>& labels);

} // namespace Ledgrove
