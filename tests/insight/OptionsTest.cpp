#include "insight/Options.h"

#include <gtest/gtest.h>

#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

OptionTable OptionsOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    return ComputeOptions(insight);
}

/// The simple comparison with ratios that differ for each group: a dollar of income allows $2.50, $3 or $3.50
/// of loan, and about $2 with an EEM of Fannie Mae or Freddie Mac.
Session OptionsSession() {
    Session session = Testing::SimpleSession();
    for (std::size_t i = 0; i < session.LoanTypes.size(); ++i) {
        session.LoanTypes[i].FrontRatio = i < 3 ? 0.25F : (i < 5 ? 0.3F : 0.35F);
        session.LoanTypes[i].BackRatio = i == 1 || i == 2 ? 0.2F : 0.5F;
    }
    return session;
}

TEST(Options, HasEveryPairInTheOrderOfTheLists) {
    Session session = OptionsSession();
    Testing::ChooseOptions(session, "FHA", "FHA EEM");
    const OptionTable table = OptionsOf(session);
    const char* const pairs[][2] = {{"Conventional", "Conventional"},
                                    {"Conventional", "Fannie Mae EEM"},
                                    {"Conventional", "Freddie Mac EEM"},
                                    {"FHA", "FHA"},
                                    {"FHA", "FHA EEM"},
                                    {"VA", "VA"},
                                    {"VA", "VA EEM"}};
    ASSERT_EQ(table.Rows.size(), std::size(pairs));
    for (std::size_t i = 0; i < table.Rows.size(); ++i) {
        EXPECT_EQ(table.Rows[i].Base, pairs[i][0]);
        EXPECT_EQ(table.Rows[i].Labelled, pairs[i][1]);
    }
    EXPECT_EQ(table.Current, 4);
}

TEST(Options, FindsTheLeastIncomeOfEachHome) {
    const OptionTable table = OptionsOf(OptionsSession());
    // More than $120,000 / 2.5 and $126,000 / 2.5; VA: $120,000 / 3.5 = 34,285.71, and half a dollar of loan
    // more.
    EXPECT_EQ(table.Rows[0].Std.IncomeToQualify, 48'001);
    EXPECT_EQ(table.Rows[0].GMH.IncomeToQualify, 50'401);
    EXPECT_EQ(table.Rows[5].Std.IncomeToQualify, 34'286);
    EXPECT_EQ(table.Rows[6].Std.IncomeToQualify, 34'286);
}

TEST(Options, NoIncomeIsEnoughForALoanThatNobodyMayTake) {
    Session session = OptionsSession();
    session.LoanTypes[5].FrontRatio = 1e-9F;
    const OptionTable table = OptionsOf(session);
    EXPECT_EQ(table.Rows[5].GMH.IncomeToQualify, std::nullopt);
}

TEST(Options, TheLoanGainIsOverThePlainOptionOfTheGroup) {
    const OptionTable table = OptionsOf(OptionsSession());
    EXPECT_EQ(table.Rows[0].LoanGain, 0);
    EXPECT_EQ(table.Rows[3].LoanGain, 0);
    // FHA EEM: the same ratios, and 5 % of the base price is $6,000, which is less than the $12,000 of
    // savings.
    EXPECT_EQ(table.Rows[4].LoanGain, 6'000);
    // VA EEM: 5 % is $6,000 as well, the most that the option allows.
    EXPECT_EQ(table.Rows[6].LoanGain, 6'000);
}

TEST(Options, MarksTheBestUnlessFiveOrMoreTie) {
    const OptionTable table = OptionsOf(OptionsSession());
    // With nothing down, payment, cash and net are the same in all rows. VA allows the largest loan, VA EEM
    // $6,000 more.
    for (std::size_t i = 0; i + 1 < table.Rows.size(); ++i)
        EXPECT_TRUE(table.Rows[i].Best.empty()) << i;
    EXPECT_EQ(table.Rows[6].Best, (std::vector<BestIn>{BestIn::Room, BestIn::Income}));
}

TEST(Options, APairThatFaultsIsMissingAndDoesNotCompete) {
    Session session = OptionsSession();
    session.LoanTypes.resize(6); // without VA EEM
    session.LoanTypes[3].BackRatio = 0;
    const OptionTable table = OptionsOf(session);
    EXPECT_NE(table.Rows[3].Missing, "");
    EXPECT_NE(table.Rows[4].Missing, ""); // the base home has the plain FHA option
    EXPECT_NE(table.Rows[6].Missing, "");
    EXPECT_TRUE(table.Rows[6].Best.empty());
    EXPECT_EQ(table.Rows[5].Best, (std::vector<BestIn>{BestIn::Payment, BestIn::Cash, BestIn::Room,
                                                       BestIn::Net, BestIn::Income}));
}

TEST(Options, NobodyQualifiesWithTheMostRoom) {
    Session session = OptionsSession();
    session.Screen.ecIncome.Text = "$1,000";
    const std::string sentence = OptionsSheet(OptionsOf(session)).Sentence;
    EXPECT_EQ(sentence.find("the most room"), std::string::npos) << sentence;
    EXPECT_NE(sentence.find("the smallest shortfall"), std::string::npos) << sentence;
}

/// VA and VA EEM differ in nothing if the savings do not raise the loan.
TEST(Options, EqualRowsShareASentence) {
    Session session = OptionsSession();
    session.Screen.ecGMHUtil.Text = session.Screen.ecStdUtil.Text;
    const OptionTable table = OptionsOf(session);
    ASSERT_EQ(table.Rows[5].Best, table.Rows[6].Best);
    ASSERT_FALSE(table.Rows[5].Best.empty());
    const std::string sentence = OptionsSheet(table).Sentence;
    EXPECT_NE(sentence.find("VA / VA and VA / VA EEM have "), std::string::npos) << sentence;
}

TEST(Options, SaysWhatThePaymentLeavesOut) {
    const OptionTable table = OptionsOf(OptionsSession());
    EXPECT_EQ(table.Sentence,
              "The fees and premiums of FHA and VA loans are not in the payment. Some options "
              "show the same payment here; compare those costs as well.");
    const Sheet sheet = OptionsSheet(table);
    EXPECT_NE(sheet.Sentence.find(table.Sentence), std::string::npos);
    // The answer comes first: the stars of the table in words.
    EXPECT_EQ(sheet.Rows[6][2].Mark, CellMark::Best);
    EXPECT_NE(sheet.Sentence.find("VA / VA EEM has the most room and the least income needed"),
              std::string::npos)
        << sheet.Sentence;
    EXPECT_NE(sheet.Sentence.find("by its ratios and the energy savings together"), std::string::npos);
    EXPECT_EQ(sheet.Rows.size(), 7U);
    for (const auto& row : sheet.Rows)
        EXPECT_EQ(row.size(), sheet.Heads.size());
    EXPECT_EQ(sheet.Rows[0][0].Mark, CellMark::Current);
    EXPECT_EQ(sheet.Rows[6][2].Mark, CellMark::Best);
}

} // namespace
} // namespace Ledgrove
