#include "tests/engine/LoanRulesFixture.h"

#include <cmath>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

TEST_F(LoanRules, MinAndMaxReturnTheSecondOfEqualOperands) {
    EXPECT_EQ(MinOf(1, 2), 1);
    EXPECT_EQ(MinOf(2, 1), 1);
    EXPECT_EQ(MaxOf(1, 2), 2);
    EXPECT_EQ(MaxOf(2, 1), 2);
    EXPECT_TRUE(std::signbit(MinOf(0.0F, -0.0F)));
    EXPECT_TRUE(std::signbit(MaxOf(0.0F, -0.0F)));
}

TEST_F(LoanRules, ALoanTypeIsFoundByItsPositionNotItsNumber) {
    m_session.LoanTypes[1].Number = 99;
    EXPECT_EQ(FindLoanType(m_session.LoanTypes, MortgageOption::FannieMaeEEM), &m_session.LoanTypes[1]);
    EXPECT_EQ(FindLoanType(m_session.LoanTypes, MortgageOption::Conventional), &m_session.LoanTypes.front());
    EXPECT_EQ(FindLoanType(m_session.LoanTypes, MortgageOption::VAEEM), &m_session.LoanTypes.back());
    EXPECT_EQ(FindLoanType(m_session.LoanTypes, std::nullopt), nullptr);
    m_session.LoanTypes.resize(6);
    EXPECT_EQ(FindLoanType(m_session.LoanTypes, MortgageOption::VAEEM), nullptr);
    EXPECT_EQ(FindLoanType({}, MortgageOption::Conventional), nullptr);
}

TEST_F(LoanRules, ComputeTheMonthlyCostOfTheBaseHome) {
    m_session.Scenario.PctDown = 0.10F;
    m_session.StdCase.UtilMonthly = 200;
    Compute(HomeCode::Std);
    const HomeCase& home = m_session.StdCase;
    EXPECT_FLOAT_EQ(home.DownPayment, 20000); // 10 % of 200,000
    EXPECT_FLOAT_EQ(home.LoanAmount, 180000);
    EXPECT_FLOAT_EQ(home.MortPayment, 1137.72241F); // 180,000 x r / (1 - (1 + r)^-360), r = 0.065 / 12
    EXPECT_FLOAT_EQ(home.InsMonthly, 108.333333F);  // 0.65 % x 200,000 / 12
    EXPECT_FLOAT_EQ(home.TaxMonthly, 150);          // 0.90 % x 200,000 / 12
    EXPECT_FLOAT_EQ(home.PMIMonthly, 69);           // 0.0046 x 180,000 / 12
    EXPECT_FLOAT_EQ(home.PITI, 1465.05575F);        // 1,137.72241 + 108.33333 + 150 + 69
    EXPECT_FLOAT_EQ(home.TIPMonthly, 327.333333F);  // 108.33333 + 150 + 69
    EXPECT_FLOAT_EQ(home.PITIU, 1665.05575F);       // 1,465.05575 + 200
    EXPECT_EQ(home.FrontRatio, 0.280F);
    EXPECT_EQ(home.BackRatio, 0.360F);
    EXPECT_EQ(home.PVSavings, 0);
    EXPECT_EQ(m_notices, 0);
}

TEST_F(LoanRules, TakeEachHomesRatiosFromItsOwnOption) {
    ChooseOptions(m_session, "FHA", "FHA EEM");
    Compute(HomeCode::Std);
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_session.StdCase.FrontRatio, 0.310F);
    EXPECT_EQ(m_session.StdCase.BackRatio, 0.430F);
    EXPECT_EQ(m_session.GMHCase.FrontRatio, 0.330F);
    EXPECT_EQ(m_session.GMHCase.BackRatio, 0.450F);
}

TEST_F(LoanRules, AZeroRateSpreadsTheLoanEvenly) {
    m_session.StdCase.IntRate = noInterest;
    m_session.Scenario.PctDown = 0.10F;
    Compute(HomeCode::Std);
    EXPECT_FLOAT_EQ(m_session.StdCase.MortPayment, 500); // 180,000 / 360
}

