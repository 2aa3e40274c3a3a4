#include "tests/engine/LoanRulesFixture.h"

#include <limits>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

class SavingsPresentValue : public LoanRules {};

TEST_F(SavingsPresentValue, UsesTheLabelledLoan) {
    SetSavings(50);
    m_session.StdCase.IntRate = 0.09F;
    Compute(HomeCode::GMH);
    EXPECT_FLOAT_EQ(m_session.GMHCase.PVSavings, 7910.54117F); // 50 x (1 - (1 + r)^-360) / r, r = 0.065 / 12
}

TEST_F(SavingsPresentValue, UsesItsOwnRateAndTermWhenChosen) {
    SetSavings(50);
    m_session.Assumptions.UsePVVars = true;
    m_session.Assumptions.PVRate = 0.06F;
    m_session.Assumptions.PVTerm = 10;
    Compute(HomeCode::GMH);
    EXPECT_FLOAT_EQ(m_session.GMHCase.PVSavings, 4503.67267F); // 50 x (1 - 1.005^-120) / 0.005
}

TEST_F(SavingsPresentValue, IsNegativeForAHigherBillOfTheLabelledHome) {
    SetSavingsWorth(-3600);
    Compute(HomeCode::GMH);
    EXPECT_FLOAT_EQ(m_session.GMHCase.PVSavings, -3600); // -10 x 360
}

class EEMNotice : public LoanRules {
protected:
    EEMNotice() {
        ChooseOptions(m_session, "Conventional", "Fannie Mae EEM");
        m_session.Scenario.EEMNoticeFlag = true;
        m_session.Scenario.CostDifference = 18000;
        m_session.GMHCase.Cost = 218000;
    }
};

TEST_F(EEMNotice, IsShownWhenTheSavingsAreWorthLessThanTheUpgrade) {
    SetSavingsWorth(17640);
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_notices, 1);
    EXPECT_FALSE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(EEMNotice, IsShownOncePerEdit) {
    SetSavingsWorth(17640);
    Compute(HomeCode::GMH);
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_notices, 1);
    m_session.Scenario.EEMNoticeFlag = true;
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_notices, 2);
}

TEST_F(EEMNotice, IsShownOnEqualAmountsToo) {
    SetSavingsWorth(18000);
    Compute(HomeCode::GMH);
    ASSERT_EQ(m_session.GMHCase.PVSavings, 18000); // 50 x 360
    EXPECT_EQ(m_notices, 1);
}

TEST_F(EEMNotice, IsSkippedWhenTheSavingsAreWorthMore) {
    SetSavingsWorth(18360);
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_notices, 0);
    EXPECT_FALSE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(EEMNotice, WaitsForSavings) {
    for (const float worth : {0.0F, -3600.0F}) {
        SetSavingsWorth(worth);
        Compute(HomeCode::GMH);
        EXPECT_EQ(m_notices, 0);
        EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
    }
}

TEST_F(EEMNotice, WaitsForAnEEM) {
    ChooseOptions(m_session, "Conventional", "Conventional");
    SetSavingsWorth(3600);
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_notices, 0);
    EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(EEMNotice, IgnoresTheBaseHomesOption) {
    m_session.LoanTypes[0].IsEEM = true;
    SetSavingsWorth(3600);
    Compute(HomeCode::Std);
    EXPECT_EQ(m_notices, 0);
    EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(EEMNotice, IsNotReachedAfterAFault) {
    SetSavings(std::numeric_limits<float>::max()); // x 360 overflows single precision
    m_session.GMHCase.IntRate = noInterest;
    m_session.Scenario.CostDifference = std::numeric_limits<float>::max();
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_notices, 0);
    EXPECT_EQ(m_session.GMHCase.PVSavings, 0);
}

struct DownPaymentRow {
    const char *Base, *Labelled;
    float SavingsWorth;
    float DownPayment; ///< 10 % of 218,000, or of 200,000 where the loan finances the upgrade of 18,000
};

class LabelledDownPaymentRule : public LoanRules {};

class LabelledDownPayment : public LabelledDownPaymentRule,
                            public testing::WithParamInterface<DownPaymentRow> {};

TEST_P(LabelledDownPayment, UsesTheBasePriceWhenTheSavingsPayForTheUpgrade) {
    const DownPaymentRow& row = GetParam();
    ChooseOptions(m_session, row.Base, row.Labelled);
    m_session.GMHCase.Cost = 218000;
    m_session.Scenario.CostDifference = 18000;
    m_session.Scenario.PctDown = 0.10F;
    SetSavingsWorth(row.SavingsWorth);
    Compute(HomeCode::GMH);
    EXPECT_FLOAT_EQ(m_session.GMHCase.DownPayment, row.DownPayment);
    EXPECT_FLOAT_EQ(m_session.GMHCase.LoanAmount, 218000 - row.DownPayment);
}

INSTANTIATE_TEST_SUITE_P(Options, LabelledDownPayment,
                         testing::Values(DownPaymentRow{"Conventional", "Conventional", 36000, 21800},
                                         DownPaymentRow{"Conventional", "Fannie Mae EEM", 36000, 21800},
                                         DownPaymentRow{"Conventional", "Freddie Mac EEM", 36000, 21800},
                                         DownPaymentRow{"FHA", "FHA", 36000, 21800},
                                         DownPaymentRow{"FHA", "FHA EEM", 36000, 20000},
                                         DownPaymentRow{"FHA", "FHA EEM", 18000, 20000},
                                         DownPaymentRow{"FHA", "FHA EEM", 17640, 21800},
                                         DownPaymentRow{"VA", "VA", 36000, 21800},
                                         DownPaymentRow{"VA", "VA EEM", 18000, 20000},
                                         DownPaymentRow{"VA", "VA EEM", 17640, 21800}));

TEST_F(LabelledDownPaymentRule, FHAEEMWithSavingsEqualToTheUpgradeShowsTheNoticeAndFinancesIt) {
    ChooseOptions(m_session, "FHA", "FHA EEM");
    m_session.Scenario.EEMNoticeFlag = true;
    m_session.Scenario.PctDown = 0.10F;
    m_session.GMHCase.Cost = 218000;
    m_session.Scenario.CostDifference = 18000;
    SetSavingsWorth(18000);
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_notices, 1);
    EXPECT_FLOAT_EQ(m_session.GMHCase.DownPayment, 20000); // 10 % of 200,000
}

TEST_F(LabelledDownPaymentRule, AFixedDownPaymentStaysFixedForAnAllowanceLoan) {
    ChooseOptions(m_session, "VA", "VA EEM");
    m_session.Scenario.DownAsPercent = false;
    m_session.Scenario.FixedDown = 15000;
    SetSavingsWorth(36000);
    Compute(HomeCode::GMH);
    EXPECT_EQ(m_session.GMHCase.DownPayment, 15000);
}

} // namespace

} // namespace Ledgrove::Module1
