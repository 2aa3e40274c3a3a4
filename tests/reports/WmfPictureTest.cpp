#include "reports/windows/WmfPicture.h"

#include "tests/reports/TestPictures.h"

#include <gtest/gtest.h>

#include <QDebug>
#include <QRect>
#include <cstdlib>

namespace Ledgrove {
namespace {

using namespace Testing;

constexpr qsizetype longestRecordAt = 12; // in the header, in words
constexpr qsizetype firstRecordAt = 18;

/// The bare metafile with a different number at `offset`.
QByteArray Changed(qsizetype offset, quint32 number) {
    QByteArray number32;
    Append<quint32>(number32, number);
    return MakeWmf(false).replace(offset, 4, number32);
}

TEST(IsWmf, GoesByTheHeaders) {
    EXPECT_TRUE(IsWmf(MakeWmf(true)));
    EXPECT_TRUE(IsWmf(MakeWmf(false)));
    EXPECT_FALSE(IsWmf({}));
    EXPECT_FALSE(IsWmf(MakeWmf(false).left(firstRecordAt - 1)));
    EXPECT_FALSE(IsWmf("BM is how another kind of picture begins"));
}

TEST(ReadWmf, ItsLongerSideIsAsAsked) {
    EXPECT_EQ(ReadWmf(MakeWmf(true), 64).size(), QSize(64, 32));
    EXPECT_EQ(ReadWmf(MakeWmf(false), 300).size(), QSize(300, 150));
}

TEST(ReadWmf, ARecordLongerThanTheFileIsRefused) {
    // The library would allocate the size in the header: 2 GB here.
    EXPECT_TRUE(ReadWmf(Changed(longestRecordAt, 0x42000007)).isNull());
    EXPECT_TRUE(ReadWmf(Changed(firstRecordAt, 5000)).isNull());
    EXPECT_TRUE(ReadWmf(Changed(firstRecordAt, 0xFFFFFFFF)).isNull());
}

TEST(ReadWmf, ARecordShorterThanItsHeadIsRefused) {
    for (const quint32 words : {0U, 1U, 2U})
        EXPECT_TRUE(ReadWmf(Changed(firstRecordAt, words)).isNull()) << words;
}

TEST(ReadWmf, ATruncatedMetafileIsRefused) {
    const QByteArray whole = MakeWmf(true);
    for (qsizetype length = 0; length < whole.size() - 1; ++length)
        EXPECT_TRUE(ReadWmf(whole.left(length), 64).isNull()) << length;
}

/// A metafile that sets this mapping and draws a red square from (50, 25) to (150, 75).
QByteArray MakeSquare(const QByteArray& mapping) {
    QByteArray records = mapping;
    AppendWmfRecord(records, 0x02FC, {0, 0x00FF, 0, 0});
    AppendWmfRecord(records, 0x012D, {0});
    AppendWmfRecord(records, 0x02FA, {5, 0, 0, 0, 0}); // no pen, whose width differs with the mapping
    AppendWmfRecord(records, 0x012D, {1});
    AppendWmfRecord(records, 0x0324, {4, 50, 25, 150, 25, 150, 75, 50, 75}); // with any direction of the axes
    AppendWmfRecord(records, 0x0000, {});
    QByteArray longest;
    Append<quint32>(longest, 12);
    constexpr qsizetype objectsAt = 10;
    return MakeWmf(false)
               .left(firstRecordAt)
               .replace(objectsAt, 1, "\x02")
               .replace(longestRecordAt, 4, longest) +
           records;
}

QByteArray Window(int x, int y, int width, int height) {
    QByteArray records;
    AppendWmfRecord(records, 0x020B, {static_cast<qint16>(y), static_cast<qint16>(x)});
    AppendWmfRecord(records, 0x020C, {static_cast<qint16>(height), static_cast<qint16>(width)});
    return records;
}

QByteArray Mode(qint16 mode) {
    QByteArray record;
    AppendWmfRecord(record, 0x0103, {mode});
    return record;
}

/// The red part of a picture.
QRect RedPart(const QImage& image) {
    QRect red;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == qRgb(255, 0, 0))
                red |= QRect(x, y, 1, 1);
    return red;
}

/// Whether the sides agree, except for rounding.
bool IsNear(const QRect& one, const QRect& other) {
    constexpr int slack = 4;
    return std::abs(one.left() - other.left()) <= slack && std::abs(one.top() - other.top()) <= slack &&
           std::abs(one.right() - other.right()) <= slack && std::abs(one.bottom() - other.bottom()) <= slack;
}

struct Framed {
    const char* Name;
    QList<int> Frame;
    quint16 UnitsPerInch;
    QByteArray Mapping;
    QRect Red; ///< in a picture of 400 by 200 pixels
};

class PlaceableFrame : public testing::TestWithParam<Framed> {};

TEST_P(PlaceableFrame, IsThePicture) {
    const Framed& framed = GetParam();
    const QByteArray header = MakePlaceableHeader(framed.Frame, framed.UnitsPerInch);
    const QImage image = ReadWmf(header + MakeSquare(framed.Mapping), 400);
    ASSERT_EQ(image.size(), QSize(400, 200));
    EXPECT_TRUE(IsNear(RedPart(image), framed.Red)) << qPrintable(QDebug::toString(RedPart(image)));
}

// In a frame from 0 to 200 by 100, two pixels stand for one unit.
const QRect middle(100, 50, 200, 100);

INSTANTIATE_TEST_SUITE_P(
    Mappings, PlaceableFrame,
    testing::Values(
        Framed{"Window", {0, 0, 200, 100}, 96, Window(0, 0, 200, 100), middle},
        Framed{"NoWindow", {0, 0, 200, 100}, 96, {}, middle},
        Framed{"OtherUnits", {0, 0, 2000, 1000}, 960, Window(0, 0, 200, 100), middle},
        Framed{"Corners", {200, 100, 0, 0}, 96, Window(0, 0, 200, 100), middle},
        Framed{"Stretched", {0, 0, 200, 100}, 96, Mode(8) + Window(0, 0, 200, 100), middle},
        Framed{"StretchedOtherUnits", {0, 0, 2000, 1000}, 1000, Mode(8) + Window(0, 0, 200, 100), middle},
        Framed{"Moved", {-100, -50, 300, 150}, 96, Window(-100, -50, 400, 200), {150, 75, 100, 50}},
        // the axis goes up, so that 25 to 75 is in the middle as well
        Framed{"Upward", {0, 0, 200, 100}, 96, Mode(8) + Window(0, 100, 200, -100), middle},
        Framed{"LargerThanTheWindow", {-100, -50, 300, 150}, 96, Window(0, 0, 200, 100), {150, 75, 100, 50}},
        // only the left half of the square is in the frame
        Framed{"SmallerThanTheDrawing", {0, 25, 100, 75}, 96, Window(0, 0, 200, 100), {200, 0, 200, 200}}),
    [](const auto& tested) { return tested.param.Name; });

TEST(ReadWmf, WithoutAPlaceableHeaderThePictureIsWhatIsDrawn) {
    const QImage image = ReadWmf(MakeSquare(Window(0, 0, 200, 100)), 400);
    EXPECT_TRUE(IsNear(RedPart(image), image.rect()));
}

TEST(ReadWmf, APlaceableHeaderWithoutAnAreaCountsAsNone) {
    for (const QList<int>& frame : {QList<int>{0, 0, 0, 0}, {5, 0, 5, 100}, {0, 7, 100, 7}}) {
        const QImage image = ReadWmf(MakePlaceableHeader(frame, 96) + MakeSquare({}), 100);
        EXPECT_TRUE(image.isNull() || IsNear(RedPart(image), image.rect()));
    }
}

/// A metafile with one record, which stretches a bitmap of this size over the window; the bitmap has two
/// pixels.
QByteArray MakeWmfWithBitmap(qint32 width, qint32 height) {
    const QByteArray bitmap = MakeBmp({width, height, 24}, QByteArray(8, '\x40')).mid(14);
    QList<qint16> words{0x20, 0xCC, 0, 1, 2, 0, 0, 100, 200, 0, 0};
    for (qsizetype at = 0; at + 1 < bitmap.size(); at += 2)
        words.append(qFromLittleEndian<qint16>(bitmap.constData() + at));
    QByteArray records;
    AppendWmfRecord(records, 0x020B, {0, 0});
    AppendWmfRecord(records, 0x020C, {100, 200});
    AppendWmfRecord(records, 0x0F43, words);
    AppendWmfRecord(records, 0x0000, {});
    QByteArray bytes = MakeWmf(false).left(firstRecordAt);
    QByteArray longest;
    Append<quint32>(longest, static_cast<quint32>(3 + words.size()));
    return bytes.replace(longestRecordAt, 4, longest) + records;
}

TEST(ReadWmf, ABitmapInARecordMustBeCompleteAndSmall) {
    EXPECT_FALSE(ReadWmf(MakeWmfWithBitmap(2, 1)).isNull());
    EXPECT_TRUE(ReadWmf(MakeWmfWithBitmap(2, 2)).isNull());         // truncated
    EXPECT_TRUE(ReadWmf(MakeWmfWithBitmap(20000, 30000)).isNull()); // the library would allocate 2 GB
}

} // namespace
} // namespace Ledgrove
