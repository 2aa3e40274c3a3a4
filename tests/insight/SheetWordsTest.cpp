#include <gmock/gmock.h>

#include "insight/AnswerWords.h"
#include "insight/Exit.h"
#include "insight/OptionPairs.h"
#include "insight/Views.h"
#include "insight/YearsWords.h"
#include "tests/insight/SimpleComparison.h"

// Sentences and cells that only hold, or only read well, with certain figures.
namespace Ledgrove {
namespace {

using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// The answers of a session that stays alive.
class Answers {
public:
    explicit Answers(Session session)
        : m_session(std::move(session))
        , m_insight(m_session.Screen, m_session)
        , Views(m_insight, 10) {
        EXPECT_EQ(m_insight.Missing(), "");
    }

    std::vector<std::string> Takeaway() { return Views.TakeawayView().Sentences; }
    Sheet Breakeven() { return BreakevenSheet(m_insight, Views.BreakevenView()); }
    Sheet Sensitivity() { return SensitivitySheet(m_insight, Views.SensitivityView()); }

private:
    Session m_session;
    Insight m_insight;

public:
    InsightViews Views;
};

const std::vector<SheetCell>& RowOf(const Sheet& sheet, std::string_view caption) {
    return *std::ranges::find_if(sheet.Rows, [&](const auto& row) { return row.front().Text == caption; });
}

/// The shipped settings, 30 years at 6.5 %.
Session ShippedSession(const char* income, const char* base, const char* labelled, const char* baseBill,
                       const char* labelledBill, const char* down) {
    Session session = Testing::StartedSession();
    MainScreen& s = session.Screen;
    s.ecIncome.Text = income;
    s.ecStdHome.Text = base;
    s.ecGMHHome.Text = labelled;
    s.ecStdUtil.Text = baseBill;
    s.ecGMHUtil.Text = labelledBill;
    s.ecPctDown.Text = down;
    s.ecStdRate.Text = s.ecGMHRate.Text = "6.500%";
    return session;
}

/// $11,898 more are $99.15 a month, and the bills save $100. At $1,210 they would save $99.17.
TEST(SheetWords, LessThanAllSavingsAreNotCalledAll) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$131,898";
    Answers answers(session);
    EXPECT_THAT(answers.Takeaway(),
                Contains("It still pays each month up to a price of $132,000 ($102 more) or with "
                         "99.2% of the expected savings."));
    EXPECT_THAT(answers.Breakeven().Sentence,
                EndsWith("$1,210 a year: 99.2% of the expected savings are enough."));
    EXPECT_EQ(ShareText(1), "100%");
    EXPECT_EQ(ShareText(0.9999), "nearly 100%");
    EXPECT_EQ(ShareText(0.985), "99%");
}

/// $45 less bills for $50 more mortgage a month. Bills that rise by 20 % a year save 12.916 x $540 in 7
/// years, which is $2,775 more than 84 x $50.
TEST(SheetWords, AheadInSpiteOfALossIsCountedByMonth) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHUtil.Text = "$1,860";
    session.Years.UtilityGrowth = 0.2;
    EXPECT_THAT(Answers(session).Takeaway(),
                Contains("Counted month by month, the buyer is still ahead, by $2,775 after 7 years."));
    // $35 for $40, and $1,200 more down payment: 7.442 x $420 - 60 x $40 - $1,200 are -$475 after 5 years,
    // and each month then brings $47.
    session.Screen.ecPctDown.Text = "20.00%";
    session.Screen.ecGMHUtil.Text = "$1,980";
    EXPECT_THAT(
        Answers(session).Takeaway(),
        Contains("Counted month by month, the extra down payment of $1,200 is earned back after 5 years "
                 "and 11 months."));
}

/// No deductions exceed the standard one, so that the tax line of $11 a month would really be $0.
TEST(SheetWords, WhatOnlyTheTaxLineEarnsBackIsSaidSo) {
    const Session session = ShippedSession("$191,252", "$192,983", "$208,936", "$2,502", "$987", "20.00%");
    EXPECT_THAT(Answers(session).Takeaway(),
                Contains(HasSubstr(
                    "With the tax line as shown, the extra down payment of $3,191 is earned back after ")));
}

TEST(SheetWords, ATaxLineThatIsOffByLessThanADollarIsNearlyAsShown) {
    Session session = ShippedSession("$179,879", "$432,906", "$446,181", "$4,274", "$3,102", "0.00%");
    Testing::ChooseOptions(session, "Conventional", "Fannie Mae EEM");
    Answers answers(session);
    const TaxCheck& tax = answers.Views.TaxView();
    ASSERT_TRUE(DiffersFromShown(tax));
    ASSERT_EQ(DollarText(tax.Real), DollarText(static_cast<double>(tax.Shown)));
    EXPECT_THAT(tax.Sentence, EndsWith("a month, nearly as shown."));
    EXPECT_THAT(answers.Takeaway(),
                Contains(HasSubstr("a net of -$1; with the tax line as it would really be, -$1 as well.")));
}

