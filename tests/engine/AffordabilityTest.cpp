#include "engine/Affordability.h"

#include "engine/ReadScreen.h"
#include "engine/ShowResults.h"

#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

/// $60,000 a year and 30 years without interest, so a payment supports a loan of 360 times its amount; no
/// taxes, insurance, PMI or debt.
class Affordability : public testing::Test {
protected:
    Affordability() {
        m_session.Scenario.AnnualIncome = 60000;
        for (HomeCase* home : {&m_session.StdCase, &m_session.GMHCase}) {
            home->FrontRatio = 0.25F;
            home->BackRatio = 0.50F;
        }
    }

    const HomeCase& Std() {
        Compute(HomeCode::Std);
        return m_session.StdCase;
    }
    const HomeCase& GMH() {
        Compute(HomeCode::GMH);
        return m_session.GMHCase;
    }

    void Compute(HomeCode code) {
        ComputeAffordability(ReadInputs(m_session.Screen), m_session, code, m_session);
        ShowAffordabilityResults(m_session, m_session.Screen);
        ShowQualification(m_session, m_session.Screen);
    }

    Session m_session = StartedSession();
};

TEST_F(Affordability, TheFrontRatioLimitsABuyerWithoutDebt) {
    EXPECT_FLOAT_EQ(Std().MaxPayment, 1250); // 60,000 x 0.25 / 12 against 60,000 x 0.5 / 12 = 2,500
    EXPECT_FLOAT_EQ(Std().MaxLoan, 450000);  // 1,250 x 360
    EXPECT_FLOAT_EQ(GMH().MaxPayment, 1250); // "Conventional" follows the ordinary rule
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 450000);
}

TEST_F(Affordability, DebtCountsAgainstTheBackRatio) {
    m_session.Scenario.MonthlyDebt = 1400;
    EXPECT_FLOAT_EQ(Std().MaxPayment, 1100); // 2,500 - 1,400
    m_session.Scenario.MonthlyDebt = 3000;
    EXPECT_FLOAT_EQ(Std().MaxPayment, -500);
    EXPECT_FLOAT_EQ(m_session.StdCase.MaxLoan, -180000);
    EXPECT_EQ(m_session.Screen.lblStdInc.Text, "-$500");
    EXPECT_EQ(m_session.Screen.lblStdMaxHome.Text, "-$180,000");
}

TEST_F(Affordability, TaxesInsuranceAndPMILeaveLessForTheLoan) {
    m_session.StdCase.TIPMonthly = 250;
    m_session.StdCase.DownPayment = 40000;
    EXPECT_FLOAT_EQ(Std().MaxLoan, 360000); // (1,250 - 250) x 360
    EXPECT_FLOAT_EQ(m_session.StdCase.MaxHome, 400000);
}

TEST_F(Affordability, TheLoanIsTheAnnuityAtTheHomesOwnRateAndTerm) {
    m_session.StdCase.IntRate = 0.06F;
    m_session.Screen.xMortTerm = 15;
    EXPECT_NEAR(Std().MaxLoan, 148129.39, 0.02); // 1,250 x (1 - 1.005^-180) / 0.005
}

TEST_F(Affordability, TheBaseHomeIsAlwaysOrdinary) {
    ChooseOptions(m_session, "FHA", "FHA EEM");
    m_session.StdCase.Cost = 100000;
    m_session.StdCase.PVSavings = 50000;
    EXPECT_FLOAT_EQ(Std().MaxLoan, 450000);
    EXPECT_EQ(m_session.Scenario.EEMAllowance, 0);
}

struct StretchRow {
    const char* Option;
    float PVSavings;
    float MaxPayment;
};

class StretchedAffordability : public Affordability, public testing::WithParamInterface<StretchRow> {};

