#pragma once

#include <QByteArray>
#include <QImage>

namespace Ledgrove {

/// The metafile as a picture whose longer side has so many pixels; null when it is damaged.
QImage ReadWmf(const QByteArray& bytes, int longestSide = 1200);

} // namespace Ledgrove
