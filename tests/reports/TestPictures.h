#pragma once

#include <QByteArray>
#include <QtEndian>

// Small pictures that the tests build byte by byte and then also truncate.
namespace Ledgrove::Testing {

template <typename Number>
void Append(QByteArray& bytes, Number value) {
    const Number little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

struct BmpShape {
    qint32 Width;
    qint32 Height;
    quint16 BitCount;
    quint32 Compression = 0; ///< 1: RLE8, 2: RLE4
};

/// A BMP of this shape with these pixel bytes. Up to 8 bits, it has a palette of black, red and white.
inline QByteArray MakeBmp(const BmpShape& shape, const QByteArray& pixels) {
    const quint32 colours = shape.BitCount <= 8 ? 3 : 0;
    const quint32 pixelOffset = 14 + 40 + colours * 4;
    QByteArray bytes("BM");
    Append<quint32>(bytes, pixelOffset + static_cast<quint32>(pixels.size()));
    Append<quint32>(bytes, 0);
    Append<quint32>(bytes, pixelOffset);
    Append<quint32>(bytes, 40);
    Append<qint32>(bytes, shape.Width);
    Append<qint32>(bytes, shape.Height);
    Append<quint16>(bytes, 1);
    Append<quint16>(bytes, shape.BitCount);
    Append<quint32>(bytes, shape.Compression);
    Append<quint32>(bytes, static_cast<quint32>(pixels.size()));
    Append<quint64>(bytes, 0);
    Append<quint32>(bytes, colours);
    Append<quint32>(bytes, 0);
    if (colours > 0)
        for (const quint32 colour : {0x000000U, 0xFF0000U, 0xFFFFFFU})
            Append<quint32>(bytes, colour);
    return bytes + pixels;
}

/// A 24-bit BMP in one colour.
inline QByteArray MakePlainBmp(qint32 width, qint32 height, quint32 rgb) {
    QByteArray line;
    for (qint32 x = 0; x < width; ++x) {
        line.append(static_cast<char>(rgb & 0xFFU));
        line.append(static_cast<char>(rgb >> 8U & 0xFFU));
        line.append(static_cast<char>(rgb >> 16U & 0xFFU));
    }
    line.append((4 - line.size() % 4) % 4, '\0');
    return MakeBmp({width, height, 24}, line.repeated(height));
}

/// An icon of 32-bit images of these sizes, each in a different shade of red.
inline QByteArray MakeIcon(const QList<int>& sizes) {
    QByteArray directory;
    QByteArray images;
    Append<quint16>(directory, 0);
    Append<quint16>(directory, 1);
    Append<quint16>(directory, static_cast<quint16>(sizes.size()));
    for (const int size : sizes) {
        QByteArray image;
        Append<quint32>(image, 40);
        Append<qint32>(image, size);
        Append<qint32>(image, 2 * size);
        Append<quint16>(image, 1);
        Append<quint16>(image, 32);
        image.append(24, '\0');
        for (int pixel = 0; pixel < size * size; ++pixel)
            Append<quint32>(image, 0xFF000000U | static_cast<quint32>(size) << 16U);
        image.append((size + 31) / 32 * 4 * size, '\0');
        directory.append(static_cast<char>(size));
        directory.append(static_cast<char>(size));
        Append<quint16>(directory, 0);
        Append<quint16>(directory, 1);
        Append<quint16>(directory, 32);
        Append<quint32>(directory, static_cast<quint32>(image.size()));
        Append<quint32>(directory, static_cast<quint32>(6 + 16 * sizes.size() + images.size()));
        images += image;
    }
    return directory + images;
}

inline void AppendWmfRecord(QByteArray& bytes, quint16 function, const QList<qint16>& words) {
    Append<quint32>(bytes, static_cast<quint32>(3 + words.size()));
    Append<quint16>(bytes, function);
    for (const qint16 word : words)
        Append<qint16>(bytes, word);
}

/// The placeable header of a metafile: left, top, right and bottom of its frame, and the units per inch.
inline QByteArray MakePlaceableHeader(const QList<int>& frame, quint16 unitsPerInch) {
    QByteArray header;
    Append<quint32>(header, 0x9AC6CDD7U);
    Append<quint16>(header, 0);
    for (const int side : frame)
        Append<qint16>(header, static_cast<qint16>(side));
    Append<quint16>(header, unitsPerInch);
    Append<quint32>(header, 0);
    quint16 checksum = 0;
    for (qsizetype at = 0; at < header.size(); at += 2)
        checksum ^= qFromLittleEndian<quint16>(header.constData() + at);
    Append<quint16>(header, checksum);
    return header;
}

/// A metafile that fills its whole window of 200 x 100 with a red rectangle.
inline QByteArray MakeWmf(bool placeable) {
    QByteArray records;
    AppendWmfRecord(records, 0x020B, {0, 0});            // window origin
    AppendWmfRecord(records, 0x020C, {100, 200});        // window extent
    AppendWmfRecord(records, 0x02FC, {0, 0x00FF, 0, 0}); // brush: solid, red
    AppendWmfRecord(records, 0x012D, {0});               // select it
    AppendWmfRecord(records, 0x041B, {100, 200, 0, 0});  // rectangle
    AppendWmfRecord(records, 0x0000, {});
    QByteArray bytes;
    if (placeable)
        bytes = MakePlaceableHeader({0, 0, 200, 100}, 96);
    Append<quint16>(bytes, 1);
    Append<quint16>(bytes, 9);
    Append<quint16>(bytes, 0x0300);
    Append<quint32>(bytes, static_cast<quint32>(9 + records.size() / 2));
    Append<quint16>(bytes, 1);
    Append<quint32>(bytes, 7);
    Append<quint16>(bytes, 0);
    return bytes + records;
}

} // namespace Ledgrove::Testing
