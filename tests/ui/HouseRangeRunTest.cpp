#include "ui/HouseRangeRun.h"

#include "engine/Recalculate.h"
#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

using namespace std::chrono_literals;

HouseList Houses(std::size_t count) {
    HouseList houses;
    for (std::size_t i = 0; i < count; ++i) {
        const auto step = static_cast<float>(i);
        houses.push_back({"House " + std::to_string(i), 200000 + step, 2400, 206000 + step, 1700});
    }
    return houses;
}

RangeChoice EveryPair() {
    RangeChoice choice;
    choice.Pairs.assign(OptionPairs().begin(), OptionPairs().end());
    return choice;
}

TEST(HouseRangeRunTest, GivesTheSameRowsAsWithoutAThread) {
    const Session session = Testing::SampleSession();
    const auto expected = ComputeHouseRange(session, Houses(40), EveryPair());
    HouseRangeRun run(session, Houses(40), EveryPair());
    ASSERT_TRUE(run.Finishes(60s));
    ASSERT_TRUE(run.Result() && expected);
    ASSERT_EQ(run.Result()->Rows.size(), 40U * 7U);
    for (std::size_t row = 0; row < expected->Rows.size(); ++row) {
        EXPECT_EQ(run.Result()->Rows[row].House, expected->Rows[row].House);
        EXPECT_EQ(run.Result()->Rows[row].ShownNet, expected->Rows[row].ShownNet);
    }
    EXPECT_EQ(run.Total(), 40U);
    EXPECT_TRUE(run.Finishes(0ms)) << "it stays finished";
}

TEST(HouseRangeRunTest, AStoppedListHasNoResult) {
    HouseRangeRun run(Testing::SampleSession(), Houses(20000), EveryPair());
    run.Cancel();
    ASSERT_TRUE(run.Finishes(60s));
    EXPECT_FALSE(run.Result());
    EXPECT_LT(run.Done(), run.Total());
}

TEST(HouseRangeRunTest, ALeftListStops) {
    const HouseRangeRun run(Testing::SampleSession(), Houses(20000), EveryPair());
    EXPECT_FALSE(run.Result());
}

} // namespace
} // namespace Ledgrove
