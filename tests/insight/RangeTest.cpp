#include "insight/Range.h"

#include <gmock/gmock.h>

#include "engine/NumberText.h"
#include "insight/Breakeven.h"
#include "insight/Insight.h"
#include "tests/insight/SimpleComparison.h"
#include "ui/HouseRange.h"

namespace Ledgrove {
namespace {

using testing::ElementsAre;

/// The simple comparison's homes, dearer ones, and a house whose labelled price is not known yet.
const HouseList houses{{"Alder", 120'000, 2'400, 126'000, 1'200},
                       {"Birch", 120'000, 2'400, 140'000, 1'200},
                       {"Cedar", 120'000, 2'400, 0, 1'200}};

std::vector<OptionPair> AllPairs() {
    const auto pairs = OptionPairs();
    return {pairs.begin(), pairs.end()};
}

HouseList ManyHouses(std::size_t count) {
    HouseList many;
    for (std::size_t lot = 0; lot < count; ++lot)
        many.push_back({"Lot " + std::to_string(lot), 120'000 + static_cast<float>(lot) * 100, 2'400,
                        126'000 + static_cast<float>(lot) * 120, 1'200});
    return many;
}

Range RangeOf(const Session& session, const HouseList& list, const RangeChoice& choice = {}) {
    auto range = ComputeHouseRange(session, list, choice);
    EXPECT_TRUE(range);
    return range.value_or(Range());
}

TEST(Range, HasEachHouseWithTheOptionsOfTheScreen) {
    const Range range = RangeOf(Testing::SimpleSession(), houses);
    ASSERT_EQ(range.Rows.size(), 3U);
    const RangeRow& alder = range.Rows[0];
    EXPECT_EQ(alder.House, "Alder");
    EXPECT_EQ(alder.Base, "Conventional");
    EXPECT_EQ(alder.Labelled, "Conventional");
    // $120 of price cost $1 a month: $1,000 + $200 of bills, $1,050 + $100.
    EXPECT_EQ(alder.Std.PITIU, 1'200);
    EXPECT_EQ(alder.GMH.PITIU, 1'150);
    EXPECT_EQ(alder.ShownNet, 50);
    EXPECT_EQ(alder.PVSavings, 12'000);
    ASSERT_TRUE(alder.Price);
    // $100 of savings a month pay for $12,000.
    EXPECT_EQ(alder.Price->To, "$132,000");
    // $20,000 / 120 = $166.67 a month against $100.
    EXPECT_NEAR(range.Rows[1].ShownNet, -66.67, 0.005);
    EXPECT_EQ(range.Rows[1].Price.value_or(Answer()).To, "$132,000");
}

TEST(Range, AHouseWithoutAPriceHasNoFigures) {
    const RangeRow row = RangeOf(Testing::SimpleSession(), houses).Rows.at(2);
    EXPECT_EQ(row.Missing, "Enter the price of the GREENMARK home.");
    EXPECT_EQ(row.Std.Price, 120'000);
    EXPECT_EQ(row.Std.PITIU, 0);
    EXPECT_FALSE(row.Price);
}

TEST(Range, RowsAreWhatInsightSaysOfTheHouseAndTheOptions) {
    const Session start = Testing::SampleSession();
    const HouseList many = ManyHouses(20);
    const Range range = RangeOf(start, many, {AllPairs()});
    ASSERT_EQ(range.Rows.size(), 20U * 7);
    std::size_t at = 0;
    for (const House& house : many) {
        for (const OptionPair& pair : OptionPairs()) {
            Session alone = start;
            alone.Screen.ecStdHome.Text = Module1::FormatPicture(house.StdCost, "$###,##0");
            alone.Screen.ecGMHHome.Text = Module1::FormatPicture(house.GMHCost, "$###,##0");
            alone.Screen.ecStdUtil.Text = Module1::FormatPicture(house.StdUtil, "$###,##0");
            alone.Screen.ecGMHUtil.Text = Module1::FormatPicture(house.GMHUtil, "$###,##0");
            Testing::ChooseOptions(alone, pair.Base.Text, pair.Labelled.Text);
            const Insight insight(alone.Screen, alone);
            const RangeRow& row = range.Rows[at++];
            ASSERT_EQ(row.House, house.Name);
            ASSERT_EQ(row.Labelled, pair.Labelled.Text);
            EXPECT_EQ(row.GMH.PITIU, insight.Record().GMHCase.PITIU);
            EXPECT_EQ(row.GMH.Margin, MarginOf(insight.Record().GMHCase));
            EXPECT_EQ(row.Std.Qualifies, insight.Record().StdQualifies);
            ASSERT_TRUE(row.Price);
            EXPECT_EQ(row.Price->To, ComputeBreakeven(insight).Price->To);
        }
    }
}

TEST(Range, ThreadsKeepTheOrder) {
    const HouseList many = ManyHouses(500);
    const Session start = Testing::SampleSession();
    const Range one = RangeOf(start, many, {AllPairs(), false, 1});
    const Range four = RangeOf(start, many, {AllPairs(), false, 4});
    ASSERT_EQ(four.Rows.size(), one.Rows.size());
    for (std::size_t at = 0; at < one.Rows.size(); ++at) {
        ASSERT_EQ(four.Rows[at].House, "Lot " + std::to_string(at / 7));
        ASSERT_EQ(four.Rows[at].Labelled, one.Rows[at].Labelled);
        ASSERT_EQ(four.Rows[at].GMH.PITIU, one.Rows[at].GMH.PITIU);
    }
}

TEST(Range, WithoutLimitsThereIsNoPrice) {
    const Range range = RangeOf(Testing::SimpleSession(), houses, {{}, false});
    EXPECT_FALSE(range.Rows[0].Price);
    EXPECT_EQ(range.Rows[0].ShownNet, 50);
    EXPECT_EQ(RangeSheet(range).Heads.back(), "Room");
}

TEST(Range, SaysHowManyHousesAreDoneAndCanBeStopped) {
    std::vector<std::size_t> seen;
    const auto stopAt = [&seen](std::size_t limit) {
        return [&seen, limit](std::size_t done, std::size_t total) {
            EXPECT_EQ(total, 100U);
            seen.push_back(done);
            return done < limit;
        };
    };
    const HouseList many = ManyHouses(100);
    const Session start = Testing::SimpleSession();
    EXPECT_TRUE(ComputeHouseRange(start, many, {{}, false, 1, stopAt(1'000)}));
    EXPECT_EQ(seen.back(), 100U);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    seen.clear();
    EXPECT_FALSE(ComputeHouseRange(start, many, {{}, false, 1, stopAt(20)}));
    EXPECT_LT(seen.back(), 100U);
}

TEST(Range, AnEmptyListHasNoRows) {
    const Range range = RangeOf(Testing::SimpleSession(), {});
    EXPECT_TRUE(range.Rows.empty());
    EXPECT_EQ(RangeSheet(range).Sentence,
              "No houses are saved. Add some in the window (\"House Scenarios\").");
}

TEST(RangeSheet, SaysInWordsWhoQualifies) {
    Session session = Testing::SimpleSession();
    // 28 % of an income of $48,000 are $1,120 a month: enough for $1,000, and for $1,050, not for $1,167.
    session.Screen.ecIncome.Text = "$48,000";
    const Sheet sheet = RangeSheet(RangeOf(session, houses));
    std::vector<std::string> words;
    for (const auto& row : sheet.Rows)
        words.push_back(row[2].Text);
    EXPECT_THAT(words,
                ElementsAre("both homes", "the base home only", "Enter the price of the GREENMARK home."));
    EXPECT_THAT(
        sheet.Sentence,
        testing::StartsWith("3 saved houses. The buyer qualifies for 1 of the 2 GREENMARK homes; one of "
                            "them pays for itself each month. 1 row has no figures."));
    for (const auto& row : sheet.Rows)
        EXPECT_EQ(row.size(), sheet.Heads.size());
}

TEST(RangeSheet, CountsInWords) {
    const auto counts = [](std::initializer_list<std::pair<bool, float>> rows) {
        Range range;
        range.Houses = rows.size();
        for (const auto& [qualifies, net] : rows) {
            RangeRow row;
            row.GMH.Qualifies = qualifies;
            row.ShownNet = net;
            range.Rows.push_back(row);
        }
        const std::string sentence = RangeSheet(range).Sentence;
        return sentence.substr(sentence.find(". ") + 2);
    };
    EXPECT_EQ(counts({{false, 1}, {false, 2}, {false, 3}}),
              "The buyer qualifies for none of the 3 GREENMARK homes; all of them pay for themselves each "
              "month.");
    EXPECT_EQ(counts({{true, -1}, {true, -2}}),
              "The buyer qualifies for all 2 GREENMARK homes; none of them pays for itself each month.");
    EXPECT_EQ(counts({{true, 1}, {true, 2}, {false, -2}}),
              "The buyer qualifies for 2 of the 3 GREENMARK homes; 2 of them pay for themselves each month.");
    EXPECT_EQ(counts({{false, 1}}),
              "The buyer does not qualify for the GREENMARK home, which pays for itself each month.");
}

TEST(RangeSheet, ARowProposesItsHouseAndOptions) {
    const Sheet sheet = RangeSheet(RangeOf(Testing::SimpleSession(), houses, {AllPairs()}));
    EXPECT_THAT(sheet.Rows[4].front().Entries,
                ElementsAre(EntryText{"ecStdHome", "$120,000"}, EntryText{"ecStdUtil", "$2,400"},
                            EntryText{"ecGMHHome", "$126,000"}, EntryText{"ecGMHUtil", "$1,200"},
                            EntryText{"lblHomeName", "Alder"}, EntryText{"cboStdMortOption", "FHA"},
                            EntryText{"cboGMHMortOption", "FHA EEM"}));
}

} // namespace
} // namespace Ledgrove
