#include "insight/Takeaway.h"

#include <cmath>
#include <regex>

#include <gmock/gmock.h>

#include "insight/OptionPairs.h"
#include "insight/Views.h"
#include "tests/insight/SampleComparisons.h"
#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

using Texts = std::vector<std::string>;

Texts SentencesOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    InsightViews views(insight, 10);
    return views.TakeawayView().Sentences;
}

/// The simple comparison has ratios of 28 % and 36 %, so $60,000 allow $1,400 a month and a loan of
/// $168,000.
TEST(Takeaway, SaysWhatTheHomeCostsAndSaves) {
    EXPECT_EQ(
        SentencesOf(Testing::SimpleSession()),
        (Texts{"The GREENMARK home costs $6,000 more and saves $1,200 a year in utility bills.",
               "Each month $50 more is left than with the base home, without income tax.",
               // 84 x $50
               "The buyer is ahead from the first day, by $4,200 after 7 years.",
               "It still pays each month up to a price of $132,000 ($6,000 more) or with 50% of the "
               "expected savings.",
               "The buyer qualifies for both homes, with room for $48,000 more loan for the base home and "
               "$42,000 for the GREENMARK home."}));
}

TEST(Takeaway, SaysThatNothingIsLeftAndWhatWouldHelp) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$140,000";
    const Texts sentences = SentencesOf(session);
    // $20,000 / 120 less $100 of savings.
    EXPECT_EQ(sentences[1],
              "Nothing is left each month: the GREENMARK home costs $67 more a month than the base "
              "home, without income tax.");
    EXPECT_EQ(sentences[2], "It would pay each month with a price of $132,000 ($8,000 less).");
    // 10 % of the price is not enough: $150,000 - $15,000 is more than $132,000.
    session.Screen.ecGMHHome.Text = "$150,000";
    EXPECT_TRUE(SentencesOf(session)[2].starts_with("The buyer qualifies"));
}

TEST(Takeaway, NamesWhatABuyerWhoDoesNotQualifyCanDo) {
    Session session = Testing::SimpleSession();
    session.Screen.ecIncome.Text = "$40,000"; // allows 933.33 x 120 = $112,000
    const Texts sentences = SentencesOf(session);
    ASSERT_EQ(sentences.size(), 7U);
    EXPECT_EQ(sentences[4],
              "The buyer qualifies for neither home: the mortgage of the base home is $8,000 too "
              "large, that of the GREENMARK home $14,000 too large.");
    // 93.33 % of $120,000 is $111,996; $42,857.14 x 0.28 / 12 x 120 is $120,000.
    EXPECT_EQ(sentences[5], "The buyer would qualify for the base home with a down payment of 6.67% (6.67 "
                            "points more), a price of $111,999 ($8,001 less), an income of $42,858 ($2,858 "
                            "more) or the mortgage option FHA or VA.");
    // It would take 11.12 % down or $14,001 less, which is too far.
    EXPECT_EQ(sentences[6],
              "The buyer would qualify for the GREENMARK home with an income of $45,001 ($5,001 "
              "more) or the mortgage option Fannie Mae EEM or Freddie Mac EEM.");
}

TEST(Takeaway, SaysWhichHomeTheBuyerQualifiesFor) {
    Session session = Testing::SimpleSession();
    session.Screen.ecIncome.Text = "$44,000"; // allows $123,200
    Texts sentences = SentencesOf(session);
    EXPECT_EQ(sentences[4],
              "The buyer qualifies for the base home, with room for $3,200 more loan, but not for "
              "the GREENMARK home: its mortgage is $2,800 too large.");
    EXPECT_TRUE(sentences[5].starts_with("The buyer would qualify for the GREENMARK home with "));
    EXPECT_EQ(sentences.size(), 6U);
    std::swap(session.Screen.ecStdHome, session.Screen.ecGMHHome);
    sentences = SentencesOf(session);
    EXPECT_EQ(sentences[4],
              "The buyer qualifies for the GREENMARK home, with room for $3,200 more loan, but not "
              "for the base home: its mortgage is $2,800 too large.");
}

/// Taxes, insurance, PMI or debts may be more than the ratios allow.
TEST(Takeaway, SaysThatTheOptionAllowsNoLoan) {
    Session session = Testing::SimpleSession();
    session.Screen.ecMonthlyDebt.Text = "$3,000"; // 36 % of $60,000 are $1,800 a month
    const Texts sentences = SentencesOf(session);
    EXPECT_EQ(sentences[4], "The buyer qualifies for neither home: with this income, debt, price and down "
                            "payment, the mortgage option allows no loan.");
}

