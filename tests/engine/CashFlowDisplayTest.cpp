#include "engine/ShowResults.h"

#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

#include <set>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

/// Sets the figures by hand, because the display only shows them.
class CashFlowDisplay : public testing::Test {
protected:
    CashFlowDisplay() {
        Scenario& scenario = m_session.Scenario;
        scenario.MortgageSavings = -48;
        scenario.UtilitySavings = 58;
        scenario.TaxSavings = scenario.ShownTaxSavings = 3;
        scenario.NetBeforeTax = 10;
        scenario.NetMonthlyCashFlow = 13;
        scenario.PVNetBeforeTax = 1639;
        scenario.PVNetCashFlow = 2088;
        scenario.SavingsAfter7Years = 1399;
        scenario.SavingsAfterYearsInHome = 1400;
        scenario.SavingsAfter30Years = 14600;
        scenario.YearsInHome = 7;
        m_session.StdCase.Cost = 200000;
        m_session.GMHCase.Cost = 206000;
        m_session.StdCase.PITIU = 1665;
        m_session.GMHCase.PITIU = 1655;
        m_session.GMHCase.PVSavings = 9229;
    }

    const MainScreen& Show() {
        ShowCashFlowResults(m_session, m_session.Screen);
        return m_session.Screen;
    }
    const MainScreen& ShowWithoutTaxes() {
        m_session.Screen.chkDoTax0 = false;
        m_session.Scenario.ShownTaxSavings = 0;
        return Show();
    }
    std::set<std::string_view> RedLabels() const {
        std::set<std::string_view> names;
        for (const auto& entry : LabelTable())
            if ((m_session.Screen.*entry.Member).Colour == TextColour::Red)
                names.insert(entry.Name);
        return names;
    }

    Session m_session = StartedSession();
};

TEST_F(CashFlowDisplay, CashFlowShowsMonthAndYear) {
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lbladditionalmortgagetext.Text, "Additional Mortgage");
    EXPECT_EQ(screen.lblAddMortMo.Text, "-$48");
    EXPECT_EQ(screen.lblAddMortYr.Text, "-$576");
    EXPECT_EQ(screen.lblutilitysavingstext.Text, "Utility Savings");
    EXPECT_EQ(screen.lblUtilSavMo.Text, "$58");
    EXPECT_EQ(screen.lblUtilSavYr.Text, "$696");
    EXPECT_EQ(screen.lbltaxsavingstext.Text, "Tax Savings");
    EXPECT_EQ(screen.lblTaxSavMo.Text, "$3");
    EXPECT_EQ(screen.lblTaxSavYr.Text, "$36");
    EXPECT_EQ(screen.lblnetcashflowtext.Text, "Net Monthly Cash Flow");
    EXPECT_EQ(screen.lblNetCashMo.Text, "$13"); // 3 + 58 - 48
    EXPECT_EQ(screen.lblNetCashYr.Text, "$156");
    EXPECT_EQ(RedLabels(), (std::set<std::string_view>{"lblAddMortMo", "lblAddMortYr"}));
}

TEST_F(CashFlowDisplay, TheYearIsTwelveTimesTheUnroundedMonth) {
    m_session.Scenario.UtilitySavings = 58.34F;
    EXPECT_EQ(Show().lblUtilSavMo.Text, "$58");
    EXPECT_EQ(m_session.Screen.lblUtilSavYr.Text, "$700"); // 58.34 x 12 = 700.08
}

TEST_F(CashFlowDisplay, LossesAreRedWithTheirOwnCaption) {
    Scenario& scenario = m_session.Scenario;
    scenario.MortgageSavings = scenario.UtilitySavings = -5;
    scenario.TaxSavings = scenario.ShownTaxSavings = -1;
    m_session.GMHCase.PVSavings = -700;
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lblutilitysavingstext.Text, "Additional Utilities");
    EXPECT_EQ(screen.lbltaxsavingstext.Text, "Additional Taxes");
    EXPECT_EQ(screen.lblTaxSavmo2Text.Text, "Additional Taxes");
    EXPECT_EQ(screen.lbltaxsavmo2.Text, "-$1");
    EXPECT_EQ(screen.lblNetCashMo.Text, "-$11");
    EXPECT_EQ(screen.lblNetCashYr.Text, "-$132");
    EXPECT_EQ(RedLabels(),
              (std::set<std::string_view>{"lblAddMortMo", "lblAddMortYr", "lblUtilSavMo", "lblUtilSavYr",
                                          "lblTaxSavMo", "lblTaxSavYr", "lblNetCashMo", "lblNetCashYr",
                                          "lbltaxsavmo2", "lblPVofSavings"}));
}

