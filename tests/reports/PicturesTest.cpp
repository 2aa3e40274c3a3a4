#include "reports/windows/Pictures.h"

#include "tests/reports/TestPictures.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace Ledgrove {
namespace {

using namespace Testing;

// Two lines of four pixels, bottom line first: red, red, white, white over black.
const QByteArray runs8 = QByteArray::fromHex("0400"   // four black
                                             "0000"   // end of line
                                             "0201"   // two red
                                             "0202"   // two white
                                             "0001"); // end of picture
const QByteArray runs4 = QByteArray::fromHex("0400"
                                             "0000"
                                             "0211"
                                             "0222"
                                             "0001");

TEST(ReadPicture, ReadsBmpOfEveryDepth) {
    EXPECT_EQ(ReadPicture(MakePlainBmp(5, 3, 0x336699)).pixel(4, 2), qRgb(0x33, 0x66, 0x99));
    const QImage indexed = ReadPicture(MakeBmp({4, 2, 8}, QByteArray::fromHex("0000000001010202")));
    EXPECT_EQ(indexed.size(), QSize(4, 2));
    EXPECT_EQ(indexed.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(indexed.pixel(3, 0), qRgb(255, 255, 255));
    EXPECT_EQ(ReadPicture(MakeBmp({4, 1, 4}, QByteArray::fromHex("12000000"))).pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(ReadPicture(MakeBmp({1, 1, 1}, QByteArray::fromHex("80000000"))).pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(ReadPicture(MakeBmp({1, 1, 32}, QByteArray::fromHex("99663300"))).pixel(0, 0),
              qRgb(0x33, 0x66, 0x99));
}

TEST(ReadPicture, ReadsRunLengthEncodedBmp) {
    for (const QByteArray& bytes : {MakeBmp({4, 2, 8, 1}, runs8), MakeBmp({4, 2, 4, 2}, runs4)}) {
        const QImage image = ReadPicture(bytes);
        ASSERT_EQ(image.size(), QSize(4, 2));
        EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 0));
        EXPECT_EQ(image.pixel(3, 0), qRgb(255, 255, 255));
        EXPECT_EQ(image.pixel(0, 1), qRgb(0, 0, 0));
    }
}

TEST(ReadPicture, PixelsThatTheRunsSkipAreBackground) {
    const QImage image = ReadPicture(MakeBmp({4, 2, 8, 1}, QByteArray::fromHex("0001")));
    ASSERT_EQ(image.size(), QSize(4, 2));
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(image.pixel(x, 0), qRgb(0, 0, 0));
}

TEST(ReadPicture, ReadsTheLargestImageOfAnIcon) {
    const QImage image = ReadPicture(MakeIcon({16, 48, 32}));
    ASSERT_EQ(image.size(), QSize(48, 48));
    EXPECT_EQ(qRed(image.pixel(10, 10)), 48);
}

TEST(ReadPicture, ReadsMetafilesWithAndWithoutPlaceableHeader) {
    for (const bool placeable : {true, false}) {
        const QImage image = ReadPicture(MakeWmf(placeable));
        ASSERT_FALSE(image.isNull()) << placeable;
        EXPECT_EQ(image.pixel(image.width() / 2, image.height() / 2), qRgb(255, 0, 0)) << placeable;
        EXPECT_LE(std::max(image.width(), image.height()), 1200);
    }
}

TEST(ReadPicture, AMetafileThatDrawsForeverIsNotRead) {
    // The library takes seconds for one arc over the whole coordinate range, and nearly a minute for twenty.
    QByteArray arc;
    Append<quint32>(arc, 11);
    Append<quint16>(arc, 0x0817);
    arc += QByteArray::fromHex("ffff0200000000000000ff3e00000000");
    QByteArray bytes = QByteArray::fromHex("010009000003") + QByteArray(4, '\0') +
                       QByteArray::fromHex("10000b0000000000") + arc.repeated(20) +
                       QByteArray::fromHex("030000000000");
    EXPECT_TRUE(ReadPicture(bytes).isNull());
}

class CutPicture : public testing::TestWithParam<QByteArray> {};

TEST_P(CutPicture, GivesNoPictureOrACompleteImage) {
    const QByteArray& whole = GetParam();
    const QImage reference = ReadPicture(whole);
    ASSERT_FALSE(reference.isNull());
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QImage image = ReadPicture(whole.left(length));
        // A file may lack bytes after its last pixel; its pixels must then be correct.
        if (!image.isNull() && image.size() == reference.size()) {
            EXPECT_EQ(image.convertToFormat(QImage::Format_RGB32),
                      reference.convertToFormat(QImage::Format_RGB32))
                << "cut after " << length << " of " << whole.size();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, CutPicture,
                         testing::Values(MakePlainBmp(9, 7, 0x336699),
                                         MakeBmp({4, 2, 8}, QByteArray::fromHex("0000000001010202")),
                                         MakeBmp({4, 2, 8, 1}, runs8), MakeBmp({4, 2, 4, 2}, runs4),
                                         MakeIcon({16})));

TEST(ReadPicture, ATruncatedBmpIsNotRead) {
    const QByteArray whole = MakePlainBmp(100, 100, 0x336699);
    EXPECT_TRUE(ReadPicture(whole.left(whole.size() - 1)).isNull());
    EXPECT_TRUE(ReadPicture(whole.left(whole.size() / 2)).isNull());
    const QByteArray runs = MakeBmp({4, 2, 8, 1}, runs8);
    EXPECT_TRUE(ReadPicture(runs.left(runs.size() - 4)).isNull());
}

TEST(ReadPicture, ImpossibleSizesAreNotRead) {
    for (const BmpShape& shape : {BmpShape{0, 5, 24}, BmpShape{-5, 5, 24}, BmpShape{60000, 60000, 24},
                                  BmpShape{2000000000, 2000000000, 32}, BmpShape{5, 5, 0}, BmpShape{5, 5, 77},
                                  BmpShape{60000, 60000, 8, 1}, BmpShape{4, 2, 24, 1}})
        EXPECT_TRUE(ReadPicture(MakeBmp(shape, QByteArray(64, '\0'))).isNull())
            << shape.Width << 'x' << shape.Height;
    // A few bytes that claim too many pixels.
    EXPECT_TRUE(ReadPicture(MakeBmp({4000, 4000, 8, 1}, QByteArray::fromHex("0001"))).isNull());
    EXPECT_TRUE(ReadPicture(MakeBmp({2001, 2000, 8, 1}, QByteArray::fromHex("0001"))).isNull());
    EXPECT_FALSE(ReadPicture(MakeBmp({2000, 2000, 8, 1}, QByteArray::fromHex("0001"))).isNull());
    EXPECT_TRUE(ReadPicture(MakeBmp({4, 2, 8, 1}, QByteArray::fromHex("FF000001")))
                    .isNull()); // the runs go past the end of the line
}

/// An icon whose directory names the same PNG of this size `times` times, always as an image of 16 by 16.
QByteArray MakePngIcon(const QSize& size, int times) {
    QImage image(size, QImage::Format_Mono);
    image.fill(1);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "png");
    QByteArray bytes;
    for (const int word : {0, 1, times})
        Append<quint16>(bytes, static_cast<quint16>(word));
    for (int entry = 0; entry < times; ++entry) {
        bytes.append("\x10\x10");
        for (const int word : {0, 1, 32})
            Append<quint16>(bytes, static_cast<quint16>(word));
        Append<quint32>(bytes, static_cast<quint32>(png.size()));
        Append<quint32>(bytes, static_cast<quint32>(6 + 16 * times));
    }
    return bytes + png;
}

TEST(ReadPicture, AnIconOfPngsIsReadUpToALimit) {
    EXPECT_EQ(ReadPicture(MakePngIcon({300, 200}, 2)).size(), QSize(300, 200));
    EXPECT_TRUE(ReadPicture(MakePngIcon({2001, 2000}, 1)).isNull());
    EXPECT_EQ(ReadPicture(MakePngIcon({1000, 1000}, 1000)).size(), QSize(1000, 1000)); // only the first four
}

TEST(ReadPicture, AnIconWithoutItsClaimedImagesIsNotRead) {
    for (const char* bytes : {"0000010001e2", "0000010004c6", "00000100ffff1010"})
        EXPECT_TRUE(ReadPicture(QByteArray::fromHex(bytes)).isNull()) << bytes;
    // The directory claims two images and the file has one.
    EXPECT_EQ(ReadPicture(MakeIcon({16}).replace(4, 1, "\x02")).size(), QSize(16, 16));
}

TEST(ReadPicture, OtherFilesAreNotRead) {
    for (const char* text : {"", "B", "BM", "GIF89a", "plain text", "\xD7\xCD\xC6\x9A", "\x89PNG\r\n"})
        EXPECT_TRUE(ReadPicture(text).isNull()) << text;
}

TEST(LoadPicture, DetectsTheFormatByContentNotByName) {
    const QTemporaryDir folder;
    const QString name = folder.filePath("logo.wmf");
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(MakePlainBmp(3, 3, 0xFF0000));
    file.close();
    EXPECT_EQ(LoadPicture(name.toStdString()).size(), QSize(3, 3));
}

TEST(LoadPicture, OnlyAFileIsRead) {
    const QTemporaryDir folder;
    EXPECT_TRUE(LoadPicture(folder.filePath("none.bmp").toStdString()).isNull());
    EXPECT_TRUE(LoadPicture(folder.path().toStdString()).isNull());
    EXPECT_TRUE(LoadPicture("/dev/zero").isNull());
    EXPECT_TRUE(LoadPicture("").isNull());
}

TEST(PictureStore, ReadsAFileOnce) {
    const QTemporaryDir folder;
    const QString name = folder.filePath("logo.bmp");
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(MakePlainBmp(3, 3, 0xFF0000));
    file.close();
    PictureStore store;
    EXPECT_FALSE(store.Load(name.toStdString()).isNull());
    QFile::remove(name);
    EXPECT_FALSE(store.Load(name.toStdString()).isNull());
}

TEST(ShippedPictures, ExistAndAreLargeEnoughForPrint) {
    const std::string data = LEDGROVE_SOURCE_DIR "/data/";
    for (const char* name : {"GenericHouseLogo.bmp", "LedgroveEmblem.png"}) {
        const QImage image = LoadPicture(data + name);
        // the report's box is 1.325 by 1.125 inches
        EXPECT_GE(image.width(), 397) << name;
        EXPECT_GE(image.height(), 337) << name;
    }
}

} // namespace
} // namespace Ledgrove
