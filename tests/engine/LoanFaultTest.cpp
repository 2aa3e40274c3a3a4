#include "tests/engine/LoanRulesFixture.h"

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

class LoanFault : public LoanRules {
protected:
    LoanFault() {
        SetSavings(50);
        m_session.Scenario.PctDown = 0.10F;
        // A fault must clear the earlier values of a home.
        for (HomeCase* home : {&m_session.StdCase, &m_session.GMHCase})
            home->DownPayment = home->LoanAmount = home->MortPayment = home->InsMonthly = home->TaxMonthly =
                home->PMIMonthly = home->PITI = home->PITIU = home->IncomeNeeded = home->TIPMonthly =
                    home->PVSavings = 1;
    }

    static void ExpectZeroed(const HomeCase& home) {
        EXPECT_EQ(home.DownPayment, 0);
        EXPECT_EQ(home.LoanAmount, 0);
        EXPECT_EQ(home.MortPayment, 0);
        EXPECT_EQ(home.InsMonthly, 0);
        EXPECT_EQ(home.TaxMonthly, 0);
        EXPECT_EQ(home.PMIMonthly, 0);
        EXPECT_EQ(home.PITI, 0);
        EXPECT_EQ(home.PITIU, 0);
        EXPECT_EQ(home.IncomeNeeded, 0);
        EXPECT_EQ(home.TIPMonthly, 0);
        EXPECT_EQ(home.PVSavings, 0);
    }
    void ExpectBothZeroed() {
        Compute(HomeCode::Std);
        Compute(HomeCode::GMH);
        ExpectZeroed(m_session.StdCase);
        ExpectZeroed(m_session.GMHCase);
        EXPECT_EQ(m_notices, 0);
    }
};

TEST_F(LoanFault, AFrontRatioOfZero) {
    m_session.LoanTypes[0].FrontRatio = 0;
    ExpectBothZeroed();
    EXPECT_EQ(m_session.StdCase.Cost, 200000);
    EXPECT_EQ(m_session.StdCase.BackRatio, 0.360F);
}

TEST_F(LoanFault, ABackRatioOfZero) {
    m_session.LoanTypes[0].BackRatio = 0;
    ExpectBothZeroed();
}

TEST_F(LoanFault, AZeroRatioWithAZeroDividend) {
    m_session.LoanTypes[0].FrontRatio = 0;
    m_session.StdCase.Cost = m_session.GMHCase.Cost = 0;
    SetSavings(0);
    ExpectBothZeroed();
}

TEST_F(LoanFault, AFixedDownPaymentOnABasePriceOfZero) {
    m_session.StdCase =
        HomeCase(); // as at the start of a recalculation; the home's own steps do not divide by its price
    m_session.Scenario.DownAsPercent = false;
    m_session.Scenario.FixedDown = 10000;
    ExpectBothZeroed();
}

TEST_F(LoanFault, NoLoanTypeTable) {
    m_session.LoanTypes.clear();
    ExpectBothZeroed();
}

TEST_F(LoanFault, ALoanTypeOutsideTheTable) {
    ChooseOptions(m_session, "FHA", "FHA");
    m_session.LoanTypes.resize(3);
    ExpectBothZeroed();
}

TEST_F(LoanFault, NoOptionChosen) {
    m_session.Screen.cboStdMortOption.Selected = m_session.Screen.cboGMHMortOption.Selected = -1;
    ExpectBothZeroed();
}

TEST_F(LoanFault, APaymentBeyondSinglePrecision) {
    m_session.StdCase.IntRate = m_session.GMHCase.IntRate = 1e36F; // a payment of 180,000 x 1e36 / 12
    ExpectBothZeroed();
}

TEST_F(LoanFault, ASumBeyondSinglePrecision) {
    // Tax and insurance of 1,200 % a year equal the price each month: twice 3e38 overflows single precision.
    m_session.StdCase.Cost = m_session.GMHCase.Cost = 3e38F;
    m_session.Assumptions.RealEstateTaxPct = m_session.Assumptions.InsurancePct = 1200;
    ExpectBothZeroed();
}

TEST_F(LoanFault, AnIncomeNeededBeyondSinglePrecision) {
    // A payment of about 7e35 a month needs 7e35 / 0.001 x 12 = 8e39 a year by the front ratio.
    m_session.StdCase.Cost = m_session.GMHCase.Cost = 1e38F;
    for (LoanType& loanType : m_session.LoanTypes)
        loanType.FrontRatio = 0.001F;
    m_session.Scenario.UtilitySavings = 0;
    Compute(HomeCode::Std);
    ExpectZeroed(m_session.StdCase);
}

TEST_F(LoanFault, ATermOfZero) {
    m_session.Screen.xMortTerm = 0;
    ExpectBothZeroed();
}

TEST_F(LoanFault, OfOneHomeDoesNotChangeTheOther) {
    ChooseOptions(m_session, "FHA", "FHA EEM");
    m_session.LoanTypes[4].FrontRatio = 0;
    Compute(HomeCode::Std);
    Compute(HomeCode::GMH);
    EXPECT_GT(m_session.StdCase.PITI, 0);
    ExpectZeroed(m_session.GMHCase);
}

} // namespace

} // namespace Ledgrove::Module1
