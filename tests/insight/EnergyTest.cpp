#include "insight/Energy.h"

#include <gmock/gmock.h>

#include <cmath>

#include "tests/insight/SampleComparisons.h"
#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

using testing::HasSubstr;

EnergyGrowth EnergyOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    return ComputeEnergy(ComputeYears(insight));
}

/// Two years in the home. The bills are $1,200 lower in the first; each $120 of price cost $1 a month.
Session TwoYearsSession(const char* labelledPrice) {
    Session session = Testing::SimpleSession();
    session.Assumptions.YearsInHome = 2;
    session.Screen.ecGMHHome.Text = labelledPrice;
    return session;
}

TEST(Energy, NeedsTheGrowthWithWhichTheSavingsPay) {
    // $12,360 cost $103 a month, $2,472 in two years: $1,200 + $1,200 x 1.06.
    EXPECT_EQ(EnergyOf(TwoYearsSession("$132,360")).Needed, 0.06);
    EXPECT_EQ(EnergyOf(TwoYearsSession("$126,000")).Needed, 0);
    EXPECT_EQ(EnergyOf(TwoYearsSession("$135,000")).Needed, std::nullopt); // $1,200 x 1.5
}

TEST(Energy, GrowthDoesNotHelpIfTheBillsAreHigher) {
    Session session = TwoYearsSession("$120,120");
    session.Screen.ecGMHUtil.Text = "$2,500";
    EXPECT_EQ(EnergyOf(session).Needed, std::nullopt);
}

TEST(Energy, GivesTheYearsWithOtherGrowth) {
    Testing::Random random(31);
    for (int round = 0; round < 200; ++round) {
        Session session = Testing::RandomInsightSession(random);
        session.Years.UtilityGrowth = random.Between(-10, 10, 0.01);
        const Insight insight(session.Screen, session);
        if (!insight.Missing().empty())
            continue;
        const EnergyGrowth energy = ComputeEnergy(ComputeYears(insight));
        // The sums are differences of amounts as large as a price.
        const double tolerance = 1e-7 + 1e-12 * static_cast<double>(insight.Record().GMHCase.Cost);
        for (std::size_t i = 0; i < EnergyRates.size(); ++i) {
            session.Years.UtilityGrowth = EnergyRates[i];
            const YearByYear years = ComputeYears(insight);
            ASSERT_EQ(energy.Cumulative[i].size(), years.Years.size());
            for (std::size_t year = 0; year < years.Years.size(); ++year)
                EXPECT_NEAR(energy.Cumulative[i][year], years.Years[year].Cumulative, tolerance);
        }
        ASSERT_FALSE(testing::Test::HasFailure()) << round;
    }
}

TEST(Energy, NeededIsTheFirstStepAtWhichNothingIsLost) {
    Testing::Random random(32);
    int found = 0;
    for (int round = 0; round < 400; ++round) {
        Session session = Testing::RandomInsightSession(random);
        const Insight insight(session.Screen, session);
        if (!insight.Missing().empty())
            continue;
        const auto needed = ComputeEnergy(ComputeYears(insight)).Needed;
        const auto isAheadAt = [&](double growth) {
            session.Years.UtilityGrowth = growth;
            const YearByYear years = ComputeYears(insight);
            return years.Years[static_cast<std::size_t>(years.InHome) - 1].Cumulative >= -0.005;
        };
        if (needed) {
            EXPECT_TRUE(isAheadAt(*needed)) << round;
            EXPECT_TRUE(*needed == 0 || !isAheadAt(*needed - 0.0001)) << round;
        } else {
            EXPECT_FALSE(isAheadAt(0.20)) << round;
        }
        found += needed.value_or(0) > 0 ? 1 : 0;
    }
    EXPECT_GT(found, 10);
}

TEST(Energy, TheSheetSaysHowMuchBillsHaveToRise) {
    EXPECT_THAT(EnergySheet(EnergyOf(TwoYearsSession("$132,360"))).Sentence,
                HasSubstr("have to rise by at least 6.00% a year for the buyer to be ahead after 2 years."));
    EXPECT_THAT(EnergySheet(EnergyOf(TwoYearsSession("$132,900"))).Sentence, // $1,200 x 1.15
                HasSubstr("have to rise by more than 10 % a year"));
    EXPECT_THAT(EnergySheet(EnergyOf(TwoYearsSession("$135,000"))).Sentence, HasSubstr("Not even"));
    EXPECT_THAT(EnergySheet(EnergyOf(TwoYearsSession("$126,000"))).Sentence, HasSubstr("need not rise"));
}

TEST(Energy, TheSheetHasARowForEachRate) {
    const Sheet sheet = EnergySheet(EnergyOf(TwoYearsSession("$126,000")));
    ASSERT_EQ(sheet.Heads.size(), 8U); // years 2, 5, 10 ... 30
    EXPECT_EQ(sheet.Heads[1], "Year 2");
    ASSERT_EQ(sheet.Rows.size(), 7U);
    EXPECT_EQ(sheet.Rows[6][0].Text, "6%");
    // $1,200 + $1,200 x 1.06 less 24 x $50.
    EXPECT_EQ(sheet.Rows[6][1].Text, "$1,272");
}

TEST(Energy, TheGrowthInForceHasItsRowAndSentence) {
    Session session = TwoYearsSession("$126,000");
    session.Years.UtilityGrowth = 0.025;
    const Sheet ahead = EnergySheet(EnergyOf(session));
    ASSERT_EQ(ahead.Rows.size(), 8U);
    EXPECT_EQ(ahead.Rows[2][0].Text, "2%");
    EXPECT_EQ(ahead.Rows[3][0].Text, "2.5% now");
    EXPECT_EQ(ahead.Rows[4][0].Text, "3%");
    // $1,200 + $1,200 x 1.025 less 24 x $50.
    EXPECT_EQ(ahead.Rows[3][1].Text, "$1,230");
    EXPECT_THAT(ahead.Sentence,
                HasSubstr("At 2.5% a year, as assumed now, the buyer is ahead by $1,230 after 2 years."));
    session.Years.UtilityGrowth = -0.15;
    session.Screen.ecGMHHome.Text = "$132,000";
    const Sheet behind = EnergySheet(EnergyOf(session));
    EXPECT_EQ(behind.Rows[0][0].Text, "-15% now");
    // $1,200 + $1,200 x 0.85 less 24 x $100.
    EXPECT_THAT(behind.Sentence,
                HasSubstr("At -15% a year, as assumed now, the buyer is behind by $180 after 2 years."));
    session.Years.UtilityGrowth = 0.03;
    EXPECT_EQ(EnergySheet(EnergyOf(session)).Rows.size(), 7U);
}

} // namespace
} // namespace Ledgrove
