#include "reports/windows/WmfCheck.h"

#include <QtEndian>

namespace Ledgrove {

namespace {

constexpr qsizetype placeableSize = 22;
constexpr qsizetype headerSize = 18;
constexpr qsizetype smallestRecord = 6;

template <typename Number>
Number ReadAt(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<Number>(bytes.constData() + offset);
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
        if (ReadAt<quint16>(bytes, at + 4) == 0) // the last record
            return true;
        if (size < smallestRecord || size > longestRecord || size > bytes.size() - at)
            return false;
        at += size;
    }
    return false;
}

} // namespace Ledgrove