/// Of $5,000 a month, 36 % less $1,810 leave nothing, while 43 % leave $340, enough for $24,000 over 10 years
/// at no interest.
TEST(Takeaway, AnOptionThatAllowsNoLoanIsNoReasonAgainstAnother) {
    Session session = Testing::SimpleSession();
    session.Screen.ecMonthlyDebt.Text = "$1,810";
    session.Screen.ecStdHome.Text = "$24,000";
    session.Screen.ecGMHHome.Text = "$25,000";
    const Texts sentences = SentencesOf(session);
    EXPECT_THAT(sentences, testing::Contains("The buyer qualifies for neither home: with this income, debt, "
                                             "price and down payment, the mortgage option allows no loan."));
    EXPECT_THAT(sentences, testing::Contains(testing::HasSubstr(" or the mortgage option FHA")));
}

TEST(Takeaway, SaysThatNoMortgageIsNeeded) {
    Session session = Testing::SimpleSession();
    session.Screen.optDownPayment = 1;
    session.Screen.ecFixedDown.Text = "$123,000";
    // The prices are $120,000 and $126,000; the largest loan is $168,000.
    EXPECT_THAT(SentencesOf(session),
                testing::Contains("The buyer qualifies for both homes: the base home needs no mortgage (the "
                                  "down payment is $3,000 more than the price), and the GREENMARK home has "
                                  "room for $165,000 more loan."));
    session.Screen.ecFixedDown.Text = "$126,000";
    EXPECT_THAT(SentencesOf(session),
                testing::Contains("The buyer qualifies for both homes: the base home needs no mortgage (the "
                                  "down payment is $6,000 more than the price), and the GREENMARK home needs "
                                  "no mortgage."));
}

TEST(Takeaway, EqualAmountsHaveWordsOfTheirOwn) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$120,000";
    session.Screen.ecGMHUtil.Text = "$2,400";
    session.Screen.ecIncome.Text = "$42,857"; // allows 999.9967 x 120 = $119,999.60, shown as $120,000
    Texts sentences = SentencesOf(session);
    EXPECT_EQ(sentences[0],
              "The GREENMARK home costs the same as the base home and has the same utility bills.");
    EXPECT_EQ(sentences[1],
              "Nothing is left each month: both homes cost the same a month, without income tax.");
    EXPECT_EQ(sentences[2], "It pays for itself at its price of $120,000, but not at a dollar more.");
    EXPECT_EQ(sentences[3],
              "The buyer qualifies for neither home: the mortgage of the base home is not less "
              "than the largest loan, that of the GREENMARK home not less than the largest loan.");
    session.Screen.ecGMHUtil.Text = "$2,399"; // $0.08 a month
    sentences = SentencesOf(session);
    EXPECT_EQ(sentences[0],
              "The GREENMARK home costs the same as the base home and saves $1 a year in utility bills.");
    EXPECT_EQ(sentences[1],
              "Each month less than a dollar more is left than with the base home, without income tax.");
}

TEST(Takeaway, WithoutSavingsThereIsNoShare) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$100,000";
    session.Screen.ecGMHUtil.Text = "$2,700";
    const Texts sentences = SentencesOf(session);
    EXPECT_EQ(sentences[0],
              "The GREENMARK home costs $20,000 less and costs $300 a year more in utility bills.");
    // $20,000 / 120 less $25: $142; $17,000 of price more would take it all.
    EXPECT_EQ(sentences[1], "Each month $142 more is left than with the base home, without income tax.");
    // 84 x $141.67
    EXPECT_EQ(sentences[2], "The buyer is ahead from the first day, by $11,900 after 7 years.");
    EXPECT_EQ(sentences[3], "It still pays each month up to a price of $117,000 ($17,000 more).");
}

TEST(Takeaway, SaysWhenAllOrNoneOfTheSavingsAreNeeded) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHHome.Text = "$132,000";
    EXPECT_EQ(SentencesOf(session)[2], "It pays for itself at its price of $132,000, but not at a dollar "
                                       "more, and only if all of the expected savings come true.");
    session.Screen.ecGMHHome.Text = "$120,000";
    EXPECT_EQ(SentencesOf(session)[3],
              "It still pays each month up to a price of $132,000 ($12,000 more), and "
              "even if none of the expected savings come true.");
}

TEST(Takeaway, NamesTheExtraDownPayment) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "20.00%";
    EXPECT_EQ(SentencesOf(session)[0],
              "The GREENMARK home costs $6,000 more, needs $1,200 more down payment and "
              "saves $1,200 a year in utility bills.");
}