/// $40 less mortgage and $50 more bills a month: 84 x -$10, and $1,200 less down payment.
TEST(SheetWords, WithLessDownPaymentTheSavingsAreNotWhatIsWorthSomething) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "20.00%";
    session.Screen.ecGMHHome.Text = "$114,000";
    session.Screen.ecGMHUtil.Text = "$3,000";
    EXPECT_THAT(
        YearsSheet(Answers(session).Views.YearsView(), FlowColumns::Main).Sentence,
        EndsWith(" With $1,200 less down payment, what the GREENMARK home costs and saves in 7 years is "
                 "worth $360 today."));
}

TEST(SheetWords, TheBestOfLossesIsTheSmallest) {
    Session session = ShippedSession("$161,000", "$479,000", "$468,000", "$3,000", "$2,900", "5.00%");
    session.Screen.ecGMHRate.Text = "7.000%";
    const std::string sentence = OptionsSheet(Answers(session).Views.OptionsView()).Sentence;
    EXPECT_THAT(sentence, HasSubstr("the smallest monthly loss"));
    EXPECT_THAT(sentence, Not(HasSubstr("left each month")));
}

/// Nothing is borrowed, so only the bills count.
TEST(SheetWords, ABillDoesNotAlsoHelpWhereNoPriceDoes) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "100.00%";
    session.Screen.ecStdUtil.Text = "$500";
    session.Screen.ecGMHUtil.Text = "$2,500";
    EXPECT_EQ(
        Answers(session).Breakeven().Sentence,
        "No lower price would make the GREENMARK home pay for itself. It would pay with a utility bill of "
        "$500 a year, $2,000 less than expected.");
}

TEST(SheetWords, OneYearIsNotOneYears) {
    Session session = Testing::SimpleSession();
    session.Assumptions.YearsInHome = 3;
    const Sheet sheet = Answers(session).Sensitivity();
    EXPECT_EQ(RowOf(sheet, "Years in the home")[1].Text, "1 year");
    EXPECT_EQ(RowOf(sheet, "Years in the home")[3].Text, "5 years");
    EXPECT_EQ(sheet.IdleWords, "does not move the monthly net");
}

TEST(SheetWords, AnEmptyFieldShowsWhatItCountsAs) {
    Session session = Testing::SimpleSession();
    session.Screen.ecMonthlyDebt.Text = session.Screen.ecPctDown.Text = session.Screen.ecGMHUtil.Text = "";
    Answers answers(session);
    EXPECT_EQ(RowOf(answers.Breakeven(), "Annual utility cost")[1].Text, "$0");
    EXPECT_EQ(RowOf(answers.Sensitivity(), "Monthly debt")[1].Text, "$0");
    EXPECT_EQ(RowOf(answers.Sensitivity(), "Down payment")[1].Text, "0.00%");
}

TEST(SheetWords, NothingGainedIsNotAheadByNothing) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$120,000";
    session.Screen.ecGMHUtil.Text = "$2,400";
    EXPECT_EQ(
        YearsSheet(Answers(session).Views.YearsView(), FlowColumns::Main).Sentence,
        "With the GREENMARK home, the buyer is never behind, and as well off as with the base home after 7 "
        "years.");
    EXPECT_EQ(AheadText(-0.4), "behind by less than a dollar");
    EXPECT_EQ(AheadText(0.4), "ahead by less than a dollar");
    EXPECT_EQ(AheadText(843), "ahead by $843");
}

TEST(SheetWords, ASmallGrowthIsNotCalledZero) {
    EXPECT_EQ(RateText(0), "0%");
    EXPECT_EQ(RateText(0.00004), "0.004%");
    EXPECT_EQ(RateText(0.0425), "4.25%");
}

/// 10 % down leave a loan of $167,999 of the $168,000 that are allowed. PMI costs nothing here.
TEST(SheetWords, MortgageInsuranceIsNoReasonWhereItDoesNotCostMore) {
    Session session = Testing::SimpleSession();
    session.Screen.ecStdHome.Text = session.Screen.ecGMHHome.Text = "$186,666";
    session.Screen.ecPctDown.Text = "20.00%";
    Answers answers(session);
    const Qualification& qualification = answers.Views.QualifyView();
    ASSERT_EQ(qualification.Std.Down.value_or(Answer{}).To, "10.00%");
    EXPECT_THAT(QualifySheet(qualification).Sentence, Not(HasSubstr("mortgage insurance")));
}

/// A sale that brings nothing leaves the balance to pay: $0.90 of a loan of $1 after a year of ten, $0.40
/// after six.
TEST(SheetWords, NobodyHasToBringZero) {
    Session session = Testing::SimpleSession();
    session.Screen.ecStdHome.Text = session.Screen.ecGMHHome.Text = "$1";
    session.Years.SellingCost = 1;
    const Insight insight(session.Screen, session);
    const Sheet sheet = ExitSheet(insight, ComputeExit(insight, ComputeYears(insight)));
    EXPECT_EQ(sheet.Rows[0][1].Text, "would have to bring $1");
    EXPECT_EQ(sheet.Rows[5][1].Text, "$0");
}

} // namespace
} // namespace Ledgrove
