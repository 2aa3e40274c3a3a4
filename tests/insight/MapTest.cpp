#include "insight/Map.h"

#include <gtest/gtest.h>

#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

NetMap MapOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    return ComputeMap(insight, ComputeBreakeven(insight));
}

TEST(Map, ReachesTwiceAsFarAsTheHomePays) {
    const NetMap map = MapOf(Testing::SimpleSession());
    // It pays up to a difference of $12,000, which is more than the $6,000 now; the saving now is $1,200, and
    // $600 would do.
    EXPECT_EQ(map.Price[0], 0);
    EXPECT_EQ(map.Price[1], 600);
    EXPECT_EQ(map.Price[40], 24'000);
    EXPECT_EQ(map.Savings[1], 60);
    EXPECT_EQ(map.Savings[40], 2'400);
}

TEST(Map, RoundsTheScalesHalvesUp) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHUtil.Text = "$1,190"; // a saving of $1,210: steps of $60.50
    const NetMap map = MapOf(session);
    EXPECT_EQ(map.Savings[1], 61);
    EXPECT_EQ(map.Savings[2], 121);
}

TEST(Map, ShowsWhatIsLeftOfEachSaving) {
    const NetMap map = MapOf(Testing::SimpleSession());
    for (std::size_t row = 0; row < MapSize; ++row) {
        for (std::size_t column = 0; column < MapSize; ++column) {
            ASSERT_TRUE(map.Net[row][column]);
            EXPECT_NEAR(static_cast<double>(*map.Net[row][column]),
                        map.Savings[row] / 12 - map.Price[column] / 120, 1e-3);
        }
    }
    EXPECT_EQ(map.PriceNow, 6'000);
    EXPECT_EQ(map.SavingsNow, 1'200);
    EXPECT_EQ(map.NetNow, 50);
}

TEST(Map, ABillBelowZeroHasNoNet) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHUtil.Text = "$1,000"; // a saving of $1,400, up to $2,800 of a bill of $2,400
    const NetMap map = MapOf(session);
    // 34 x $70 is $2,380, 35 x $70 is $2,450.
    EXPECT_TRUE(map.Net[34][0]);
    EXPECT_FALSE(map.Net[35][0]);
    EXPECT_FALSE(map.Net[40][40]);
    EXPECT_TRUE(MapSheet(map).Sentence.ends_with(" What stays empty would need a utility bill below $0."));
    session.Screen.ecGMHUtil.Text = "$1,200"; // up to $2,400
    EXPECT_TRUE(MapSheet(MapOf(session)).Sentence.ends_with(" a month."));
}

TEST(Map, HasScalesOfItsOwnWhereThereIsNoDifference) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$100,000";
    session.Screen.ecGMHUtil.Text = "$4,300";  // costs $1,900 more a year, which $20,000 of price pay for
    session.Screen.ecPctDown.Text = "100.00%"; // but not while the price does not matter
    const NetMap map = MapOf(session);
    EXPECT_EQ(map.Price[40], 20'000);
    EXPECT_EQ(map.Savings[40], 2'000);
}

TEST(Map, TheSheetHasEveryFifthStep) {
    const Sheet sheet = MapSheet(MapOf(Testing::SimpleSession()));
    ASSERT_EQ(sheet.Heads.size(), 10U);
    EXPECT_EQ(sheet.Heads[9], "$24,000");
    ASSERT_EQ(sheet.Rows.size(), 9U);
    EXPECT_EQ(sheet.Rows[8][0].Text, "$2,400");
    // $2,400 / 12 - $24,000 / 120.
    EXPECT_EQ(sheet.Rows[8][9].Text, "$0");
}

} // namespace
} // namespace Ledgrove
