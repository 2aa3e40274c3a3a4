#include "ui/YearCharts.h"

#include "tests/insight/SimpleComparison.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Ledgrove {
namespace {

using testing::HasSubstr;

/// A fifth is paid down: $1,200 more for the labelled home, which then saves $60 a month for 10 years.
struct Charts {
    explicit Charts(double growth = 0, int yearsInHome = 7) {
        State.Screen.ecPctDown.Text = "20.00%";
        State.Years.UtilityGrowth = growth;
        State.Assumptions.YearsInHome = static_cast<std::int16_t>(yearsInHome);
        const Insight insight(State.Screen, State);
        const YearByYear view = ComputeYears(insight);
        const EnergyGrowth growths = ComputeEnergy(view);
        Years = MakeYearsChart(view);
        Energy = MakeEnergyChart(view, growths);
        Sale = MakeSaleChart(ComputeExit(insight, view));
    }

    Session State = Testing::SimpleSession();
    ChartFigures Years;
    ChartFigures Energy;
    ChartFigures Sale;
};

TEST(YearCharts, TheCumulativeSavingsBeginWithTheExtraCash) {
    const ChartFigures chart = Charts().Years;
    ASSERT_EQ(chart.Series.size(), 1U);
    ASSERT_EQ(chart.Series[0].Values.size(), 361U);
    EXPECT_NEAR(chart.Series[0].Values[0], -1'200, 1e-6);
    EXPECT_NEAR(chart.Series[0].Values[84], 84 * 60 - 1'200, 1e-6);
    EXPECT_LT(chart.Lowest, -1'200);
}

TEST(YearCharts, TheMonthFromWhichTheBuyerIsAheadIsMarked) {
    const ChartFigures chart = Charts().Years;
    ASSERT_EQ(chart.Curves.Marks.size(), 1U);
    EXPECT_NEAR(chart.Curves.Marks[0].At, 20 / 12.0, 1e-9);
    EXPECT_NEAR(chart.Curves.Marks[0].Value, 0, 1e-6);
    EXPECT_EQ(chart.Curves.Marks[0].Text, "ahead from month 20");
    // For a screen reader: 60 x $60 - $1,200.
    EXPECT_THAT(chart.Numbers, HasSubstr("Ahead by: after 5 years $2,400, after 10 years"));
    EXPECT_THAT(chart.Numbers, HasSubstr("Marked: ahead from month 20."));
}

TEST(YearCharts, TheZeroLineHasALabel) {
    const Charts charts;
    for (const ChartFigures& chart : {charts.Years, charts.Energy, charts.Sale}) {
        const auto zero = std::ranges::find(chart.Ticks, 0.0, &ChartTick::Value);
        ASSERT_NE(zero, chart.Ticks.end()) << chart.Title;
        EXPECT_EQ(zero->Text, "even: $0");
        EXPECT_LE(chart.Lowest, 0);
        EXPECT_GE(chart.Highest, 0);
    }
}

TEST(YearCharts, TheFanHasACurveForEachRateAndStandsOutAtTheOneInForce) {
    const ChartFigures still = Charts().Energy;
    ASSERT_EQ(still.Series.size(), 7U);
    EXPECT_EQ(still.Curves.Main, 0U);
    EXPECT_EQ(still.Series[0].Name, "0% now");
    EXPECT_EQ(still.Series[6].Name, "6%");
    const ChartFigures rising = Charts(0.025).Energy;
    ASSERT_EQ(rising.Series.size(), 8U);
    EXPECT_EQ(rising.Series[7].Name, "2.5% now");
    // Between 2 % and 3 % in every year after the first.
    for (std::size_t year = 2; year < rising.Series[7].Values.size(); ++year) {
        EXPECT_GT(rising.Series[7].Values[year], rising.Series[2].Values[year]);
        EXPECT_LT(rising.Series[7].Values[year], rising.Series[3].Values[year]);
    }
    EXPECT_EQ(Charts(0.03).Energy.Curves.Main, 3U);
}

TEST(YearCharts, TheFanNamesTheNeededGrowthAndTheYearsInTheHome) {
    const ChartFigures chart = Charts().Energy;
    EXPECT_EQ(chart.Note, "no growth is needed");
    ASSERT_EQ(chart.Curves.Marks.size(), 1U);
    EXPECT_EQ(chart.Curves.Marks[0].At, 7);
    EXPECT_EQ(chart.Curves.Marks[0].Text, "0%, after 7 years: $3,840");
}

TEST(YearCharts, TheSaleIsMarkedAtTheYearsInTheHome) {
    const ChartFigures chart = Charts().Sale;
    ASSERT_EQ(chart.Series[0].Values.size(), 30U);
    EXPECT_EQ(chart.Curves.First, 1);
    // 0.94 x $6,000 of the price difference, less $1,440 that is owed more, and $3,840 saved.
    ASSERT_EQ(chart.Curves.Marks.size(), 1U);
    EXPECT_NEAR(chart.Curves.Marks[0].Value, 5'640 - 1'440 + 3'840, 1e-6);
    EXPECT_EQ(chart.Curves.Marks[0].Text, "after 7 years: $8,040");
    EXPECT_EQ(chart.Series[0].Values[6], chart.Curves.Marks[0].Value);
}

} // namespace
} // namespace Ledgrove
