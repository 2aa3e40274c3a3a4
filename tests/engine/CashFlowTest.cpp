#include "engine/CashFlow.h"

#include "engine/ReadScreen.h"

#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

struct TaxRow {
    float Income;
    float Rate;
};

class TaxRates : public testing::TestWithParam<TaxRow> {};

TEST_P(TaxRates, ABoundaryBelongsToTheLowerBracket) {
    EXPECT_EQ(LookupTaxRate(ShippedTaxSchedule(), GetParam().Income), GetParam().Rate);
}

INSTANTIATE_TEST_SUITE_P(Incomes, TaxRates,
                         testing::Values(TaxRow{0, 0.10F}, TaxRow{1, 0.10F}, TaxRow{57000, 0.10F},
                                         TaxRow{std::nextafter(57000.0F, 1e9F), 0.12F}, TaxRow{57001, 0.12F},
                                         TaxRow{133000, 0.12F}, TaxRow{133001, 0.22F}, TaxRow{243600, 0.22F},
                                         TaxRow{435750, 0.24F}, TaxRow{544650, 0.32F}, TaxRow{544651, 0.35F},
                                         TaxRow{3e38F, 0.35F}));

TEST(LookupTaxRate, WithoutBracketsThereIsNoTax) {
    EXPECT_EQ(LookupTaxRate({}, 50000), 0);
    EXPECT_EQ(LookupTaxRate(ShippedTaxSchedule(), -1), 0);
    const TaxSchedule limited = {{10000, 20000, 15}};
    EXPECT_EQ(LookupTaxRate(limited, 10000), 0);
    EXPECT_EQ(LookupTaxRate(limited, 20000), 0.15F);
    EXPECT_EQ(LookupTaxRate(limited, 20001), 0);
}

TEST(LookupTaxRate, TheFirstMatchingBracketWins) {
    EXPECT_EQ(LookupTaxRate({{-1, 50000, 10}, {20000, -1, 20}}, 30000), 0.10F);
}

TEST(LookupTaxRate, UsesTheDecimalTextOfTheRate) {
    EXPECT_EQ(LookupTaxRate({{-1, -1, 39.6F}}, 1), 0.396F);
}

/// Without interest the figures are plain sums: 12 % tax, 10 years of 120 months.
class CashFlow : public testing::Test {
protected:
    CashFlow() {
        m_session.Screen.xMortTerm = 10;
        m_session.Scenario.MarginalTaxRate = 0.12F;
        m_session.StdCase.PITI = 1500;
        m_session.GMHCase.PITI = 1540;
        m_session.StdCase.UtilMonthly = 200;
        m_session.GMHCase.UtilMonthly = 150;
        m_session.StdCase.Cost = 200000;
        m_session.GMHCase.Cost = 206000;
        m_session.StdCase.DownPayment = 20000;
        m_session.GMHCase.DownPayment = 20600;
        m_session.StdCase.LoanAmount = 180000;
        m_session.GMHCase.LoanAmount = 186000;
    }

    /// 30 years at 6.5 %: the middle month's interest is 709.7697 for the base home's $180,000 and 733.4287
    /// for the labelled home's $186,000 (the balance after 179 payments, 131,034.41 or 135,402.22, x 0.065 /
    /// 12).
    void WithInterest() {
        m_session.Screen.xMortTerm = 30;
        m_session.StdCase.IntRate = m_session.GMHCase.IntRate = 0.065F;
    }

    const Scenario& Compute() {
        ComputeCashFlow(ReadInputs(m_session.Screen), m_session, m_session);
        return m_session.Scenario;
    }

    Session m_session = StartedSession();
};

TEST_F(CashFlow, SubtractsTheLabelledHomeFromTheBaseHome) {
    const Scenario& result = Compute();
    EXPECT_EQ(result.MortgageSavings, -40);
    EXPECT_EQ(result.UtilitySavings, 50);
    EXPECT_EQ(result.NetBeforeTax, 10);
    EXPECT_EQ(result.TaxSavings, 0);
    EXPECT_EQ(result.NetMonthlyCashFlow, 10);
    EXPECT_EQ(result.PriceDifference, 6000);
    EXPECT_EQ(result.ExtraCashToday, 600);
}