/// 20 % down: $4,800 more loan costs $40 a month, the bills save $100, so $60 a month earn back $1,200 in 20
/// months.
TEST(Takeaway, SaysWhenTheExtraDownPaymentIsEarnedBack) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "20.00%";
    session.Assumptions.YearsInHome = 7;
    EXPECT_EQ(SentencesOf(session)[2],
              "The extra down payment of $1,200 is earned back after 1 year and 8 months.");
    session.Assumptions.YearsInHome = 1;
    EXPECT_EQ(SentencesOf(session)[1], "$60 more is left each month, but the extra down payment of $1,200 is "
                                       "not earned back in 1 year.");
    EXPECT_TRUE(SentencesOf(session)[2].starts_with("It still pays"));
}

/// $6,000 at 12 % are about $720 of interest a year, far less than a standard deduction of $32,200: nothing
/// is really saved, while the tabs show 20 % of it.
TEST(Takeaway, SaysWhatTheTaxLineWouldReallyBe) {
    Session session = Testing::SimpleSession();
    session.Screen.chkDoTax0 = true;
    session.Screen.ecStdRate.Text = session.Screen.ecGMHRate.Text = "12.000%";
    const Insight insight(session.Screen, session);
    InsightViews views(insight, 10);
    const TaxCheck& tax = views.TaxView();
    ASSERT_GT(std::fabs(static_cast<double>(tax.Shown) - tax.Real), 0.5);
    const std::string real =
        DollarText(static_cast<double>(insight.Record().Scenario.NetBeforeTax) + tax.Real);
    const std::string sentence = SentencesOf(session)[1];
    EXPECT_TRUE(sentence.ends_with(", with income tax included; with the tax line as it would really be, " +
                                   real + "."))
        << sentence;
}

TEST(Takeaway, ALossHasTheSameSignAsTheRealOne) {
    Session session = Testing::SimpleSession();
    session.Screen.chkDoTax0 = true;
    session.Screen.ecStdRate.Text = session.Screen.ecGMHRate.Text = "12.000%";
    session.Screen.ecGMHHome.Text = "$160,000";
    const std::string sentence = SentencesOf(session)[1];
    EXPECT_THAT(sentence,
                testing::ContainsRegex("costs (\\$[0-9]+) more a month than the base home, with income "
                                       "tax included, a net of -\\$[0-9]+; with the tax line as it "
                                       "would really be, -\\$[0-9]+\\.$"));
}

TEST(Takeaway, LessDownPaymentMakesUpForALoss) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "20.00%";
    session.Screen.ecGMHHome.Text = "$110,000";
    session.Screen.ecGMHUtil.Text = "$4,200"; // $1,800 more a year
    // 8 % less of $120,000 to pay: $66.67 a month; $150 more for utilities. $2,000 less are paid down.
    const Texts sentences = SentencesOf(session);
    EXPECT_EQ(sentences[1], "Nothing is left each month: the GREENMARK home costs $83 more a month than the "
                            "base home, without income tax.");
    // $2,000 - 84 x $83.33 is below 0, so the buyer is not ahead after 7 years.
    EXPECT_FALSE(sentences[2].starts_with("With $2,000 less down payment"));
    session.Assumptions.YearsInHome = 1;
    // $2,000 - 12 x $83.33
    EXPECT_EQ(SentencesOf(session)[2],
              "With $2,000 less down payment, the buyer is still ahead, by $1,000 after 1 year.");
}

TEST(Takeaway, APriceThatDoesNotMatterIsNotNamed) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "100.00%";
    const Texts sentences = SentencesOf(session);
    // $6,000 more down payment at $100 of savings a month.
    EXPECT_EQ(sentences[2], "The extra down payment of $6,000 is earned back after 5 years.");
    EXPECT_EQ(sentences[3], "It still pays each month even if none of the expected savings come true.");
    session.Screen.ecGMHUtil.Text = "$2,400"; // no savings, so no share
    EXPECT_EQ(SentencesOf(session).size(), 3U);
}

TEST(Takeaway, TheSheetHasARowForEachSentence) {
    const Sheet sheet = TakeawaySheet({{"One.", "Two."}});
    ASSERT_EQ(sheet.Rows.size(), 2U);
    EXPECT_EQ(sheet.Heads.size(), 1U);
    EXPECT_EQ(sheet.Rows[1][0].Text, "Two.");
}

// Each amount of a sentence, typed in, does what the sentence says.

} // namespace
} // namespace Ledgrove
