#pragma once

#include <QByteArray>

namespace Ledgrove {

/// Whether the bytes begin as a JPEG does.
bool IsJpeg(const QByteArray& bytes);

/// Checks that a JPEG has all its parts up to the end mark. Qt accepts a truncated file and fills the rest
/// with grey. Also refuses a JPEG of more scans than any usual program writes, because each one passes over
/// the whole picture.
bool IsWholeJpeg(const QByteArray& bytes);

} // namespace Ledgrove
