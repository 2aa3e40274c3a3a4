#include "ui/ChartFigures.h"

#include "engine/NumberText.h"
#include "engine/Recalculate.h"
#include "tests/engine/TestSession.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using Testing::SampleSession;
using Testing::ScriptedHost;
using Testing::StartedSession;

constexpr double cent = 0.01;

Session Computed(Session session) {
    ScriptedHost host;
    Module1::Recalculate(session, host);
    return session;
}

const ChartSeries& SeriesNamed(const ChartFigures& chart, const std::string& name) {
    for (const ChartSeries& series : chart.Series)
        if (series.Name == name)
            return series;
    throw std::out_of_range(name);
}

TEST(ChartFiguresTest, ThreeTabsHaveAChart) {
    EXPECT_EQ(ChartOfTab(0), std::nullopt);
    EXPECT_EQ(ChartOfTab(1), ChartKind::MonthlyCost);
    EXPECT_EQ(ChartOfTab(2), std::nullopt);
    EXPECT_EQ(ChartOfTab(3), ChartKind::Affordability);
    EXPECT_EQ(ChartOfTab(4), ChartKind::Savings);
}

// $180,000 and $186,000 over 360 months at 6.5 % / 12: $1,137.72 and $1,175.65 a month. Taxes are 0.9 % and
// insurance 0.65 % of the price, PMI 0.46 % of the loan, each divided by 12.
TEST(ChartFiguresTest, TheMonthlyCostIsStackedByItsParts) {
    const ChartFigures chart = MakeChart(ChartKind::MonthlyCost, Computed(SampleSession()));
    EXPECT_THAT(chart.Categories, ElementsAre("Base Home", "GREENMARK Home"));
    EXPECT_THAT(SeriesNamed(chart, "Principal and Interest").Values,
                ElementsAre(DoubleNear(1137.72, cent), DoubleNear(1175.65, cent)));
    EXPECT_THAT(SeriesNamed(chart, "Taxes").Values,
                ElementsAre(DoubleNear(150, cent), DoubleNear(154.5, cent)));
    EXPECT_THAT(SeriesNamed(chart, "Insurance").Values,
                ElementsAre(DoubleNear(108.33, cent), DoubleNear(111.58, cent)));
    EXPECT_THAT(SeriesNamed(chart, "PMI").Values, ElementsAre(DoubleNear(69, cent), DoubleNear(71.3, cent)));
    EXPECT_THAT(SeriesNamed(chart, "Utilities").Values,
                ElementsAre(DoubleNear(200, cent), DoubleNear(141.67, cent)));
}

TEST(ChartFiguresTest, TheStacksAddUpToTheNetMonthlyPayments) {
    const Session session = Computed(SampleSession());
    const ChartFigures chart = MakeChart(ChartKind::MonthlyCost, session);
    double base = 0;
    double labelled = 0;
    for (const ChartSeries& series : chart.Series) {
        base += series.Values[0];
        labelled += series.Values[1];
    }
    EXPECT_NEAR(base, 1665.05, cent);
    EXPECT_EQ(session.Screen.lblStdPITIU.Text, "$1,665");
    EXPECT_EQ(session.Screen.lblGMHPITIU.Text, "$1,652");
    EXPECT_NEAR(labelled, 1652, 0.5);
    EXPECT_EQ(chart.Sentence, "Monthly cost: Base Home $1,665, GREENMARK Home $1,652, $13 less.");
    EXPECT_THAT(chart.Numbers, testing::HasSubstr("Taxes: Base Home $150, GREENMARK Home $155."));
}

TEST(ChartFiguresTest, TaxSavingsArePlacedBelowZero) {
    const ChartFigures chart = MakeChart(ChartKind::MonthlyCost, Computed(SampleSession()));
    const ChartSeries& savings = SeriesNamed(chart, "Tax Savings");
    EXPECT_EQ(savings.Values[0], 0);
    EXPECT_LT(savings.Values[1], 0);
    EXPECT_LT(chart.Lowest, savings.Values[1]);
    EXPECT_GT(chart.Lowest, -10);
}

TEST(ChartFiguresTest, AdditionalTaxesAreStackedOnTop) {
    Session session = SampleSession();
    // The labelled home has the smaller loan and so the smaller interest.
    session.Screen.ecGMHHome.Text = "$150,000";
    const ChartFigures chart = MakeChart(ChartKind::MonthlyCost, Computed(session));
    EXPECT_GT(SeriesNamed(chart, "Additional Taxes").Values[1], 0);
    EXPECT_EQ(chart.Lowest, 0);
}

