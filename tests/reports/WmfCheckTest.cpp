#include "reports/windows/WmfCheck.h"

#include "reports/windows/Pictures.h"
#include "tests/reports/TestPictures.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

using namespace Testing;

constexpr qsizetype longestRecordAt = 12; // in the header, in words
constexpr qsizetype firstRecordAt = 18;

/// The bare metafile with the number at `offset` changed.
QByteArray Changed(qsizetype offset, quint32 number) {
    QByteArray number32;
    Append<quint32>(number32, number);
    return MakeWmf(false).replace(offset, 4, number32);
}

TEST(CheckWmf, TakesWholeMetafiles) {
    EXPECT_TRUE(CheckWmf(MakeWmf(true)));
    EXPECT_TRUE(CheckWmf(MakeWmf(false)));
}

TEST(CheckWmf, ARecordLongerThanTheFileIsNone) {
    // The library would set aside what the header says: 2 GB here.
    EXPECT_FALSE(CheckWmf(Changed(longestRecordAt, 0x42000007)));
    EXPECT_TRUE(ReadPicture(Changed(longestRecordAt, 0x42000007)).isNull());
    EXPECT_FALSE(CheckWmf(Changed(firstRecordAt, 5000)));
    EXPECT_FALSE(CheckWmf(Changed(firstRecordAt, 0xFFFFFFFF)));
}

TEST(CheckWmf, ARecordShorterThanItsHeadIsNone) {
    for (const quint32 words : {0U, 1U, 2U})
        EXPECT_FALSE(CheckWmf(Changed(firstRecordAt, words))) << words;
}

TEST(CheckWmf, ARecordLongerThanTheLongestIsNone) {
    EXPECT_FALSE(CheckWmf(Changed(longestRecordAt, 4))); // the first record has five words
}

TEST(CheckWmf, ACutMetafileIsNone) {
    const QByteArray whole = MakeWmf(true);
    for (qsizetype length = 0; length < whole.size() - 1; ++length)
        EXPECT_FALSE(CheckWmf(whole.left(length))) << length;
}

} // namespace
} // namespace Ledgrove