TEST_F(LoanRules, TheTermIsTheScreensTermInYears) {
    m_session.StdCase.IntRate = noInterest;
    m_session.Screen.xMortTerm = 10;
    Compute(HomeCode::Std);
    EXPECT_FLOAT_EQ(m_session.StdCase.MortPayment, 1666.66667F); // 200,000 / 120
}

TEST_F(LoanRules, AnAssumptionIsReadAsTextWithSevenDigits) {
    // 0.12345678 becomes the text "0.1234568" %, so 1.2e9 x 0.001234568 / 12 = 123,456.80 and not 123,456.78.
    m_session.Assumptions.InsurancePct = 0.12345678F;
    m_session.StdCase.Cost = 1.2e9F;
    Compute(HomeCode::Std);
    EXPECT_NEAR(m_session.StdCase.InsMonthly, 123456.80, 0.008);
}

TEST_F(LoanRules, AFixedDownPaymentIsTheSameForBothHomes) {
    m_session.Scenario.DownAsPercent = false;
    m_session.Scenario.FixedDown = 30000;
    m_session.Scenario.PctDown = 0.10F;
    Compute(HomeCode::Std);
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_session.StdCase.DownPayment, 30000);
    EXPECT_EQ(m_session.GMHCase.DownPayment, 30000);
    EXPECT_EQ(m_session.GMHCase.LoanAmount, 176000);
}

TEST_F(LoanRules, WithoutAPriceOnlyTheIncomeForTheDebtIsNeeded) {
    m_session.StdCase.Cost = m_session.GMHCase.Cost = 0;
    m_session.Scenario.MonthlyDebt = 350;
    m_session.Scenario.FixedDown = 5000;
    for (const bool asPercent : {true, false}) {
        m_session.Scenario.DownAsPercent = asPercent;
        m_session.Scenario.PctDown = 0.10F;
        Compute(HomeCode::Std);
        Compute(HomeCode::GMH);
        for (const HomeCase& home : {m_session.StdCase, m_session.GMHCase}) {
            EXPECT_EQ(home.DownPayment, 0);
            EXPECT_EQ(home.LoanAmount, 0);
            EXPECT_EQ(home.PITI, 0);
            EXPECT_EQ(home.PITIU, 0);
            EXPECT_EQ(home.IncomeNeeded, 11667); // 350 / 0.36 x 12 = 11,666.67
        }
    }
}

struct PMIBand {
    float PctDown;
    double Multiplier;
};

class PMIBands : public LoanRules, public testing::WithParamInterface<PMIBand> {};

TEST_P(PMIBands, AnEdgeBelongsToTheHigherBand) {
    m_session.Scenario.PctDown = GetParam().PctDown;
    Compute(HomeCode::Std);
    const HomeCase& home = m_session.StdCase;
    const double wanted = GetParam().Multiplier * static_cast<double>(home.LoanAmount) / 12;
    EXPECT_FLOAT_EQ(home.PMIMonthly, static_cast<float>(wanted));
}

INSTANTIATE_TEST_SUITE_P(PctDown, PMIBands,
                         testing::Values(PMIBand{0, 0.0087}, PMIBand{std::nextafter(0.05F, 0.0F), 0.0087},
                                         PMIBand{0.05F, 0.0066}, PMIBand{std::nextafter(0.10F, 0.0F), 0.0066},
                                         PMIBand{0.10F, 0.0046}, PMIBand{std::nextafter(0.15F, 0.0F), 0.0046},
                                         PMIBand{0.15F, 0.0023}, PMIBand{0.1999F, 0.0023},
                                         PMIBand{std::nextafter(0.20F, 0.0F), 0.0023}, PMIBand{0.20F, 0},
                                         PMIBand{0.50F, 0}));

struct FixedBand {
    float FixedDown;
    double Multiplier;
};

class FixedPMIBands : public LoanRules, public testing::WithParamInterface<FixedBand> {};

