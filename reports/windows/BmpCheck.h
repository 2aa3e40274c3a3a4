#pragma once

#include <QByteArray>
#include <QSize>
#include <optional>

namespace Ledgrove {

struct BmpHeader {
    QSize Size;
    bool RunLengthEncoded = false;
};

/// Whether a BMP's pixels are all there. Qt takes a file that is cut short for whole and shows what memory
/// held before. Nothing for a BMP that is cut, or whose header makes no sense.
std::optional<BmpHeader> CheckBmp(const QByteArray& bytes);

} // namespace Ledgrove