TEST_F(CashFlow, ClosingCostsReduceTheExtraCash) {
    m_session.Scenario.ClosingCostAdjust = 100;
    EXPECT_EQ(Compute().ExtraCashToday, 500);
}

TEST_F(CashFlow, WithoutInterestSavingsAddUp) {
    const Scenario& result = Compute();
    EXPECT_EQ(result.SavingsAfter7Years, 840);      // 10 x 84
    EXPECT_EQ(result.SavingsAfterYearsInHome, 840); // also 7 years
    EXPECT_EQ(result.SavingsAfter30Years, 3600);    // 10 x 360
    EXPECT_EQ(result.PVNetBeforeTax, 1200);         // 10 x 120
    EXPECT_EQ(result.PVNetCashFlow, 1200);
}

TEST_F(CashFlow, YearsInHomeChangeOnlyTheirOwnFigure) {
    m_session.Assumptions.YearsInHome = 3;
    const Scenario& result = Compute();
    EXPECT_EQ(result.SavingsAfterYearsInHome, 360); // 10 x 36
    EXPECT_EQ(result.SavingsAfter7Years, 840);
}

TEST_F(CashFlow, TaxSavingsAreTheMiddleMonthsExtraInterestAtTheTaxRate) {
    WithInterest();
    const Scenario& result = Compute();
    EXPECT_NEAR(result.TaxSavings, 2.839079, 1e-5); // (733.428695 - 709.769704) x 0.12
    EXPECT_NEAR(result.NetMonthlyCashFlow, 12.839079, 1e-5);
    EXPECT_EQ(result.NetBeforeTax, 10);
}

TEST_F(CashFlow, ValuesOverTimeUseTheLabelledHomesRate) {
    WithInterest();
    m_session.StdCase.IntRate = 0.09F;
    m_session.Scenario.MarginalTaxRate = 0;
    m_session.Assumptions.UsePVVars = true;
    m_session.Assumptions.PVRate = 0.01F;
    m_session.Assumptions.YearsInHome = 10;
    const Scenario& result = Compute();
    EXPECT_NEAR(result.SavingsAfter7Years, 1060.1340, 0.001); // 10 x ((1 + r)^84 - 1) / r, r = 0.065 / 12
    EXPECT_NEAR(result.SavingsAfterYearsInHome, 1684.0315, 0.001); // 10 x ((1 + r)^120 - 1) / r
    EXPECT_NEAR(result.SavingsAfter30Years, 11061.7805, 0.01);     // 10 x ((1 + r)^360 - 1) / r
    EXPECT_NEAR(result.PVNetBeforeTax, 1582.1082, 0.001);          // 10 x (1 - (1 + r)^-360) / r
    EXPECT_EQ(result.PVNetCashFlow, result.PVNetBeforeTax);
}

TEST_F(CashFlow, StayingLongerThanTheMortgageCutsTheTaxSavings) {
    WithInterest();
    m_session.Assumptions.YearsInHome = 30;
    EXPECT_NEAR(Compute().TaxSavings, 2.839079, 1e-5);
    m_session.Assumptions.YearsInHome = 31;
    EXPECT_NEAR(Compute().TaxSavings, 2.129309, 1e-5); // x 0.75
}

TEST_F(CashFlow, ACheaperLabelledLoanCostsTaxSavings) {
    WithInterest();
    std::swap(m_session.StdCase.LoanAmount, m_session.GMHCase.LoanAmount);
    EXPECT_NEAR(Compute().TaxSavings, -2.839079, 1e-5);
}

TEST_F(CashFlow, AHigherLabelledRatePaysMoreInterest) {
    WithInterest();
    m_session.GMHCase.LoanAmount = 180000;
    m_session.GMHCase.IntRate = 0.07F;
    // Middle month at 7 %: the balance after 179 payments is 133,651.87, x 0.07 / 12 = 779.6359.
    EXPECT_NEAR(Compute().TaxSavings, 8.38394, 1e-4); // (779.6359 - 709.7697) x 0.12
}

