#include "ui/windows/charts/MarkLabels.h"

#include <algorithm>

namespace Ledgrove {

namespace {

constexpr qreal gap = 8; ///< between a marker's middle and its label
constexpr int mostRows = 5;

/// The places of a label around its marker, the best first.
QList<QRectF> Candidates(const MarkRoom& room, const QPointF& marker, const MarkLabel& label) {
    const qreal width = label.Size.width();
    const qreal height = label.Size.height();
    QList<qreal> rows;
    for (const bool below : {label.Below, !label.Below}) {
        for (int row = 0; row < mostRows; ++row)
            rows += below ? marker.y() + gap + row * height : marker.y() - gap - (row + 1) * height;
    }
    const qreal beside = marker.y() - height / 2;
    rows.insert(1, qBound(room.Plot.top(), beside, room.Plot.bottom() - height));
    QList<QRectF> places;
    for (const qreal y : rows) {
        // Beside a steep curve, a label stands free only at some distance.
        for (const qreal x :
             {marker.x() - width, marker.x() - width / 2, marker.x(), marker.x() - width - gap,
              marker.x() + gap, marker.x() - width - 3 * gap, marker.x() + 3 * gap}) {
            const qreal inside = qBound(room.Plot.left() + gap, x, room.Plot.right() - width);
            places += QRectF(QPointF(inside, y), label.Size);
        }
    }
    return places;
}

bool Holds(const QRectF& place, const QList<QPointF>& points, qreal distance) {
    const QRectF wider = place.adjusted(-distance, -distance, distance, distance);
    return std::any_of(points.begin(), points.end(),
                       [&wider](const QPointF& point) { return wider.contains(point); });
}

class Placement {
public:
    Placement(const MarkRoom& room, const QList<MarkLabel>& labels, bool offCurve)
        : m_room(room)
        , m_labels(labels)
        , m_offCurve(offCurve) {}

    /// Places the labels from `first` on; a place without room for the later ones is given up again.
    bool PlaceFrom(qsizetype first) {
        if (first == m_labels.size())
            return true;
        for (const QRectF& place : Candidates(m_room, m_room.Markers[first], m_labels[first])) {
            if (!IsFree(place))
                continue;
            Places += place;
            if (PlaceFrom(first + 1))
                return true;
            Places.removeLast();
        }
        return false;
    }

    QList<QRectF> Places;

private:
    bool IsFree(const QRectF& place) const {
        constexpr qreal markerRadius = 7.5;
        const bool meetsLabel = std::any_of(Places.begin(), Places.end(), [&place](const QRectF& other) {
            return other.intersects(place.adjusted(-4, 0, 4, 0));
        });
        return m_room.Plot.contains(place) && !meetsLabel && !Holds(place, m_room.Markers, markerRadius) &&
               !(m_offCurve && Holds(place, m_room.Curve, 1));
    }

    const MarkRoom& m_room;
    const QList<MarkLabel>& m_labels;
    bool m_offCurve;
};

} // namespace

QList<QRectF> PlaceMarkLabels(const MarkRoom& room, const QList<MarkLabel>& labels) {
    for (const bool offCurve : {true, false}) {
        Placement placement(room, labels, offCurve);
        if (placement.PlaceFrom(0))
            return placement.Places;
    }
    return QList<QRectF>(labels.size());
}

} // namespace Ledgrove
