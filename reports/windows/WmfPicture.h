#pragma once

#include <QByteArray>
#include <QImage>

namespace Ledgrove {

/// A Windows metafile, with the placeable header or without.
bool IsWmf(const QByteArray& bytes);

/// The metafile as a picture of at most 1200 pixels a side; null when it is damaged.
QImage ReadWmf(const QByteArray& bytes);

} // namespace Ledgrove
