#include "reports/windows/WmfPicture.h"

#include "tests/reports/TestPictures.h"

#include <gtest/gtest.h>

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