TEST_F(CashFlowDisplay, OtherNegativeAmountsStayBlack) {
    Scenario& scenario = m_session.Scenario;
    scenario.MortgageSavings = scenario.UtilitySavings = 0;
    scenario.NetMonthlyCashFlow = scenario.PVNetCashFlow = -5;
    scenario.SavingsAfterYearsInHome = scenario.SavingsAfter30Years = -5;
    m_session.StdCase.PITIU = -1;
    Show();
    EXPECT_EQ(RedLabels(), std::set<std::string_view>{});
}

TEST_F(CashFlowDisplay, ZeroIsASavingInBlack) {
    m_session.Scenario = Scenario();
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lbladditionalmortgagetext.Text, "Mortgage Savings");
    EXPECT_EQ(screen.lblutilitysavingstext.Text, "Utility Savings");
    EXPECT_EQ(screen.lbltaxsavingstext.Text, "Tax Savings");
    EXPECT_EQ(screen.lblAddMortMo.Text, "$0");
    EXPECT_EQ(RedLabels(), std::set<std::string_view>{});
}

TEST_F(CashFlowDisplay, ALossThatRoundsToZeroKeepsItsColourAndCaption) {
    m_session.Scenario.MortgageSavings = -0.04F;
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lbladditionalmortgagetext.Text, "Additional Mortgage");
    EXPECT_EQ(screen.lblAddMortMo.Text, "$0");
    EXPECT_EQ(screen.lblAddMortYr.Text, "$0");
    EXPECT_EQ(RedLabels(), (std::set<std::string_view>{"lblAddMortMo", "lblAddMortYr"}));
}

TEST_F(CashFlowDisplay, ColoursTurnBackToBlack) {
    Show();
    m_session.Scenario.MortgageSavings = 48;
    EXPECT_EQ(Show().lblAddMortMo.Colour, TextColour::Normal);
    EXPECT_EQ(m_session.Screen.lbladditionalmortgagetext.Text, "Mortgage Savings");
}

TEST_F(CashFlowDisplay, WithoutTaxesTheCashFlowLineShowsZero) {
    m_session.Scenario.TaxSavings = -3;
    const MainScreen& screen = ShowWithoutTaxes();
    EXPECT_EQ(screen.lbltaxsavingstext.Text, "Tax Savings");
    EXPECT_EQ(screen.lblTaxSavMo.Text, "$0");
    EXPECT_EQ(screen.lblTaxSavMo.Colour, TextColour::Normal);
    EXPECT_TRUE(screen.lblTaxSavMo.Visible);
    EXPECT_TRUE(screen.lbltaxsavingstext.Visible);
    EXPECT_EQ(screen.lblNetCashMo.Text, "$10"); // 58 - 48
    EXPECT_EQ(screen.lblNetCashYr.Text, "$120");
}

TEST_F(CashFlowDisplay, TheTaxBoxShowsAndHidesTheSummarysTaxes) {
    EXPECT_TRUE(Show().lblTaxSavmo2Text.Visible);
    EXPECT_TRUE(m_session.Screen.lbltaxsavmo2.Visible);
    EXPECT_EQ(m_session.Screen.lblTaxSavmo2Text.Text, "Tax Savings");
    EXPECT_EQ(m_session.Screen.lbltaxsavmo2.Text, "$3");
    EXPECT_FALSE(ShowWithoutTaxes().lblTaxSavmo2Text.Visible);
    EXPECT_FALSE(m_session.Screen.lbltaxsavmo2.Visible);
    EXPECT_EQ(m_session.Screen.lbltaxsavmo2.Text, "$0");
}

TEST_F(CashFlowDisplay, MoreHomeShowsTheSameBudgetForBothHomes) {
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lblMonthlyHCStd.Text, "$1,665");
    EXPECT_EQ(screen.lblMonthlyHCGM.Text, "$1,665");
    EXPECT_EQ(screen.lblHouseValueStd.Text, "$200,000");
}