// Monthly savings of $100 against an upgrade of $9,000; debt of $200.
TEST_P(StretchedAffordability, NeedsSavingsWorthTheUpgrade) {
    ChooseOptions(m_session, "Conventional", GetParam().Option);
    m_session.Scenario.UtilitySavings = 100;
    m_session.Scenario.CostDifference = 9000;
    m_session.Scenario.MonthlyDebt = 200;
    m_session.GMHCase.PVSavings = GetParam().PVSavings;
    EXPECT_FLOAT_EQ(GMH().MaxPayment, GetParam().MaxPayment);
    EXPECT_FLOAT_EQ(m_session.GMHCase.MaxLoan, GetParam().MaxPayment * 360);
}

// Stretched: (60,000 / 12 + 100) x 0.5 - 200 = 2,350; ordinary: 60,000 x 0.25 / 12 = 1,250.
INSTANTIATE_TEST_SUITE_P(Options, StretchedAffordability,
                         testing::Values(StretchRow{"Fannie Mae EEM", 9000, 2350},
                                         StretchRow{"Fannie Mae EEM", 8999, 1250},
                                         StretchRow{"Freddie Mac EEM", 9000, 2350},
                                         StretchRow{"Freddie Mac EEM", 8999, 1250},
                                         StretchRow{"Conventional", 20000, 1250}));

TEST_F(Affordability, TheStretchedFrontLimitUsesTheWholeMonthlyIncome) {
    ChooseOptions(m_session, "Conventional", "Fannie Mae EEM");
    m_session.Scenario.UtilitySavings = 100;
    m_session.GMHCase.BackRatio = 1;         // 5,100, so the front limit is the smaller one
    EXPECT_FLOAT_EQ(GMH().MaxPayment, 5025); // 100 x 0.25 + 60,000 / 12
}

class AllowanceLoan : public Affordability {
protected:
    AllowanceLoan() {
        ChooseOptions(m_session, "FHA", "FHA EEM");
        m_session.StdCase.Cost = 100000; // an allowance of 5,000
        m_session.Scenario.CostDifference = 3000;
    }
};

TEST_F(AllowanceLoan, AddsTheAllowanceWhenTheSavingsAreWorthMore) {
    m_session.GMHCase.PVSavings = 5040;
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 455000);                      // 1,250 x 360 + 5,000
    EXPECT_FLOAT_EQ(m_session.GMHCase.MaxPayment, 1263.888889F); // 455,000 / 360
}

TEST_F(AllowanceLoan, AddsNoMoreThanTheSavingsAreWorth) {
    m_session.GMHCase.PVSavings = 3600;
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 453600); // 450,000 + 3,600
    EXPECT_FLOAT_EQ(m_session.GMHCase.MaxPayment, 1260);
}

TEST_F(AllowanceLoan, CountsSavingsThatAreWorthTheUpgradeExactly) {
    m_session.GMHCase.PVSavings = 3000;
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 453000);
}

TEST_F(AllowanceLoan, CountsDebtAgainstTheBackRatio) {
    m_session.GMHCase.PVSavings = 3600;
    m_session.Scenario.MonthlyDebt = 1500;
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 363600); // (2,500 - 1,500) x 360 + 3,600
}

TEST_F(AllowanceLoan, ShowsThePaymentForTheLoanWithoutTaxesAndInsurance) {
    m_session.GMHCase.PVSavings = 3600;
    m_session.GMHCase.TIPMonthly = 250;
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 363600); // (1,250 - 250) x 360 + 3,600
    EXPECT_FLOAT_EQ(m_session.GMHCase.MaxPayment, 1010);
}

TEST_F(AllowanceLoan, FallsBackToThePlainTypesRatiosWhenTheSavingsAreTooSmall) {
    m_session.LoanTypes[3].FrontRatio = 0.20F;
    m_session.LoanTypes[5].FrontRatio = 0.10F;
    m_session.GMHCase.PVSavings = 2999;
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 360000); // FHA: 60,000 x 0.2 / 12 x 360, without an allowance
    EXPECT_FLOAT_EQ(m_session.GMHCase.MaxPayment, 1000);

    ChooseOptions(m_session, "VA", "VA EEM");
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 180000); // VA: 60,000 x 0.1 / 12 x 360
    m_session.LoanTypes[5].BackRatio = 0.05F;
    EXPECT_FLOAT_EQ(GMH().MaxLoan, 90000);
}

