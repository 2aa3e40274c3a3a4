#pragma once

#include <QByteArray>
#include <QImage>

namespace Ledgrove {

/// Whether the bytes are a Windows metafile, going by its headers.
bool IsWmf(const QByteArray& bytes);

/// The metafile as a picture whose longer side has so many pixels, at most 4000. It is played by the program
/// `ledgrove-metafile` beside the running one; null when it is damaged, takes more than a second or 64 MB, or
/// breaks its player.
QImage ReadWmf(const QByteArray& bytes, int longestSide = 1200);

} // namespace Ledgrove