TEST(ChartFiguresTest, WithoutTaxesThereAreNoTaxSavings) {
    Session session = SampleSession();
    session.Screen.chkDoTax0 = false;
    const ChartFigures chart = MakeChart(ChartKind::MonthlyCost, Computed(session));
    for (const ChartSeries& series : chart.Series)
        EXPECT_THAT(series.Name, testing::AllOf(testing::Ne("Tax Savings"), testing::Ne("Additional Taxes")));
    EXPECT_THAT(chart.Numbers, testing::Not(testing::HasSubstr("Tax Savings")));
}

TEST(ChartFiguresTest, TaxSavingsReadAsInTheTable) {
    Session session = Computed(SampleSession());
    EXPECT_EQ(session.Screen.lbltaxsavingstext.Text, "Tax Savings");
    EXPECT_THAT(session.Screen.lblTaxSavMo.Text, testing::StartsWith("$"));
    EXPECT_THAT(MakeChart(ChartKind::MonthlyCost, session).Numbers,
                testing::HasSubstr("Tax Savings: Base Home $0, GREENMARK Home " +
                                   session.Screen.lblTaxSavMo.Text + '.'));
    session.Screen.ecGMHHome.Text = "$150,000";
    session = Computed(session);
    EXPECT_THAT(session.Screen.lblTaxSavMo.Text, testing::StartsWith("-$"));
    EXPECT_THAT(MakeChart(ChartKind::MonthlyCost, session).Numbers,
                testing::HasSubstr("Additional Taxes: Base Home $0, GREENMARK Home " +
                                   session.Screen.lblTaxSavMo.Text + '.'));
}

TEST(ChartFiguresTest, TheMortgageIsNextToTheMaximumLoan) {
    const Session session = Computed(SampleSession());
    const ChartFigures chart = MakeChart(ChartKind::Affordability, session);
    EXPECT_THAT(SeriesNamed(chart, "Mortgage Amount").Values, ElementsAre(180000, 186000));
    EXPECT_EQ(session.Screen.lblStdMaxHome.Text, "$242,484");
    EXPECT_EQ(chart.Sentence,
              "With the Base Home the mortgage of $180,000 is within the maximum loan of $242,484. With "
              "the GREENMARK Home the mortgage of $186,000 is within the maximum loan of $267,880.");
}

TEST(ChartFiguresTest, TheDescriptionNamesALoanThatDoesNotQualify) {
    Session session = SampleSession();
    session.Screen.ecIncome.Text = "$30,000";
    const ChartFigures chart = MakeChart(ChartKind::Affordability, Computed(session));
    EXPECT_THAT(chart.Sentence,
                testing::HasSubstr("With the Base Home the mortgage of $180,000 is not within"));
}

// The debt leaves nothing for a payment: the maximum loan is negative.
TEST(ChartFiguresTest, ANegativeMaximumLoanIsDrawnBelowZero) {
    Session session = SampleSession();
    session.Screen.ecMonthlyDebt.Text = "$5,000";
    const ChartFigures chart = MakeChart(ChartKind::Affordability, Computed(session));
    const double loan = SeriesNamed(chart, "Maximum Loan Value").Values[0];
    EXPECT_LT(loan, 0);
    EXPECT_LT(chart.Lowest, loan);
    EXPECT_GT(chart.Highest, 186000);
    EXPECT_LE(chart.Ticks.front().Value, 0);
}

/// The same sum month by month: each month's interest, then its payment.
double PutAside(double payment, double yearlyRate, int years) {
    double sum = 0;
    for (int month = 0; month < years * 12; ++month)
        sum = sum * (1 + yearlyRate / 12) + payment;
    return sum;
}

TEST(ChartFiguresTest, SavingsGrowMonthByMonth) {
    const Session session = Computed(SampleSession());
    const ChartFigures chart = MakeChart(ChartKind::Savings, session);
    const auto& values = chart.Series.front().Values;
    ASSERT_EQ(values.size(), 31U);
    const auto net = static_cast<double>(session.Scenario.NetMonthlyCashFlow);
    EXPECT_NEAR(net, 13.2, 0.1);
    for (const int year : {0, 1, 7, 10, 30})
        EXPECT_NEAR(values[static_cast<std::size_t>(year)], PutAside(net, 0.065, year), 0.05) << year;
}

TEST(ChartFiguresTest, TheYearsOfTheSummaryAreMarked) {
    Session session = SampleSession();
    session.Assumptions.YearsInHome = 12;
    const ChartFigures chart = MakeChart(ChartKind::Savings, Computed(session));
    ASSERT_EQ(chart.Marks.size(), 3U);
    EXPECT_EQ(chart.Marks[0].Year, 7);
    EXPECT_EQ(chart.Note, "");
    EXPECT_EQ(chart.Marks[0].Text, "7 Years: $1,399");
    EXPECT_EQ(chart.Marks[1].Year, 12);
    EXPECT_EQ(chart.Marks[2].Text, "30 Years: $14,600");
    EXPECT_THAT(chart.Sentence, testing::HasSubstr("$1,399 after 7 years"));
    EXPECT_THAT(chart.Sentence, testing::HasSubstr("after 12 years in the home"));
}

