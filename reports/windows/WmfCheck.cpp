#include "reports/windows/WmfCheck.h"

#include "reports/windows/BmpCheck.h"

#include <QtEndian>
#include <optional>

namespace Ledgrove {

namespace {

constexpr qsizetype placeableSize = 22;
constexpr qsizetype headerSize = 18;
constexpr qsizetype smallestRecord = 6;

template <typename Number>
Number ReadAt(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

/// Where in a record's parameters a bitmap lies; nothing for records without one.
std::optional<qsizetype> BitmapOffset(quint16 function) {
    switch (function) {
    case 0x0142: // pattern brush
        return 4;
    case 0x0940: // bitmap at its size
        return 16;
    case 0x0D33: // bitmap to the device
        return 18;
    case 0x0B41: // bitmap stretched
        return 20;
    case 0x0F43: // the same, with its palette's use
        return 22;
    default:
        return std::nullopt;
    }
}

/// Whether a bitmap in a record is whole and of a sensible size, by the same measure as a file of its own.
bool IsWholeBitmap(const QByteArray& bitmap) {
    constexpr quint32 newHeader = 40;
    constexpr qint64 mostPixels = 4LL * 1000 * 1000;
    if (bitmap.size() < qsizetype{newHeader} || ReadAt<quint32>(bitmap, 0) != newHeader)
        return false;
    const auto bits = ReadAt<quint16>(bitmap, 14);
    const auto used = ReadAt<quint32>(bitmap, 32);
    if (bits > 32 || used > 256)
        return false;
    const quint32 colours = used > 0 ? used : bits <= 8 ? 1U << bits : 0;
    QByteArray file("BM\0\0\0\0\0\0\0\0", 10);
    const quint32 pixelOffset = qToLittleEndian(14 + newHeader + 4 * colours);
    file.append(reinterpret_cast<const char*>(&pixelOffset), sizeof pixelOffset);
    const auto header = CheckBmp(file + bitmap);
    return header && qint64{header->Size.width()} * header->Size.height() <= mostPixels;
}

bool IsSound(quint16 function, const QByteArray& parameters) {
    const auto offset = BitmapOffset(function);
    return !offset || IsWholeBitmap(parameters.mid(*offset));
}

bool IsPlaceable(const QByteArray& bytes) {
    return bytes.startsWith("\xD7\xCD\xC6\x9A");
}

} // namespace

bool IsWmf(const QByteArray& bytes) {
    if (IsPlaceable(bytes))
        return true;
    // Type 1 or 2, a header of 9 words, version 1.0 or 3.0
    if (bytes.size() < headerSize)
        return false;
    const auto word = [&bytes](qsizetype offset) { return ReadAt<quint16>(bytes, offset); };
    return (word(0) == 1 || word(0) == 2) && word(2) == 9 && (word(4) == 0x0100 || word(4) == 0x0300);
}

bool CheckWmf(const QByteArray& bytes) {
    const qsizetype header = IsPlaceable(bytes) ? placeableSize : 0;
    if (bytes.size() < header + headerSize)
        return false;
    const qint64 longestRecord = qint64{ReadAt<quint32>(bytes, header + 12)} * 2;
    if (longestRecord > bytes.size())
        return false;
    for (qint64 at = header + headerSize; at + smallestRecord <= bytes.size();) {
        const qint64 size = qint64{ReadAt<quint32>(bytes, at)} * 2;
        const auto function = ReadAt<quint16>(bytes, at + 4);
        if (function == 0) // the last record
            return true;
        if (size < smallestRecord || size > longestRecord || size > bytes.size() - at ||
            !IsSound(function, bytes.mid(at + smallestRecord, size - smallestRecord)))
            return false;
        at += size;
    }
    return false;
}

} // namespace Ledgrove
