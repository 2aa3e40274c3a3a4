#include "insight/Qualify.h"

#include <gtest/gtest.h>

#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

/// With ratios of 25 % and 50 %, each dollar of income allows 0.25 / 12 x 120 = $2.50 of loan.
Session QualifySession() {
    Session session = Testing::SimpleSession();
    for (LoanType& loanType : session.LoanTypes) {
        loanType.FrontRatio = 0.25F;
        loanType.BackRatio = 0.5F;
    }
    return session;
}

Qualification QualificationOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    return ComputeQualification(insight);
}

void ExpectAnswer(const std::optional<Answer>& answer, AnswerKind kind, AnswerState state, const char* to,
                  double change) {
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->Kind, kind);
    EXPECT_EQ(answer->State, state);
    EXPECT_EQ(answer->To.value_or("none"), to);
    EXPECT_EQ(answer->Change.value_or(0), change);
}

TEST(Qualify, ShowsTheRoom) {
    const Qualification result = QualificationOf(QualifySession());
    const HomeQualification& base = result.Std;
    EXPECT_TRUE(base.Qualifies);
    // $60,000 x 2.5 - $120,000.
    EXPECT_EQ(base.Margin, 30'000);
    // More than $48,000, which allows $120,000: equal amounts do not qualify.
    ExpectAnswer(base.Income, AnswerKind::Limit, AnswerState::Found, "$48,001", -11'999);
    // The back-end payment is $2,500 - debt; the loan needs $1,000 and a little.
    ExpectAnswer(base.Debt, AnswerKind::Limit, AnswerState::Found, "$1,499", 1'499);
    ExpectAnswer(base.Down, AnswerKind::Limit, AnswerState::Always, "0.00%", 0);
    ExpectAnswer(base.Price, AnswerKind::Limit, AnswerState::Found, "$149,999", 29'999);
    EXPECT_FALSE(base.Bill);
    ExpectAnswer(base.Term, AnswerKind::Limit, AnswerState::Always, "10 years", 0);
    EXPECT_EQ(result.GMH.Margin, 24'000);
}

TEST(Qualify, ShowsWhatWouldHelp) {
    Session session = QualifySession();
    session.Screen.ecIncome.Text = "$45,000"; // allows $112,500
    const HomeQualification base = QualificationOf(session).Std;
    EXPECT_FALSE(base.Qualifies);
    EXPECT_EQ(base.Margin, -7'500);
    ExpectAnswer(base.Income, AnswerKind::Nearest, AnswerState::Found, "$48,001", 3'001);
    // There is no debt to pay off.
    ExpectAnswer(base.Debt, AnswerKind::Nearest, AnswerState::Never, "none", 0);
    // 6.25 % of $120,000 is $7,500, which leaves $112,500 exactly; the next step leaves $112,488.
    ExpectAnswer(base.Down, AnswerKind::Nearest, AnswerState::Found, "6.26%", 6.26);
    ExpectAnswer(base.Price, AnswerKind::Nearest, AnswerState::Found, "$112,499", -7'501);
    ExpectAnswer(base.Rate, AnswerKind::Nearest, AnswerState::Never, "none", 0);
    // 15 years allow $168,750.
    ExpectAnswer(base.Term, AnswerKind::Nearest, AnswerState::Found, "15 years", 5);
}

TEST(Qualify, AFixedDownPaymentGoesUpToTheHomesOwnPrice) {
    Session session = QualifySession();
    session.Screen.optDownPayment = 1;
    session.Screen.ecFixedDown.Text = "$0";
    session.Screen.ecIncome.Text = "$0";
    const Qualification result = QualificationOf(session);
    ExpectAnswer(result.Std.Down, AnswerKind::Nearest, AnswerState::Never, "none", 0);
    session.Screen.ecIncome.Text = "$45,000";
    ExpectAnswer(QualificationOf(session).GMH.Down, AnswerKind::Nearest, AnswerState::Found, "$13,501",
                 13'501);
}

TEST(Qualify, TheBillCountsOnlyWhereTheSavingsRaiseTheLoan) {
    Session session = QualifySession();
    EXPECT_FALSE(QualificationOf(session).GMH.Bill);
    session.Screen.ecIncome.Text = "$45,000";
    Testing::ChooseOptions(session, "Conventional", "Fannie Mae EEM");
    const HomeQualification labelled = QualificationOf(session).GMH;
    // The savings are worth the upgrade: the payment is half of the income, or more, which allows $225,000.
    EXPECT_TRUE(labelled.Qualifies);
    // They are worth it up to savings of $6,000 / 120 = $50 a month.
    ExpectAnswer(labelled.Bill, AnswerKind::Limit, AnswerState::Found, "$1,800", 600);
    EXPECT_EQ(labelled.Bill->Edge, AnswerEdge::SavingsWorth);
}

TEST(Qualify, ALimitMayStopAtABandOfPMI) {
    Session session = QualifySession();
    session.Screen.ecPctDown.Text = "12.00%";
    session.Screen.ecIncome.Text = "$48,000"; // allows $120,000
    session.Assumptions.PMIMult2 = 0.12F;     // 1 % a month below 10 %
    const HomeQualification base = QualificationOf(session).Std;
    ExpectAnswer(base.Down, AnswerKind::Limit, AnswerState::Found, "10.00%", -2);
    EXPECT_EQ(base.Down->Edge, AnswerEdge::PMIBand);
    EXPECT_EQ(base.Down->Beyond, PMIBand::Below10);
    const Sheet sheet = QualifySheet(QualificationOf(session));
    EXPECT_NE(sheet.Sentence.find(
                  "Base home, down payment 10.00%: one step further puts the down payment below 10%, "
                  "where mortgage insurance costs more."),
              std::string::npos);
}

TEST(Qualify, TriesTheOtherOptionsOnce) {
    Session session = QualifySession();
    session.Screen.ecIncome.Text = "$45,000";
    session.LoanTypes[3].FrontRatio = 0.3F; // FHA allows $135,000
    session.LoanTypes.resize(5);            // without VA
    const Qualification result = QualificationOf(session);
    ASSERT_EQ(result.Std.Options.size(), 2U);
    EXPECT_EQ(result.Std.Options[0].Base, "FHA");
    EXPECT_TRUE(result.Std.Options[0].Qualifies);
    EXPECT_EQ(result.Std.Options[1].Base, "VA");
    EXPECT_NE(result.Std.Options[1].Missing, "");
    ASSERT_EQ(result.GMH.Options.size(), 6U);
    EXPECT_EQ(result.GMH.Options[0].Labelled, "Fannie Mae EEM");
    EXPECT_TRUE(result.GMH.Options[0].Qualifies);
    EXPECT_NE(result.GMH.Options[5].Missing, "");
}

TEST(Qualify, SaysWhoQualifies) {
    Session session = QualifySession();
    EXPECT_EQ(
        QualifySheet(QualificationOf(session)).Sentence,
        "The buyer qualifies for the base home, with room for $30,000 more loan. The buyer qualifies for "
        "the GREENMARK home, with room for $24,000 more loan.");
    session.Screen.ecIncome.Text = "$45,000";
    EXPECT_EQ(
        QualifySheet(QualificationOf(session)).Sentence,
        "The buyer does not qualify for the base home: the loan is $7,500 too large; an income of $48,001 "
        "a year would do. The buyer does not qualify for the GREENMARK home: the loan is $13,500 too "
        "large; an income of $50,401 a year would do.");
}

} // namespace
} // namespace Ledgrove