TEST_F(AllowanceLoan, AMissingPlainTypeIsAFault) {
    m_session.LoanTypes.resize(3);
    m_session.GMHCase.PVSavings = 2999;
    EXPECT_EQ(GMH().MaxPayment, 0);
    EXPECT_EQ(m_session.GMHCase.MaxLoan, 0);
}

struct AllowanceRow {
    const char *Base, *Labelled;
    float BasePrice;
    float Allowance;
};

class EEMAllowance : public Affordability, public testing::WithParamInterface<AllowanceRow> {};

TEST_P(EEMAllowance, IsFivePercentOfTheBasePriceWithinItsLimits) {
    ChooseOptions(m_session, GetParam().Base, GetParam().Labelled);
    m_session.StdCase.Cost = GetParam().BasePrice;
    m_session.GMHCase.Cost = 900000;
    GMH();
    EXPECT_FLOAT_EQ(m_session.Scenario.EEMAllowance, GetParam().Allowance);
}

INSTANTIATE_TEST_SUITE_P(
    Prices, EEMAllowance,
    testing::Values(
        AllowanceRow{"FHA", "FHA EEM", 0, 4000}, AllowanceRow{"FHA", "FHA EEM", 60000, 4000},
        AllowanceRow{"FHA", "FHA EEM", 80000, 4000}, AllowanceRow{"FHA", "FHA EEM", 80020, 4001},
        AllowanceRow{"FHA", "FHA EEM", 100000, 5000}, AllowanceRow{"FHA", "FHA EEM", 159980, 7999},
        AllowanceRow{"FHA", "FHA EEM", 160000, 8000}, AllowanceRow{"FHA", "FHA EEM", 160020, 8000},
        AllowanceRow{"FHA", "FHA EEM", 200000, 8000}, AllowanceRow{"VA", "VA EEM", 0, 3000},
        AllowanceRow{"VA", "VA EEM", 60020, 3001}, AllowanceRow{"VA", "VA EEM", 100000, 5000},
        AllowanceRow{"VA", "VA EEM", 119980, 5999}, AllowanceRow{"VA", "VA EEM", 120000, 6000},
        AllowanceRow{"VA", "VA EEM", 120020, 6000}, AllowanceRow{"VA", "VA EEM", 150000, 6000},
        AllowanceRow{"FHA", "FHA", 100000, 0}, AllowanceRow{"Conventional", "Fannie Mae EEM", 100000, 0}));

TEST_F(Affordability, AnotherOptionKeepsTheLastAllowance) {
    ChooseOptions(m_session, "FHA", "FHA EEM");
    m_session.StdCase.Cost = 100000;
    GMH();
    ChooseOptions(m_session, "Conventional", "Conventional");
    m_session.StdCase.Cost = 200000;
    GMH();
    EXPECT_FLOAT_EQ(m_session.Scenario.EEMAllowance, 5000);
}

struct QualificationRow {
    float LoanAmount;
    const char* Qualifies;
};

class Qualification : public Affordability, public testing::WithParamInterface<QualificationRow> {};

// The largest loan is $450,000. The labels decide: $449,999.60 also shows $450,000.
TEST_P(Qualification, ComparesWhatTheLabelsShow) {
    m_session.StdCase.LoanAmount = m_session.GMHCase.LoanAmount = GetParam().LoanAmount;
    Std();
    GMH();
    EXPECT_EQ(m_session.Screen.lblStdQual.Text, GetParam().Qualifies);
    EXPECT_EQ(m_session.Screen.lblGMHQual.Text, GetParam().Qualifies);
}

INSTANTIATE_TEST_SUITE_P(Loans, Qualification,
                         testing::Values(QualificationRow{0, "YES"}, QualificationRow{449999, "YES"},
                                         QualificationRow{449999.4F, "YES"},
                                         QualificationRow{449999.6F, "*NO"}, QualificationRow{450000, "*NO"},
                                         QualificationRow{450001, "*NO"}));