TEST_F(CashFlowDisplay, MoreHomeFollowsTheTaxBox) {
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lblNetCashMoTx.Text, "$13");
    EXPECT_EQ(screen.lblExtrasTx.Text, "$2,088");
    EXPECT_EQ(screen.lblHouseValueGM.Text, "$208,088"); // 2,088 + 206,000
    EXPECT_EQ(screen.Label6.Text, "$13 more per month = $2,088 more today");
    ShowWithoutTaxes();
    EXPECT_EQ(screen.lblNetCashMoTx.Text, "$10");
    EXPECT_EQ(screen.lblExtrasTx.Text, "$1,639");
    EXPECT_EQ(screen.lblHouseValueGM.Text, "$207,639"); // 1,639 + 206,000
    EXPECT_EQ(screen.Label6.Text, "$10 more per month = $1,639 more today");
}

TEST_F(CashFlowDisplay, TheSummaryAddsUp) {
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lblStdPITIU.Text, "$1,665");
    EXPECT_EQ(screen.lblGMHPITIU.Text, "$1,652"); // 1,655 - 3
    EXPECT_EQ(screen.lblNetCashMo2.Text, "$13");  // 1,665 - 1,652
    ShowWithoutTaxes();
    EXPECT_EQ(screen.lblGMHPITIU.Text, "$1,655");
    EXPECT_EQ(screen.lblNetCashMo2.Text, "$10");
}

TEST_F(CashFlowDisplay, TheSummaryShowsTheSavingsOverTime) {
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lblExpYrPre.Text, "$1,400");
    EXPECT_EQ(screen.lbl30YrPre.Text, "$14,600");
    EXPECT_EQ(screen.lblTerm.Text, "30 Years");
    EXPECT_EQ(screen.lblYrsIn.Text, " Expected Savings After:   7 Years");
    m_session.Scenario.YearsInHome = 0;
    m_session.Screen.xMortTerm = 15;
    Show();
    EXPECT_EQ(screen.lblYrsIn.Text, " Expected Savings After:   0 Years");
    EXPECT_EQ(screen.lblTerm.Text, "30 Years");
}

TEST_F(CashFlowDisplay, ExpectedSavingsTakeTheColourOfTheSeventhYear) {
    m_session.Scenario.SavingsAfterYearsInHome = -5;
    EXPECT_EQ(Show().lblExpYrPre.Colour, TextColour::Normal);
    m_session.Scenario.SavingsAfterYearsInHome = 5;
    m_session.Scenario.SavingsAfter7Years = -5;
    EXPECT_EQ(Show().lblExpYrPre.Colour, TextColour::Red);
}

TEST_F(CashFlowDisplay, ANoteGivesFannieMaesNameForTheSavings) {
    ChooseOptions(m_session, "Conventional", "Fannie Mae EEM");
    const MainScreen& screen = Show();
    EXPECT_EQ(screen.lblPV.Text, "* PV of Savings");
    EXPECT_EQ(screen.lblPVNote.Text, "* Fannie Mae refers to this as the Energy Savings Value");
    EXPECT_TRUE(screen.lblPVNote.Visible);
    EXPECT_EQ(screen.lblPVofSavings.Text, "$9,229");
    ChooseOptions(m_session, "Conventional", "Freddie Mac EEM");
    Show();
    EXPECT_EQ(screen.lblPV.Text, "PV of Savings");
    EXPECT_FALSE(screen.lblPVNote.Visible);
}

TEST_F(CashFlowDisplay, AnAmountThatCannotBeShownIsReported) {
    m_session.Scenario.MortgageSavings = -3e38F;
    EXPECT_EQ(Show().lblAddMortYr.Text, "FormatError");
}

TEST_F(CashFlowDisplay, OnlyTwoLabelsAndTheNoteAreEverHidden) {
    std::set<std::string_view> hidden;
    ShowWithoutTaxes();
    for (const auto& entry : LabelTable())
        if (!(m_session.Screen.*entry.Member).Visible)
            hidden.insert(entry.Name);
    EXPECT_EQ(hidden, (std::set<std::string_view>{"lblTaxSavmo2Text", "lbltaxsavmo2", "lblPVNote"}));
}

} // namespace

} // namespace Ledgrove::Module1
