#include "insight/Breakeven.h"

#include <cmath>

#include <gtest/gtest.h>

#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

Breakeven BreakevenOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    return ComputeBreakeven(insight);
}

std::string SentenceOf(const Session& session) {
    const Insight insight(session.Screen, session);
    return BreakevenSheet(insight, ComputeBreakeven(insight)).Sentence;
}

void ExpectAnswer(const std::optional<Answer>& answer, AnswerKind kind, AnswerState state, const char* to,
                  double change) {
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->Kind, kind);
    EXPECT_EQ(answer->State, state);
    EXPECT_EQ(answer->To.value_or("none"), to);
    EXPECT_EQ(answer->Change.value_or(0), change);
}

TEST(Breakeven, LimitsEndWhereNothingIsLeft) {
    const Breakeven result = BreakevenOf(Testing::SimpleSession());
    // $100 of savings pay for 100 x $120 of price: $120,000 + $12,000.
    ExpectAnswer(result.Price, AnswerKind::Limit, AnswerState::Found, "$132,000", 6'000);
    ExpectAnswer(result.PriceBeforeTax, AnswerKind::Limit, AnswerState::Found, "$132,000", 6'000);
    ExpectAnswer(result.SavingsPrice, AnswerKind::Limit, AnswerState::Found, "$132,000", 6'000);
    // The upgrade costs $50 a month, $600 a year: $2,400 - $600, and half of the saving of $1,200.
    ExpectAnswer(result.Bill, AnswerKind::Limit, AnswerState::Found, "$1,800", 600);
    EXPECT_EQ(result.SavingsShare, 0.5);
}

TEST(Breakeven, TheRateMayRiseUntilThePaymentIsTheSavings) {
    // $126,000 in 120 payments of $1,050 + $50: the rate at which 1 - (1 + i)^-120 = 126000 / 1100 x i.
    const auto payment = [](double percent) {
        const double i = percent / 1200;
        return 126'000 * i / (1 - std::pow(1 + i, -120));
    };
    const auto rate = BreakevenOf(Testing::SimpleSession()).Rate;
    ASSERT_TRUE(rate && rate->State == AnswerState::Found);
    EXPECT_LE(payment(rate->ToValue), 1100.0001);
    EXPECT_GT(payment(rate->ToValue + 0.001), 1100.0);
}

TEST(Breakeven, NearestsBeginWhereItPays) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$140,000";
    const Breakeven result = BreakevenOf(session);
    ExpectAnswer(result.Price, AnswerKind::Nearest, AnswerState::Found, "$132,000", -8'000);
    // $20,000 / 120 = $166.67 a month, $2,000 a year: $2,400 - $2,000.
    ExpectAnswer(result.Bill, AnswerKind::Nearest, AnswerState::Found, "$400", -800);
    // $2,000 of the expected $1,200.
    EXPECT_NEAR(result.SavingsShare.value_or(0), 2'000.0 / 1'200, 1e-12);
    // The rate is 0 already.
    ExpectAnswer(result.Rate, AnswerKind::Nearest, AnswerState::Never, "none", 0);
    EXPECT_EQ(SentenceOf(session),
              "The GREENMARK home does not pay for itself at its price now. It would at "
              "$132,000, $8,000 less. It would also pay with a utility bill of $400 a year, "
              "$800 less than expected.");
}

TEST(Breakeven, NotEvenABillOfZeroWouldDo) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$140,000";
    session.Screen.ecStdUtil.Text = "$1,000";
    session.Screen.ecGMHUtil.Text = "$900";
    const Breakeven result = BreakevenOf(session);
    ExpectAnswer(result.Bill, AnswerKind::Nearest, AnswerState::Never, "none", 0);
    EXPECT_EQ(result.SavingsShare, std::nullopt);
    EXPECT_TRUE(SentenceOf(session).ends_with("Not even a bill of $0 would do."));
}

TEST(Breakeven, WithoutALoanThePriceDoesNotMatter) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "100.00%";
    const Breakeven result = BreakevenOf(session);
    ExpectAnswer(result.Price, AnswerKind::Limit, AnswerState::Always, "$1,260,000", 1'134'000);
    ExpectAnswer(result.Rate, AnswerKind::Limit, AnswerState::Always, "25.000%", 25);
    // Until the bill is the base home's.
    ExpectAnswer(result.Bill, AnswerKind::Limit, AnswerState::Found, "$2,400", 1'200);
    EXPECT_EQ(result.SavingsShare, 0);
}

TEST(Breakeven, NoSavingHasNoShare) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$100,000";
    session.Screen.ecGMHUtil.Text = "$2,400";
    const Breakeven result = BreakevenOf(session);
    // $20,000 / 120 x 12 = $2,000 a year may go into bills.
    ExpectAnswer(result.Bill, AnswerKind::Limit, AnswerState::Found, "$4,400", 2'000);
    EXPECT_EQ(result.SavingsShare, std::nullopt);
}

TEST(Breakeven, ALimitMayStandAtTheValueNow) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "132000"; // as typed, not yet formatted
    const Breakeven result = BreakevenOf(session);
    ExpectAnswer(result.Price, AnswerKind::Limit, AnswerState::Found, "132000", 0);
}

/// With an FHA EEM the down payment of 50 % is taken from the base price while the savings are worth the
/// upgrade, and from the labelled price beyond. The loan is then smaller, so it pays again: a search that
/// only halved the range would miss the first end.
TEST(Breakeven, StopsAtTheFirstEndWhereTheDownPaymentChanges) {
    Session session = Testing::SimpleSession();
    Testing::ChooseOptions(session, "FHA", "FHA EEM");
    session.Screen.ecPctDown.Text = "50.00%";
    session.Assumptions.UsePVVars = true;
    session.Assumptions.PVTerm = 11; // a present value of 132 x $100 = $13,200
    const Breakeven result = BreakevenOf(session);
    // Loans: base $60,000, labelled price - $60,000: $100 a month pays for $12,000 more.
    ExpectAnswer(result.Price, AnswerKind::Limit, AnswerState::Found, "$132,000", 6'000);
    ExpectAnswer(result.SavingsPrice, AnswerKind::Limit, AnswerState::Found, "$133,200", 7'200);
    // Beyond it, half of the price: $133,201 / 2 / 120 = $555.00, which is less than $500 + $100.
    Session beyond = session;
    beyond.Screen.ecGMHHome.Text = "$133,201";
    const Insight there(beyond.Screen, beyond);
    EXPECT_GT(there.ShownNet(there.Record()), 0);
}

TEST(Breakeven, SaysHowFarItPays) {
    EXPECT_EQ(
        SentenceOf(Testing::SimpleSession()),
        "The GREENMARK home pays for itself up to a price of $132,000, $6,000 more than now. Its utility "
        "bill may be as high as $1,800 a year: 50% of the expected savings are enough.");
}

TEST(Breakeven, SaysThatNoSavingIsNeeded) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$120,000";
    EXPECT_TRUE(
        SentenceOf(session).ends_with("Its utility bill may be as high as $2,400 a year: it pays even "
                                      "if none of the expected savings come true."))
        << SentenceOf(session);
}

TEST(Breakeven, IsMissingWithoutPricesOrOptions) {
    Session session = Testing::SimpleSession();
    session.Screen.ecStdHome.Text = "";
    EXPECT_EQ(Insight(session.Screen, session).Missing(), "Enter the price of the base home.");
    session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$0";
    EXPECT_EQ(Insight(session.Screen, session).Missing(), "Enter the price of the GREENMARK home.");
    session = Testing::SimpleSession();
    session.Screen.cboGMHMortOption.Selected = -1;
    EXPECT_EQ(Insight(session.Screen, session).Missing(), "Choose a mortgage option for the GREENMARK home.");
    session = Testing::SimpleSession();
    session.LoanTypes.clear();
    EXPECT_NE(Insight(session.Screen, session).Missing(), "");
}

} // namespace
} // namespace Ledgrove