TEST_F(Affordability, WritesEachHomesOwnLabels) {
    HomeCase home;
    home.FrontRatio = 0.25F;
    home.BackRatio = 0.50F;
    home.PITI = 1465.06F;
    home.MortPayment = 1137.72F;
    home.UtilMonthly = 141.67F;
    home.Cost = 200000;
    home.DownPayment = 20000;
    home.LoanAmount = 180000;
    m_session.StdCase = home;
    home.Cost = 206000;
    m_session.GMHCase = home;
    Std();
    GMH();
    const MainScreen& screen = m_session.Screen;
    EXPECT_EQ(screen.lblStdPITI.Text, "$1,465");
    EXPECT_EQ(screen.lblStdMortPayment.Text, "$1,138");
    EXPECT_EQ(screen.lblStdUtilMo.Text, "$142");
    EXPECT_EQ(screen.lblStdHome.Text, "$200,000");
    EXPECT_EQ(screen.lblStdDown.Text, "$20,000");
    EXPECT_EQ(screen.lblstddown2.Text, "$20,000");
    EXPECT_EQ(screen.lblStdMortgage.Text, "$180,000");
    EXPECT_EQ(screen.lblStdMort.Text, "$180,000");
    EXPECT_EQ(screen.lblStdInc.Text, "$1,250");
    EXPECT_EQ(screen.lblStdMaxHome.Text, "$450,000");
    EXPECT_EQ(screen.lblStdQual.Text, "YES");
    EXPECT_EQ(screen.lblGMHPITI.Text, "$1,465");
    EXPECT_EQ(screen.lblGMHMortPayment.Text, "$1,138");
    EXPECT_EQ(screen.lblGMHUtilMo.Text, "$142");
    EXPECT_EQ(screen.lblGMHHome.Text, "$206,000");
    EXPECT_EQ(screen.lblgmhDown.Text, "$20,000");
    EXPECT_EQ(screen.lblgmhdown2.Text, "$20,000");
    EXPECT_EQ(screen.lblgmhMortgage.Text, "$180,000");
    EXPECT_EQ(screen.lblGMHMort.Text, "$180,000");
    EXPECT_EQ(screen.lblGMHInc.Text, "$1,250");
    EXPECT_EQ(screen.lblGMHMaxHome.Text, "$450,000");
    EXPECT_EQ(screen.lblGMHQual.Text, "YES");
}

TEST_F(Affordability, AnOverflowZeroesTheFiguresAndShowsZero) {
    m_session.Scenario.AnnualIncome = 3e38F; // a loan of 3e38 x 0.25 / 12 x 360
    m_session.StdCase.LoanAmount = 180000;
    m_session.StdCase.DownPayment = 20000;
    EXPECT_EQ(Std().MaxPayment, 0);
    EXPECT_EQ(m_session.StdCase.MaxLoan, 0);
    EXPECT_EQ(m_session.StdCase.MaxHome, 0);
    EXPECT_EQ(m_session.Screen.lblStdInc.Text, "$0");
    EXPECT_EQ(m_session.Screen.lblStdMaxHome.Text, "$0");
    EXPECT_EQ(m_session.Screen.lblStdQual.Text, "*NO");
    EXPECT_EQ(m_session.Screen.lblStdMortgage.Text, "$180,000");
}

TEST_F(Affordability, ATermOfZeroFaultsWhereThePaymentIsRecomputed) {
    ChooseOptions(m_session, "VA", "VA EEM");
    m_session.Screen.xMortTerm = 0;
    EXPECT_EQ(GMH().MaxPayment, 0);
    EXPECT_EQ(m_session.GMHCase.MaxLoan, 0);
    EXPECT_EQ(m_session.Screen.lblGMHMaxHome.Text, "$0");
}

} // namespace

} // namespace Ledgrove::Module1
