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

/// Makes a picture when a test runs: no plug-in is loaded before main.
using PictureMaker = QByteArray (*)();

class CutPicture : public testing::TestWithParam<PictureMaker> {};

TEST_P(CutPicture, GivesNoPictureOrACompleteImage) {
    const QByteArray whole = GetParam()();
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

/// A picture whose left half is red and whose right half is white, in this format.
QByteArray MakeHalves(const QSize& size, const char* format, int quality = -1) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width() / 2; ++x)
            image.setPixel(x, y, qRgb(255, 0, 0));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, format, quality))
        qFatal("no %s", format);
    return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    Formats, CutPicture,
    testing::Values([] { return MakePlainBmp(9, 7, 0x336699); },
                    [] {
                        return MakeBmp({4, 2, 8}, QByteArray::fromHex("0000000001010202"));
                    },
                    [] {
                        return MakeBmp({4, 2, 8, 1}, runs8);
                    },
                    [] {
                        return MakeBmp({4, 2, 4, 2}, runs4);
                    },
                    [] { return MakeIcon({16}); },
                    [] {
                        return MakeHalves({24, 16}, "png");
                    },
                    [] {
                        return MakeHalves({24, 16}, "jpeg");
                    }));

/// The JPEG with an EXIF part that says how the camera was held.
QByteArray Turned(const QByteArray& jpeg, char orientation) {
    QByteArray exif = QByteArray::fromHex("ffe10022"                     // 34 bytes of EXIF data follow
                                          "457869660000"                 // "Exif"
                                          "49492a0008000000"             // little-endian, one table
                                          "0100120103000100000001000000" // one entry: the orientation
                                          "00000000");                   // no other table
    exif[exif.size() - 8] = orientation;
    return jpeg.left(2) + exif + jpeg.mid(2);
}

bool IsRed(QRgb colour) {
    return qRed(colour) > 240 && qGreen(colour) < 40;
}

TEST(ReadPicture, ReadsPngAndJpeg) {
    for (const char* format : {"png", "jpeg"}) {
        const QImage image = ReadPicture(MakeHalves({64, 32}, format));
        ASSERT_EQ(image.size(), QSize(64, 32)) << format;
        EXPECT_TRUE(IsRed(image.pixel(8, 16))) << format;
        EXPECT_FALSE(IsRed(image.pixel(56, 16))) << format;
    }
}

TEST(ReadPicture, TurnsAJpegAsItsCameraWasHeld) {
    const QByteArray jpeg = MakeHalves({64, 32}, "jpeg", 95);
    // 3 is upside down; 6 is turned to the right, so that the left side becomes the top.
    const QImage upsideDown = ReadPicture(Turned(jpeg, 3));
    ASSERT_EQ(upsideDown.size(), QSize(64, 32));
    EXPECT_TRUE(IsRed(upsideDown.pixel(56, 16)));
    const QImage right = ReadPicture(Turned(jpeg, 6));
    ASSERT_EQ(right.size(), QSize(32, 64));
    EXPECT_TRUE(IsRed(right.pixel(16, 8)));
    EXPECT_FALSE(IsRed(right.pixel(16, 56)));
}

TEST(ReadPicture, ATruncatedOrDamagedJpegIsNotRead) {
    const QByteArray whole = MakeHalves({64, 32}, "jpeg");
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_TRUE(ReadPicture(whole.left(length)).isNull()) << length;
    EXPECT_FALSE(ReadPicture(whole + "other data").isNull());
    const qsizetype scan = whole.indexOf("\xFF\xDA");
    EXPECT_TRUE(ReadPicture(whole.left(scan) + "\xFF\xD9").isNull()); // no pixels
    EXPECT_TRUE(ReadPicture(whole.left(4) + QByteArray(scan - 4, '\0') + whole.mid(scan)).isNull());
    const QByteArray oneScan = whole.mid(scan, whole.size() - scan - 2);
    EXPECT_TRUE(ReadPicture(whole.left(scan) + oneScan.repeated(1000) + "\xFF\xD9").isNull());
}

TEST(ReadPicture, AHugeJpegIsNotRead) {
    const QByteArray small = MakeHalves({64, 32}, "jpeg");
    const qsizetype frame = small.indexOf("\xFF\xC0") + 5; // its height and width
    ASSERT_EQ(small.mid(frame, 4), QByteArray::fromHex("00200040"));
    EXPECT_TRUE(ReadPicture(QByteArray(small).replace(frame, 4, QByteArray::fromHex("ffffffff"))).isNull());
}

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
    for (const char* text :
         {"", "B", "BM", "GIF89a", "plain text",
          "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>", "II*", "RIFF\x1a WEBPVP8L",
          "\xFF\xD8", "\xFF\xD8\xFF", "\xD7\xCD\xC6\x9A", "\x89PNG\r\n"})
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
    EXPECT_FALSE(store.Load(name.toStdString(), {10, 10}).isNull());
    QFile::remove(name);
    EXPECT_FALSE(store.Load(name.toStdString(), {10, 10}).isNull());
}

TEST(PictureStore, KeepsNoMorePixelsThanItsPlaceShows) {
    const QTemporaryDir folder;
    const QSize place(795, 675);
    struct Case {
        QSize Picture, Kept;
    };
    for (const Case& one :
         {Case{{3000, 2400}, {795, 636}}, // 3000 : 2400 is 795 : 636
          Case{{700, 1350}, {350, 675}},  // only the height is too large
          Case{{2000, 1}, {795, 1}}, Case{{795, 675}, {795, 675}}, Case{{20, 10}, {20, 10}}}) {
        const QString name = folder.filePath(QString("%1.bmp").arg(one.Picture.width()));
        QImage picture(one.Picture, QImage::Format_RGB32);
        picture.fill(qRgb(0x33, 0x66, 0x99));
        ASSERT_TRUE(picture.save(name));
        const QImage kept = PictureStore().Load(name.toStdString(), place);
        EXPECT_EQ(kept.size(), one.Kept);
        EXPECT_EQ(kept.pixel(kept.width() / 2, kept.height() / 2), qRgb(0x33, 0x66, 0x99));
    }
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