// As a double, 20,000 / 100,000 is below the single-precision 0.2; in single precision it is 20 %.
TEST_P(FixedPMIBands, FollowTheShareOfTheBasePriceForBothHomes) {
    m_session.StdCase.Cost = 100000;
    m_session.GMHCase.Cost = 103000;
    m_session.Scenario.DownAsPercent = false;
    m_session.Scenario.FixedDown = GetParam().FixedDown;
    Compute(HomeCode::Std);
    Compute(HomeCode::GMH);
    for (const HomeCase& home : {m_session.StdCase, m_session.GMHCase}) {
        const double loan = static_cast<double>(home.Cost) - static_cast<double>(GetParam().FixedDown);
        EXPECT_FLOAT_EQ(home.PMIMonthly, static_cast<float>(GetParam().Multiplier * loan / 12));
    }
}

INSTANTIATE_TEST_SUITE_P(FixedDown, FixedPMIBands,
                         testing::Values(FixedBand{4999, 0.0087}, FixedBand{5000, 0.0066},
                                         FixedBand{9999, 0.0066}, FixedBand{10000, 0.0046},
                                         FixedBand{14999, 0.0046}, FixedBand{15000, 0.0023},
                                         FixedBand{19999, 0.0023}, FixedBand{20000, 0}));

TEST_F(LoanRules, IncomeNeededOfTheBaseHomeIsTheLargerOfTwoAmounts) {
    NoTaxesAndInsurance();
    m_session.StdCase.IntRate = noInterest;
    m_session.StdCase.Cost = 180000; // PITI 180,000 / 360 = 500
    m_session.Scenario.MonthlyDebt = 100;
    Compute(HomeCode::Std);
    EXPECT_EQ(m_session.StdCase.IncomeNeeded, 21429); // 500 / 0.28 x 12 = 21,428.57; 600 / 0.36 x 12 = 20,000
    m_session.Scenario.MonthlyDebt = 250;
    Compute(HomeCode::Std);
    EXPECT_EQ(m_session.StdCase.IncomeNeeded, 25000); // 750 / 0.36 x 12
}

TEST_F(LoanRules, IncomeNeededOfTheLabelledHomeDividesOnlyTheSavingsByTheFrontRatio) {
    NoTaxesAndInsurance();
    SetSavings(28);
    m_session.GMHCase.IntRate = noInterest;
    m_session.GMHCase.Cost = 180000; // PITI 500
    m_session.LoanTypes[0].BackRatio = 100;
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_session.GMHCase.IncomeNeeded, 4800); // (500 - 28 / 0.28) x 12; the other amount is 56.64
    m_session.LoanTypes[0].BackRatio = 0.5F;
    m_session.Scenario.MonthlyDebt = 128;
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_session.GMHCase.IncomeNeeded, 14400); // (128 + 500 - 28) / 0.5 x 12
}

struct IncomeRounding {
    float Cost;
    float Income;
};

class IncomeNeededRounding : public LoanRules, public testing::WithParamInterface<IncomeRounding> {};

// With ratios of 0.5 and 1 and without interest, the income needed is the price / 360 x 24.
TEST_P(IncomeNeededRounding, GoesToCentsAndThenToDollars) {
    NoTaxesAndInsurance();
    m_session.LoanTypes[0].FrontRatio = 0.5F;
    m_session.LoanTypes[0].BackRatio = 1;
    m_session.StdCase.IntRate = noInterest;
    m_session.StdCase.Cost = GetParam().Cost;
    Compute(HomeCode::Std);
    EXPECT_EQ(m_session.StdCase.IncomeNeeded, GetParam().Income);
}

INSTANTIATE_TEST_SUITE_P(Prices, IncomeNeededRounding,
                         testing::Values(IncomeRounding{15007.41F, 1000},  // 1,000.494 is 1,000.49
                                         IncomeRounding{15007.44F, 1001},  // 1,000.496 is 1,000.50
                                         IncomeRounding{15007.5F, 1001},   // 1,000.50 rounds away from zero
                                         IncomeRounding{15022.5F, 1002})); // 1,001.50

} // namespace

} // namespace Ledgrove::Module1