TEST_F(CashFlow, TheTaxBoxChangesOnlyTheShownTaxSavings) {
    WithInterest();
    const Scenario checked = Compute();
    m_session.Screen.chkDoTax0 = false;
    const Scenario& unchecked = Compute();
    EXPECT_EQ(checked.ShownTaxSavings, checked.TaxSavings);
    EXPECT_EQ(unchecked.ShownTaxSavings, 0);
    EXPECT_EQ(unchecked.TaxSavings, checked.TaxSavings);
    EXPECT_EQ(unchecked.NetMonthlyCashFlow, checked.NetMonthlyCashFlow);
    EXPECT_EQ(unchecked.SavingsAfter7Years, checked.SavingsAfter7Years);
    EXPECT_EQ(unchecked.SavingsAfterYearsInHome, checked.SavingsAfterYearsInHome);
    EXPECT_EQ(unchecked.SavingsAfter30Years, checked.SavingsAfter30Years);
    EXPECT_EQ(unchecked.PVNetCashFlow, checked.PVNetCashFlow);
}

TEST_F(CashFlow, IdenticalHomesGiveZeroes) {
    WithInterest();
    m_session.GMHCase = m_session.StdCase;
    const Scenario& result = Compute();
    for (const float figure :
         {result.MortgageSavings, result.UtilitySavings, result.TaxSavings, result.NetBeforeTax,
          result.NetMonthlyCashFlow, result.ExtraCashToday, result.PriceDifference, result.SavingsAfter7Years,
          result.SavingsAfterYearsInHome, result.SavingsAfter30Years, result.PVNetBeforeTax,
          result.PVNetCashFlow})
        EXPECT_EQ(figure, 0);
}

TEST_F(CashFlow, AFaultKeepsWhatWasComputedBeforeIt) {
    m_session.GMHCase.IntRate = 1e10F; // (1 + 1e10 / 12)^84 overflows
    const Scenario& result = Compute();
    EXPECT_EQ(result.MortgageSavings, -40);
    EXPECT_EQ(result.PriceDifference, 6000);
    EXPECT_NE(result.NetMonthlyCashFlow, 0);
    EXPECT_EQ(result.SavingsAfter7Years, 0);
    EXPECT_EQ(result.SavingsAfterYearsInHome, 0);
    EXPECT_EQ(result.SavingsAfter30Years, 0);
    EXPECT_EQ(result.PVNetBeforeTax, 0);
    EXPECT_EQ(result.PVNetCashFlow, 0);
}

TEST_F(CashFlow, ATermOfZeroFaultsAtTheTaxSavings) {
    WithInterest();
    m_session.Screen.xMortTerm = 0;
    const Scenario& result = Compute();
    EXPECT_EQ(result.MortgageSavings, -40);
    EXPECT_EQ(result.UtilitySavings, 50);
    EXPECT_EQ(result.TaxSavings, 0);
    EXPECT_EQ(result.NetBeforeTax, 0);
    EXPECT_EQ(result.PriceDifference, 0);
}

TEST_F(CashFlow, TheLongestTermDoesNotOverflow) {
    m_session.Screen.xMortTerm = std::numeric_limits<std::int32_t>::max();
    EXPECT_TRUE(std::isfinite(Compute().PVNetCashFlow));
}

TEST_F(CashFlow, ADifferenceBeyondSinglePrecisionEndsTheComputation) {
    m_session.StdCase.PITI = 3e38F;
    m_session.GMHCase.PITI = -3e38F;
    const Scenario& result = Compute();
    EXPECT_EQ(result.MortgageSavings, 0);
    EXPECT_EQ(result.UtilitySavings, 0);
    EXPECT_EQ(result.PriceDifference, 0);
}

} // namespace

} // namespace Ledgrove::Module1
