#include "insight/TaxCheck.h"

#include <gmock/gmock.h>

#include "engine/FinancialFunctions.h"
#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

TaxCheck TaxOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    return ComputeTaxCheck(insight, ComputeYears(insight));
}

/// Homes at $1,000,000 and $1,200,000 with nothing down, at 6 % over 30 years, 1 % of property tax; the
/// income is in the bracket of 22 %.
Session LargeSession() {
    Session session = Testing::SimpleSession();
    Testing::ChooseTerm(session, 30);
    MainScreen& s = session.Screen;
    s.ecIncome.Text = "$200,000";
    s.ecStdHome.Text = "$1,000,000";
    s.ecGMHHome.Text = "$1,200,000";
    s.ecStdRate.Text = s.ecGMHRate.Text = "6.000%";
    s.chkDoTax0 = true;
    session.Assumptions.RealEstateTaxPct = 1;
    return session;
}

double FirstYearInterest(double loan) {
    double interest = 0;
    for (int month = 1; month <= 12; ++month)
        interest += Module1::IPMT(0.06 / 12, month, 360, -loan);
    return interest;
}

TEST(TaxCheck, CountsInterestUpToTheCapAndTaxesUpToTheirs) {
    Session session = LargeSession();
    session.Years.StateTax = 5'000;
    session.Years.SaltCap = 16'000;
    session.Years.OtherDeductions = 300;
    const TaxCheck tax = TaxOf(session);
    const double stdInterest = FirstYearInterest(1'000'000);
    const double gmhInterest = FirstYearInterest(1'200'000);
    EXPECT_NEAR(tax.Std.Interest, stdInterest, 0.01);
    // $10,000 + $5,000 is below the cap of $16,000, $12,000 + $5,000 is not.
    EXPECT_NEAR(tax.Std.Itemized, stdInterest * 0.75 + 15'000 + 300, 0.01);
    EXPECT_NEAR(tax.GMH.Itemized, gmhInterest * 0.625 + 16'000 + 300, 0.01);
    EXPECT_NEAR(tax.Std.Benefit, (stdInterest * 0.75 + 15'300 - 32'200) * 0.22, 0.01);
    EXPECT_NEAR(tax.Real, (tax.GMH.Benefit - tax.Std.Benefit) / 12, 1e-9);
    EXPECT_TRUE(tax.Std.Itemizes);
    EXPECT_THAT(tax.Sentence,
                HasSubstr("The deductions of both homes exceed the standard deduction of $32,200 "
                          "for a couple filing jointly"));
}

TEST(TaxCheck, SaysWhenTheTaxLineWouldReallyBe0) {
    Session session = LargeSession();
    session.Years.StandardDeduction = 100'000;
    const TaxCheck tax = TaxOf(session);
    EXPECT_EQ(tax.Std.Benefit, 0);
    EXPECT_EQ(tax.Real, 0);
    EXPECT_FALSE(tax.Std.Itemizes);
    EXPECT_FALSE(tax.GMH.Itemizes);
    EXPECT_GT(tax.Shown, 100);
    EXPECT_THAT(tax.Sentence,
                HasSubstr("Neither home's deductions exceed the standard deduction of $100,000 in "
                          "the settings"));
    EXPECT_THAT(tax.Sentence, HasSubstr("would really be $0 a month, not the $"));
}

TEST(TaxCheck, SaysWhoseTheStandardDeductionIs) {
    Session session = LargeSession();
    session.Years.StandardDeduction = 16'100;
    EXPECT_THAT(TaxOf(session).Sentence, HasSubstr("$16,100 for a single filer (tax year 2026)"));
    session.Years.StandardDeduction = 24'150;
    EXPECT_THAT(TaxOf(session).Sentence, HasSubstr("$24,150 for a head of household (tax year 2026)"));
}

TEST(TaxCheck, TheNoteNamesTheOtherSettings) {
    Session session = LargeSession();
    session.Years.StateTax = 5'000;
    session.Years.OtherDeductions = 300;
    EXPECT_EQ(
        TaxCheckSheet(TaxOf(session)).Note,
        "This assumes $5,000 of state income tax and $300 of other deductions a year. At most $40,400 of "
        "state and local taxes can be deducted, and the interest on at most $750,000 of a loan.");
}

TEST(TaxCheck, SaysWhichHomeItemizes) {
    Session session = LargeSession();
    // $44,760 of interest and $10,000 of tax; $44,760 and $12,000.
    session.Years.StandardDeduction = 55'500;
    const TaxCheck tax = TaxOf(session);
    EXPECT_FALSE(tax.Std.Itemizes);
    EXPECT_TRUE(tax.GMH.Itemizes);
    EXPECT_THAT(tax.Sentence, HasSubstr("Only the deductions of the GREENMARK home exceed"));
}

TEST(TaxCheck, UsesTheBracketsRateAlsoWithoutTaxes) {
    Session session = LargeSession();
    const double real = TaxOf(session).Real;
    session.Screen.chkDoTax0 = false;
    const TaxCheck tax = TaxOf(session);
    EXPECT_EQ(tax.Shown, 0);
    EXPECT_EQ(tax.Real, real);
    EXPECT_NE(real, 0);
}

TEST(TaxCheck, AgreesWithAShown0) {
    Session session = Testing::SimpleSession();
    EXPECT_THAT(TaxOf(session).Sentence,
                EndsWith("would really be $0 a month; the tabs leave it out, because "
                         "income tax is not included."));
    session.Screen.chkDoTax0 = true;
    EXPECT_THAT(TaxOf(session).Sentence, EndsWith("would really be $0 a month, as shown."));
}

TEST(TaxCheck, TheSheetHasBothHomes) {
    const Sheet sheet = TaxCheckSheet(TaxOf(LargeSession()));
    ASSERT_EQ(sheet.Rows.size(), 4U);
    EXPECT_EQ(sheet.Rows[2][1].Text, "$32,200");
}

} // namespace
} // namespace Ledgrove
