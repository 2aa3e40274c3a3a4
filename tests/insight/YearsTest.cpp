#include "insight/Years.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "engine/FinancialFunctions.h"
#include "tests/insight/SampleComparisons.h"
#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::Not;

YearByYear YearsOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    return ComputeYears(insight);
}

/// A fifth is paid down: $1,200 more for the labelled home, which then costs $40 more a month and saves $100.
Session PaidDownSession() {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "20.00%";
    return session;
}

TEST(Years, ALoanIsPaidOffAsPublished) {
    const HomePlan plan = PlanOfLoan(180'000, 0.0425 / 12, 360);
    double interest = 0;
    for (int month = 1; month <= 60; ++month)
        interest += MonthOf(plan, month, 1, 1).Interest;
    EXPECT_NEAR(interest, 36583.3621, 5e-5);
    EXPECT_NEAR(plan.BalanceAfter(60), 163453.8539, 5e-5);
    EXPECT_EQ(plan.BalanceAfter(360), 0);
    EXPECT_NEAR(PlanOfLoan(100'000, 0.04 / 12, 360).Payment, 477.42, 0.005);
}

TEST(Years, TheBalanceKeepsItsDigitsAtAHighRate) {
    // Forwards, an error of the 17th digit would grow by 1.1^360, which is 10^14.
    const HomePlan plan = PlanOfLoan(100'000, 0.1, 360);
    for (const int month : {100, 359})
        EXPECT_NEAR(plan.BalanceAfter(month), Module1::UnpaidBalance(0.1, month, 360, 100'000), 1e-7);
}

void ExpectOneHomeAddsUp(const YearByYear& years, const HomePlan& plan, HomeFlow FlowRow::*home) {
    const double loan = plan.Balances.front();
    HomeFlow all;
    for (const FlowRow& year : years.Years) {
        const HomeFlow& flow = year.*home;
        AddMonth(all, flow);
        EXPECT_NEAR(flow.Cost,
                    flow.Interest + flow.Principal + flow.PMI + flow.Tax + flow.Insurance + flow.Utilities -
                        flow.TaxEffect,
                    1e-9 * (1 + std::fabs(flow.Cost) + loan));
    }
    EXPECT_NEAR(all.Principal, loan, 1e-9 * (1 + loan));
    EXPECT_EQ(all.Balance, 0);
}

void ExpectFirstMonthOfRecord(const YearByYear& years, const Insight& insight, HomeCode code) {
    const HomeCase& record = insight.Record().Home(code);
    if (record.PMIMonthly != 0 || record.LoanAmount < 0)
        return;
    const HomePlan& plan = code == HomeCode::GMH ? years.GMH : years.Std;
    const HomeFlow& first = code == HomeCode::GMH ? years.Months[0].GMH : years.Months[0].Std;
    // The record adds up singles, which have 7 digits.
    const double pitiu = record.PITIU;
    EXPECT_NEAR(first.Cost, pitiu - plan.Balances[0] * plan.Rate * plan.TaxRate, 1e-6 * (1 + pitiu));
}

TEST(Years, TheSumsHold) {
    Testing::Random random(20);
    int answered = 0;
    for (int round = 0; round < 2'000; ++round) {
        const Session session = Testing::RandomInsightSession(random);
        const Insight insight(session.Screen, session);
        if (!insight.Missing().empty())
            continue;
        const YearByYear years = ComputeYears(insight);
        ExpectOneHomeAddsUp(years, years.Std, &FlowRow::Std);
        ExpectOneHomeAddsUp(years, years.GMH, &FlowRow::GMH);
        ExpectFirstMonthOfRecord(years, insight, HomeCode::Std);
        ExpectFirstMonthOfRecord(years, insight, HomeCode::GMH);
        double sum = -static_cast<double>(insight.Record().Scenario.ExtraCashToday);
        for (const FlowRow& year : years.Years) {
            sum += year.Saving;
            EXPECT_NEAR(year.Cumulative, sum, 1e-6 * (1 + std::fabs(sum)));
            EXPECT_NEAR(year.Saving, year.Std.Cost - year.GMH.Cost, 1e-6 * (1 + year.Std.Cost));
        }
        ASSERT_FALSE(testing::Test::HasFailure()) << round;
        ++answered;
    }
    EXPECT_GT(answered, 1'500);
}

TEST(Years, HaveARowForEachYearOfTheTermAndAtLeast30) {
    Session session = Testing::SimpleSession();
    EXPECT_EQ(YearsOf(session).Years.size(), 30U);
    Testing::ChooseTerm(session, 40);
    EXPECT_EQ(YearsOf(session).Years.size(), 40U);
}

TEST(Years, NothingIsPaidForTheLoanAfterItsTerm) {
    const YearByYear years = YearsOf(Testing::SimpleSession());
    // $120,000 in 10 years, and a bill of $2,400.
    EXPECT_NEAR(years.Years[9].Std.Cost, 12'000 + 2'400, 1e-9);
    EXPECT_NEAR(years.Years[10].Std.Cost, 2'400, 1e-9);
}

TEST(Years, BillsAndTaxesGrowEachYear) {
    Session session = Testing::SimpleSession();
    session.Assumptions.RealEstateTaxPct = 1;
    session.Assumptions.InsurancePct = 0.5F;
    session.Years.UtilityGrowth = 0.1;
    session.Years.HomeGrowth = 0.2;
    const YearByYear years = YearsOf(session);
    EXPECT_NEAR(years.Years[0].Std.Utilities, 2'400, 1e-9);
    EXPECT_NEAR(years.Years[2].Std.Utilities, 2'400 * 1.1 * 1.1, 1e-9);
    EXPECT_NEAR(years.Years[2].Std.Tax, 1'200 * 1.2 * 1.2, 1e-9);
    EXPECT_NEAR(years.Years[2].Std.Insurance, 600 * 1.2 * 1.2, 1e-9);
}

/// A tenth is paid down: $108,000 of $120,000 is lent, and the premium is $90 a month.
Session InsuredSession(int term) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "10.00%";
    session.Assumptions.PMIMult3 = 0.01F;
    Testing::ChooseTerm(session, term);
    return session;
}

TEST(Years, OrdinaryInsuranceEndsAt78PercentOfThePrice) {
    Session session = InsuredSession(10);
    // The balance falls by $900 a month and is $93,600 = 78 % of $120,000 before month 17.
    YearByYear years = YearsOf(session);
    EXPECT_EQ(years.Std.PMIEnd, 17);
    EXPECT_NEAR(years.Months[15].Std.PMI, 90, 1e-5);
    EXPECT_EQ(years.Months[16].Std.PMI, 0);
    EXPECT_NEAR(years.Years[1].Std.PMI, 4 * 90, 1e-4);
    Testing::ChooseOptions(session, "VA", "VA");
    EXPECT_EQ(YearsOf(session).Std.PMIEnd, 17);
    // 90 % less 48 of 360 payments are 78 %, whatever the price.
    Testing::ChooseTerm(session, 30);
    for (const char* price : {"$229,760", "$150,010", "$333,330", "$81,370"}) {
        session.Screen.ecStdHome.Text = price;
        EXPECT_EQ(YearsOf(session).Std.PMIEnd, 49) << price;
    }
}

TEST(Years, TheFHAsPremiumEndsAfter11YearsOrWithTheLoan) {
    Session session = InsuredSession(30);
    Testing::ChooseOptions(session, "FHA", "FHA");
    EXPECT_EQ(YearsOf(session).Std.PMIEnd, 133);
    session.Assumptions.PMIMult2 = 0.01F;
    session.Screen.ecPctDown.Text = "9.99%"; // $12 more than 90 %
    EXPECT_EQ(YearsOf(session).Std.PMIEnd, 361);
    session = InsuredSession(10);
    Testing::ChooseOptions(session, "FHA", "FHA");
    EXPECT_EQ(YearsOf(session).Std.PMIEnd, 121);
}

TEST(Years, AnUpgradeThatTheLoanFinancesDoesNotProlongTheFHAsPremium) {
    Session session = InsuredSession(30);
    Testing::ChooseOptions(session, "FHA", "FHA EEM");
    // $12,000 of $126,000 is paid down, less than a tenth; without the upgrade of $6,000 it is a tenth.
    EXPECT_EQ(YearsOf(session).GMH.PMIEnd, 133);
}

TEST(Years, WithoutPremiumThereIsNoInsurance) {
    EXPECT_EQ(YearsOf(Testing::SimpleSession()).Std.PMIEnd, 1);
    Session session = InsuredSession(10);
    session.Screen.ecPctDown.Text = "20.00%";
    EXPECT_EQ(YearsOf(session).Std.PMIEnd, 1);
}

TEST(Years, TheBuyerIsAheadOnceTheExtraCashIsEarned) {
    Session session = PaidDownSession();
    // -$1,200 + 20 x $60.
    EXPECT_EQ(YearsOf(session).Ahead, 20);
    session.Assumptions.YearsInHome = 1;
    EXPECT_EQ(YearsOf(session).Ahead, std::nullopt);
    EXPECT_EQ(YearsOf(Testing::SimpleSession()).Ahead, 0);
}

TEST(Years, CountAtLeastAYearInTheHomeAndAtMostTheRows) {
    Session session = PaidDownSession();
    session.Assumptions.YearsInHome = 0;
    EXPECT_EQ(YearsOf(session).InHome, 1);
    session.Assumptions.YearsInHome = 100;
    EXPECT_EQ(YearsOf(session).InHome, 30);
}

TEST(Years, ReturnsAreThoseOfTheExtraCash) {
    const YearByYear years = YearsOf(PaidDownSession());
    // At the labelled home's rate of 0: 84 x $60 - $1,200.
    EXPECT_NEAR(years.NPV.value_or(0), 3'840, 1e-6);
    ASSERT_TRUE(years.IRROnExtraCash);
    EXPECT_NEAR(Module1::PV(*years.IRROnExtraCash / 12, 84, -60), 1'200, 1e-6);
    // The sale brings 94 % of $6,000 more, of which three tenths of $4,800 are still owed.
    ASSERT_TRUE(years.IRRWithSale);
    const double rate = *years.IRRWithSale / 12;
    EXPECT_NEAR(Module1::PV(rate, 84, -60) + (5'640 - 1'440) / std::pow(1 + rate, 84), 1'200, 1e-6);
}

TEST(Years, AreWorthLessTodayAtTheRateOfThePresentValue) {
    Session session = PaidDownSession();
    session.Assumptions.UsePVVars = true;
    session.Assumptions.PVRate = 0.06F;
    EXPECT_NEAR(YearsOf(session).NPV.value_or(0), Module1::PV(0.06 / 12, 84, -60) - 1'200, 1e-4);
}

TEST(Years, WithoutExtraCashOrGainThereIsNoReturn) {
    EXPECT_FALSE(YearsOf(Testing::SimpleSession()).IRROnExtraCash);
    EXPECT_FALSE(YearsOf(Testing::SimpleSession()).IRRWithSale);
    Session session = PaidDownSession();
    session.Assumptions.YearsInHome = 1; // 12 x $60 is less than $1,200; the sale brings $840 + $480 more
    EXPECT_FALSE(YearsOf(session).IRROnExtraCash);
    EXPECT_TRUE(YearsOf(session).IRRWithSale);
}

TEST(Years, TheMonthsOfAYearAddUpToIt) {
    const YearByYear years = YearsOf(InsuredSession(10));
    const auto months = MonthsOf(years, 2);
    ASSERT_EQ(months.size(), 12U);
    EXPECT_EQ(months[0].Number, 13);
    double saving = 0;
    for (const FlowRow& month : months)
        saving += month.Saving;
    EXPECT_NEAR(saving, years.Years[1].Saving, 1e-9);
    EXPECT_EQ(months[11].Cumulative, years.Years[1].Cumulative);
    EXPECT_EQ(months[11].Std.Balance, years.Years[1].Std.Balance);
}

TEST(Years, TheSheetMarksWherePMIEndsAndTheBuyerIsAhead) {
    Session session = InsuredSession(10);
    session.Screen.ecGMHHome.Text = "$120,000";
    session.Screen.ecGMHRate.Text = "1.000%"; // pays less off at first
    const YearByYear years = YearsOf(session);
    const Sheet sheet = YearsSheet(years);
    ASSERT_EQ(sheet.Rows.size(), 30U);
    EXPECT_EQ(sheet.Rows[0].back().Text, "ahead from the first day");
    EXPECT_THAT(sheet.Rows[1].back().Text, HasSubstr("base: no PMI from month 17; GREENMARK: no PMI from"));
    const Sheet months = YearMonthsSheet(years, 2);
    ASSERT_EQ(months.Rows.size(), 12U);
    EXPECT_EQ(months.Rows[4].front().Text, "17");
    EXPECT_EQ(months.Rows[4].back().Text, "base: no PMI from month 17");
    EXPECT_EQ(months.Rows[3].back().Text, "");
}

TEST(Years, TheSheetNamesWhatTheReturnIsOn) {
    const std::string sentence = YearsSheet(YearsOf(PaidDownSession())).Sentence;
    EXPECT_THAT(sentence, HasSubstr("is ahead from month 20 on, and ahead by $3,840 after 7 years."));
    EXPECT_THAT(sentence, HasSubstr("% a year on the extra down payment alone."));
    EXPECT_THAT(sentence, HasSubstr("The savings of 7 years, less the extra down payment, are worth $3,840"));
    Session session = PaidDownSession();
    session.Screen.ecGMHUtil.Text = "$0"; // $160 a month on $1,200 is more than 100 % a year
    EXPECT_THAT(YearsSheet(YearsOf(session)).Sentence,
                HasSubstr("return over 100 % a year on the extra down payment alone."));
}

TEST(Years, TheSentenceSaysWhyTheSummaryDiffers) {
    const YearByYear years = YearsOf(Testing::SimpleSession());
    for (const char* reason : {"Summary tab", "interest at the mortgage rate", "mortgage insurance",
                               "every dollar of interest as deductible"})
        EXPECT_THAT(years.Sentence, HasSubstr(reason));
    EXPECT_THAT(YearsSheet(years).Sentence, Not(HasSubstr("return")));
}

} // namespace
} // namespace Ledgrove
