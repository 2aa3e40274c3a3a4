// Puts any records into a metafile with a valid frame, so that they reach the library.

#include "Fuzz.h"

#include "reports/windows/WmfPicture.h"

#include <QtEndian>
#include <array>

namespace {

using namespace Ledgrove;

constexpr std::array<quint16, 54> functions = {
    0x001E, 0x0035, 0x0037, 0x00F7, 0x00F8, 0x0102, 0x0103, 0x0104, 0x0105, 0x0106, 0x0107,
    0x0108, 0x0127, 0x012C, 0x012D, 0x012E, 0x0139, 0x0142, 0x01F0, 0x01F9, 0x0201, 0x0209,
    0x020A, 0x020B, 0x020C, 0x020D, 0x020E, 0x020F, 0x0211, 0x0213, 0x0214, 0x0220, 0x0234,
    0x02FA, 0x02FB, 0x02FC, 0x0324, 0x0325, 0x0410, 0x0412, 0x0415, 0x0416, 0x0418, 0x041B,
    0x041F, 0x0521, 0x0538, 0x061C, 0x0626, 0x06FF, 0x0817, 0x0940, 0x0A32, 0x0F43};

template <typename Number>
void Append(QByteArray& bytes, Number value) {
    const Number little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

/// Each record is a function, a number of words and the words.
QByteArray MetafileOf(Fuzz::Pieces& pieces) {
    QByteArray records;
    quint32 longest = 3;
    while (!pieces.AtEnd()) {
        const quint16 function = functions[pieces.Byte() % functions.size()];
        const std::uint8_t words = pieces.Byte();
        Append<quint32>(records, 3U + words);
        Append<quint16>(records, function);
        for (int byte = 0; byte < 2 * words; ++byte)
            records.append(static_cast<char>(pieces.Byte()));
        longest = std::max<quint32>(longest, 3U + words);
    }
    Append<quint32>(records, 3);
    Append<quint16>(records, 0);
    QByteArray bytes;
    for (const quint16 word : {quint16{1}, quint16{9}, quint16{0x300}})
        Append<quint16>(bytes, word);
    Append<quint32>(bytes, static_cast<quint32>(9 + records.size() / 2));
    Append<quint16>(bytes, 16);
    Append<quint32>(bytes, longest);
    Append<quint16>(bytes, 0);
    return bytes + records;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Pieces pieces(Fuzz::TextOf(data, size));
    const QByteArray bytes = MetafileOf(pieces);
    const QImage image = ReadWmf(bytes, 64);
    Fuzz::Require(image.width() <= 64 && image.height() <= 64, "no side exceeds the requested length");
    return 0;
}
