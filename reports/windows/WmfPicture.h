#pragma once

#include <QByteArray>
#include <QImage>

namespace Ledgrove {

/// Whether the bytes are a Windows metafile, judged by the header.
bool IsWmf(const QByteArray& bytes);

/// Converts the metafile to a picture whose longer side has `longestSide` pixels, at most 4000. The program
/// `ledgrove-metafile` in the program's folder does this. The picture is null if the metafile is damaged,
/// needs more than a second or 64 MB, or crashes that program.
QImage ReadWmf(const QByteArray& bytes, int longestSide = 1200);

} // namespace Ledgrove
