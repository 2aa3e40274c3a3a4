#pragma once

#include <QList>
#include <QPainter>
#include <QRectF>

namespace Ledgrove {

/// Paints diagonal lines into the boxes, as one continuous hatch. They are lines and not a brush, because on
/// paper a brush has the printer's resolution.
void Hatch(QPainter& painter, const QList<QRectF>& boxes, int opacity);

} // namespace Ledgrove
