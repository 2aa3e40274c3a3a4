#include "reports/windows/BmpCheck.h"

#include <QtEndian>
#include <cstdlib>

namespace Ledgrove {

namespace {

constexpr qsizetype fileHeaderSize = 14;
constexpr quint32 oldHeaderSize = 12;
constexpr quint32 rle8 = 1;
constexpr quint32 rle4 = 2;

template <typename Number>
Number ReadAt(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

struct BmpFields {
    qint64 Width = 0;
    qint64 Height = 0;
    int BitCount = 0;
    quint32 Compression = 0;
    qint64 PixelOffset = 0;
};

std::optional<BmpFields> ReadFields(const QByteArray& bytes) {
    if (bytes.size() < fileHeaderSize + 12)
        return std::nullopt;
    BmpFields fields;
    fields.PixelOffset = ReadAt<quint32>(bytes, 10);
    const auto headerSize = ReadAt<quint32>(bytes, fileHeaderSize);
    if (headerSize == oldHeaderSize) {
        fields.Width = ReadAt<quint16>(bytes, 18);
        fields.Height = ReadAt<quint16>(bytes, 20);
        fields.BitCount = ReadAt<quint16>(bytes, 24);
        return fields;
    }
    if (headerSize < 40 || bytes.size() < fileHeaderSize + 40)
        return std::nullopt;
    fields.Width = ReadAt<qint32>(bytes, 18);
    fields.Height = std::llabs(ReadAt<qint32>(bytes, 22));
    fields.BitCount = ReadAt<quint16>(bytes, 28);
    fields.Compression = ReadAt<quint32>(bytes, 30);
    return fields;
}

bool IsPossible(const BmpFields& fields) {
    constexpr qint64 longestSide = 100000;
    return fields.Width > 0 && fields.Height > 0 && fields.Width <= longestSide &&
           fields.Height <= longestSide && fields.BitCount > 0 && fields.BitCount <= 32 &&
           fields.PixelOffset >= fileHeaderSize + 12;
}

/// Walks through the runs; true if they stay inside the picture and end inside the file.
bool RunsAreWhole(const QByteArray& bytes, const BmpFields& fields) {
    const bool nibbles = fields.Compression == rle4;
    qint64 x = 0;
    qint64 y = 0;
    for (qint64 at = fields.PixelOffset; at + 1 < bytes.size();) {
        const auto count = static_cast<quint8>(bytes[at]);
        const auto value = static_cast<quint8>(bytes[at + 1]);
        at += 2;
        if (count > 0) {
            x += count;
        } else if (value == 0) { // end of line
            x = 0;
            ++y;
        } else if (value == 1) { // end of picture
            return true;
        } else if (value == 2) { // a jump
            if (at + 1 >= bytes.size())
                return false;
            x += static_cast<quint8>(bytes[at]);
            y += static_cast<quint8>(bytes[at + 1]);
            at += 2;
        } else { // this many single pixels, padded to whole words
            x += value;
            const qint64 size = nibbles ? (value + 1) / 2 : value;
            at += (size + 1) / 2 * 2;
            if (at > bytes.size())
                return false;
        }
        if (x > fields.Width || y > fields.Height)
            return false;
    }
    // Some programs omit the end mark after the last pixel.
    return y >= fields.Height || (y == fields.Height - 1 && x == fields.Width);
}

} // namespace

std::optional<BmpHeader> CheckBmp(const QByteArray& bytes) {
    const auto fields = ReadFields(bytes);
    if (!fields || !IsPossible(*fields))
        return std::nullopt;
    const QSize size(static_cast<int>(fields->Width), static_cast<int>(fields->Height));
    if (fields->Compression == rle8 || fields->Compression == rle4) {
        const int bits = fields->Compression == rle8 ? 8 : 4;
        if (fields->BitCount != bits || !RunsAreWhole(bytes, *fields))
            return std::nullopt;
        return BmpHeader{size, true};
    }
    const qint64 lineBytes = (fields->Width * fields->BitCount + 31) / 32 * 4;
    if (fields->PixelOffset + lineBytes * fields->Height > bytes.size())
        return std::nullopt;
    return BmpHeader{size, false};
}

} // namespace Ledgrove
