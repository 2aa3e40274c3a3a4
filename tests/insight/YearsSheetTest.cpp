#include "insight/Energy.h"
#include "insight/Exit.h"
#include "insight/Years.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "tests/insight/SimpleComparison.h"

// The tables of the years with every figure, and what stands below the tables.
namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::Not;

/// A fifth is paid down: $1,200 more for the labelled home, which then costs $40 more a month and saves $100.
Session PaidDownSession() {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "20.00%";
    return session;
}

YearByYear YearsOf(const Session& session) {
    const Insight insight(session.Screen, session);
    return ComputeYears(insight);
}

double NumberAt(const Sheet& sheet, std::size_t row, const std::string& head) {
    const auto at = std::ranges::find(sheet.Heads, head) - sheet.Heads.begin();
    return sheet.Rows[row][static_cast<std::size_t>(at)].Number.value_or(-1);
}

TEST(YearsSheet, AllColumnsHaveEveryFigureOfBothHomes) {
    const YearByYear years = YearsOf(PaidDownSession());
    const Sheet sheet = YearsSheet(years, FlowColumns::All);
    // Number, saving, ahead by, what changes; nine figures of each home.
    ASSERT_EQ(sheet.Heads.size(), 22U);
    EXPECT_EQ(std::set(sheet.Heads.begin(), sheet.Heads.end()).size(), 22U);
    // $96,000 and $100,800 are paid off in 10 years without interest.
    EXPECT_NEAR(NumberAt(sheet, 0, "Base Principal"), 9'600, 1e-6);
    EXPECT_NEAR(NumberAt(sheet, 0, "GREENMARK Principal"), 10'080, 1e-6);
    EXPECT_NEAR(NumberAt(sheet, 0, "Base Utilities"), 2'400, 1e-6);
    EXPECT_NEAR(NumberAt(sheet, 0, "GREENMARK Cost"), 10'080 + 1'200, 1e-6);
    EXPECT_NEAR(NumberAt(sheet, 6, "Ahead By"), 7 * 12 * 60 - 1'200, 1e-6);
    for (const char* head : {"Base Interest", "Base Balance", "Base PMI", "Base Property Tax",
                             "Base Insurance", "GREENMARK Tax Effect"})
        EXPECT_NE(NumberAt(sheet, 0, head), -1) << head;
    const Sheet months = YearMonthsSheet(years, 3, FlowColumns::All);
    EXPECT_EQ(months.Heads.size(), 22U);
    EXPECT_EQ(months.Rows.front().front().Text, "25");
}

TEST(YearsSheet, TheRowsInWhichSomethingChangesAreMarked) {
    const YearByYear years = YearsOf(PaidDownSession());
    const auto events = EventsBetween(years, 0, 360);
    // $1,200 are earned back with $60 a month after 20 months.
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].Month, 20);
    EXPECT_EQ(events[0].Text, "ahead from month 20");
    const Sheet sheet = YearsSheet(years, FlowColumns::All);
    EXPECT_EQ(sheet.Rows[1].front().Mark, CellMark::Turn);
    EXPECT_EQ(sheet.Rows[1][3].Text, "ahead from month 20");
    EXPECT_EQ(sheet.Rows[0].front().Mark, CellMark::None);
}

TEST(YearsSheet, ALossIsCalledALoss) {
    Session session = PaidDownSession();
    session.Screen.ecGMHUtil.Text = "$2,400"; // saves nothing
    // 84 x $40 and $1,200.
    EXPECT_THAT(
        YearsSheet(YearsOf(session)).Sentence,
        HasSubstr("In today's money, the buyer loses $4,560 in 7 years, with the extra down payment."));
    session = Testing::SimpleSession(); // nothing is paid down: $50 a month more, without savings
    session.Screen.ecGMHUtil.Text = "$2,400";
    EXPECT_THAT(YearsSheet(YearsOf(session)).Sentence,
                HasSubstr("In today's money, the buyer loses $4,200 in 7 years."));
}

TEST(YearsSheet, TheNoteSaysWhyTheSummaryDiffersAndWhatIsAssumed) {
    Session session = PaidDownSession();
    session.Years.UtilityGrowth = 0.025;
    session.Years.HomeGrowth = -0.01;
    for (const Sheet& sheet : {YearsSheet(YearsOf(session)), YearMonthsSheet(YearsOf(session), 1)}) {
        EXPECT_THAT(sheet.Note, HasSubstr("The expected savings on the Summary tab differ"));
        EXPECT_THAT(sheet.Note, HasSubstr("utility bills rise by 2.5% a year and that property tax and "
                                          "insurance fall by 1% a year."));
        EXPECT_THAT(sheet.Note,
                    HasSubstr("home prices stay as they are, that selling costs 6% of the price"));
        EXPECT_THAT(sheet.Note, HasSubstr(". The return with the sale assumes that home prices"));
        EXPECT_THAT(sheet.Sentence, Not(HasSubstr("Summary")));
    }
}

TEST(YearsSheet, TheOtherViewsNameTheGrowthThatTheyAssume) {
    Session session = PaidDownSession();
    session.Years.HomeGrowth = 0.02;
    const Insight insight(session.Screen, session);
    const YearByYear years = ComputeYears(insight);
    EXPECT_EQ(EnergySheet(ComputeEnergy(years)).Note,
              "This assumes that property tax and insurance rise by 2% a year.");
    EXPECT_EQ(
        ExitSheet(insight, ComputeExit(insight, years)).Note,
        "This assumes that utility bills stay as they are and that property tax and insurance rise by 2% "
        "a year.");
}

TEST(YearsSheet, TheNeededGrowthIsNamed) {
    EnergyGrowth energy;
    EXPECT_EQ(NeededText(energy), "not even 20% a year is enough");
    energy.Needed = 0;
    EXPECT_EQ(NeededText(energy), "no growth is needed");
    energy.Needed = 0.0342;
    EXPECT_EQ(NeededText(energy), "needed: at least 3.42% a year");
    energy.Needed = 0.15;
    EXPECT_EQ(NeededText(energy), "needed: more than 10 % a year");
}

} // namespace
} // namespace Ledgrove