TEST(ChartFiguresTest, AYearIsMarkedOnce) {
    const ChartFigures chart = MakeChart(ChartKind::Savings, Computed(SampleSession()));
    ASSERT_EQ(chart.Marks.size(), 2U);
    EXPECT_EQ(chart.Marks[0].Year, 7);
    EXPECT_EQ(chart.Marks[1].Year, 30);
}

TEST(ChartFiguresTest, OneYearIsInTheSingular) {
    Session session = SampleSession();
    session.Assumptions.YearsInHome = 1;
    const ChartFigures chart = MakeChart(ChartKind::Savings, Computed(session));
    EXPECT_THAT(chart.Marks.front().Text, testing::StartsWith("1 Year: $"));
    EXPECT_THAT(chart.Sentence, testing::HasSubstr("after 1 year in the home"));
}

TEST(ChartFiguresTest, YearsBeyondTheChartAreInItsNoteAndDescription) {
    Session session = SampleSession();
    session.Assumptions.YearsInHome = 35;
    session = Computed(session);
    const ChartFigures chart = MakeChart(ChartKind::Savings, session);
    EXPECT_EQ(chart.Marks.size(), 2U);
    const std::string amount = Module1::MoneyText(session.Scenario.SavingsAfterYearsInHome);
    EXPECT_EQ(chart.Note, "35 Years: " + amount);
    EXPECT_THAT(chart.Sentence, testing::HasSubstr(amount + " after 35 years in the home"));
}

TEST(ChartFiguresTest, LossesAreBelowZero) {
    Session session = SampleSession();
    session.Screen.ecGMHUtil.Text = "$2,400";
    const ChartFigures chart = MakeChart(ChartKind::Savings, Computed(session));
    EXPECT_LT(chart.Marks.back().Value, 0);
    EXPECT_LT(chart.Lowest, chart.Marks.back().Value);
    EXPECT_GE(chart.Highest, 0);
}

TEST(ChartFiguresTest, AnUncomputableFigureIsDrawnAsZero) {
    Session session = Computed(SampleSession());
    session.GMHCase.IntRate = 1e30F;
    const ChartFigures chart = MakeChart(ChartKind::Savings, session);
    for (const double value : chart.Series.front().Values)
        EXPECT_EQ(value, 0);
}

TEST(ChartFiguresTest, AnEmptyScreenHasAChartOfZeros) {
    for (const ChartKind kind : {ChartKind::MonthlyCost, ChartKind::Affordability, ChartKind::Savings}) {
        const ChartFigures chart = MakeChart(kind, Computed(StartedSession()));
        EXPECT_EQ(chart.Lowest, 0);
        EXPECT_GT(chart.Highest, 0);
        EXPECT_GE(chart.Ticks.size(), 2U);
    }
}

std::vector<std::string> TickTexts(double lowest, double highest, int mostSteps) {
    ChartFigures chart;
    SetScale(chart, lowest, highest, mostSteps);
    std::vector<std::string> texts;
    for (const ChartTick& tick : chart.Ticks)
        texts.push_back(tick.Text);
    return texts;
}

TEST(ChartScaleTest, StepsAreRound) {
    EXPECT_THAT(TickTexts(0, 1665, 5), ElementsAre("$0", "$500", "$1,000", "$1,500", "$2,000"));
    EXPECT_THAT(TickTexts(0, 267880, 5), ElementsAre("$0", "$100,000", "$200,000", "$300,000"));
    EXPECT_THAT(TickTexts(0, 100, 5), ElementsAre("$0", "$20", "$40", "$60", "$80", "$100"));
    EXPECT_THAT(TickTexts(0, 16790, 3), ElementsAre("$0", "$10,000", "$20,000"));
    EXPECT_THAT(TickTexts(0, 0, 5), ElementsAre("$0", "$1"));
    // Steps of $2.50 would be written as $3 and $5.
    EXPECT_THAT(TickTexts(0, 10, 4), ElementsAre("$0", "$5", "$10"));
    EXPECT_THAT(TickTexts(0, 100, 4), ElementsAre("$0", "$25", "$50", "$75", "$100"));
}

TEST(ChartScaleTest, ValuesBelowZeroGetOnlyTheSpaceTheyNeed) {
    ChartFigures chart;
    SetScale(chart, -3, 1665, 5);
    EXPECT_NEAR(chart.Lowest, -3.15, 1e-9);
    EXPECT_EQ(chart.Ticks.front().Text, "$0");
    SetScale(chart, -14600, 0, 3);
    EXPECT_EQ(chart.Highest, 0);
    EXPECT_EQ(chart.Ticks.front().Text, "-$15,000");
    EXPECT_EQ(chart.Ticks.back().Text, "$0");
}

} // namespace
} // namespace Ledgrove
