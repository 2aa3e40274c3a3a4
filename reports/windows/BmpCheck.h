#pragma once

#include <QByteArray>
#include <QSize>
#include <optional>

namespace Ledgrove {

struct BmpHeader {
    QSize Size;
    bool RunLengthEncoded = false;
};

/// Checks that a BMP contains all its pixels. Qt accepts a truncated file and shows uninitialised memory.
/// Returns nothing for a BMP that is truncated or has an invalid header.
std::optional<BmpHeader> CheckBmp(const QByteArray& bytes);

} // namespace Ledgrove
