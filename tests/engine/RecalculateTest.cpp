#include "engine/Recalculate.h"

#include "tests/engine/TestSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;
using testing::ElementsAre;

class Recalculation : public testing::Test {
protected:
    void Run() { Recalculate(m_session, m_host); }

    Session m_session = SampleSession();
    ScriptedHost m_host;
};

std::array<float, 21> Figures(const HomeCase& home) {
    return {home.Cost,       home.DownPayment, home.LoanAmount,  home.UtilAnnual,   home.UtilMonthly,
            home.IntRate,    home.Stretch,     home.MortPayment, home.InsMonthly,   home.TaxMonthly,
            home.PMIMonthly, home.PITI,        home.PITIU,       home.IncomeNeeded, home.MaxPayment,
            home.MaxLoan,    home.MaxHome,     home.TIPMonthly,  home.PVSavings,    home.FrontRatio,
            home.BackRatio};
}

// The labels of the sample; the next tests check the figures that have no label.
TEST_F(Recalculation, OfTheSampleShowsEveryResult) {
    Run();
    const std::map<std::string_view, const char*> wanted = {
        {"lblStdPITI", "$1,465"},        // 1,137.72 + 108.33 + 150.00 + 69.00
        {"lblGMHPITI", "$1,513"},        // 1,175.65 + 111.58 + 154.50 + 71.30
        {"lblStdMortPayment", "$1,138"}, // 180,000 at 6.5 % over 360 months
        {"lblGMHMortPayment", "$1,176"}, // 186,000: the loan finances the upgrade
        {"lblStdUtilMo", "$200"},        // 2,400 / 12
        {"lblGMHUtilMo", "$142"},        // 1,700 / 12
        {"lblStdHome", "$200,000"},      {"lblGMHHome", "$206,000"},
        {"lblStdDown", "$20,000"},       {"lblgmhDown", "$20,000"}, // 10 % of the base price
        {"lblStdMortgage", "$180,000"},  {"lblgmhMortgage", "$186,000"},
        {"lblStdInc", "$1,860"},       // 72,000 x 0.31 / 12
        {"lblStdMaxHome", "$242,484"}, // (1,860 - 327.33) x 158.2108
        {"lblGMHMaxHome", "$267,880"}, // (1,980 - 337.38) x 158.2108 + 8,000
        {"lblGMHInc", "$1,693"},       // 267,879.75 / 158.2108
        {"lblStdQual", "YES"},           {"lblGMHQual", "YES"},
        {"lblAddMortMo", "-$48"},                                      // 1,465.06 - 1,513.03 = -47.97
        {"lblAddMortYr", "-$576"},                                     // -575.69
        {"lblUtilSavMo", "$58"},                                       // 200 - 141.67
        {"lblUtilSavYr", "$700"},        {"lblTaxSavMo", "$3"},        // (733.43 - 709.77) x 0.12 = 2.84
        {"lblTaxSavYr", "$34"},                                        // 34.07
        {"lblNetCashMo", "$13"},                                       // 58.33 - 47.97 + 2.84 = 13.20
        {"lblNetCashYr", "$158"},                                      // 158.38
        {"lblStdPITIU", "$1,665"},       {"lblGMHPITIU", "$1,652"},    // 1,654.70 - 2.84 = 1,651.86
        {"lblNetCashMo2", "$13"},        {"lblExtrasTx", "$2,088"},    // 13.1984 x 158.2108
        {"lblHouseValueGM", "$208,088"}, {"lblPVofSavings", "$9,229"}, // 58.3333 x 158.2108
        {"lblExpYrPre", "$1,399"},                                     // 13.1984 x ((1 + r)^84 - 1) / r
        {"lbl30YrPre", "$14,600"},                                     // 13.1984 x ((1 + r)^360 - 1) / r
    };
    std::size_t found = 0;
    for (const auto& entry : LabelTable()) {
        const auto row = wanted.find(entry.Name);
        if (row == wanted.end())
            continue;
        ++found;
        EXPECT_EQ((m_session.Screen.*entry.Member).Text, row->second) << entry.Name;
    }
    EXPECT_EQ(found, wanted.size());
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(Recalculation, ReadsTheBuyer) {
    m_session.Screen.ecFixedDown.Text = "$15,000";
    Run();
    const Scenario& scenario = m_session.Scenario;
    EXPECT_EQ(scenario.AnnualIncome, 72000);
    EXPECT_EQ(scenario.MarginalTaxRate, 0.12F);
    EXPECT_EQ(scenario.MonthlyDebt, 350);
    EXPECT_EQ(scenario.PctDown, 0.10F);
    EXPECT_EQ(scenario.FixedDown, 15000);
    EXPECT_EQ(scenario.CostDifference, 6000);
}

TEST_F(Recalculation, ReadsTheHomes) {
    m_session.Screen.ecStdStr.Text = "2.00%";
    m_session.Screen.ecGMHStr.Text = "4.00%";
    m_session.Screen.ecGMHRate.Text = "6.250%";
    Run();
    EXPECT_EQ(m_session.StdCase.Cost, 200000);
    EXPECT_EQ(m_session.StdCase.UtilAnnual, 2400);
    EXPECT_EQ(m_session.StdCase.UtilMonthly, 200);
    EXPECT_EQ(m_session.StdCase.IntRate, 0.065F);
    EXPECT_EQ(m_session.StdCase.Stretch, 0.02F);
    EXPECT_EQ(m_session.GMHCase.Cost, 206000);
    EXPECT_EQ(m_session.GMHCase.UtilAnnual, 1700);
    EXPECT_EQ(m_session.GMHCase.IntRate, 0.0625F);
    EXPECT_EQ(m_session.GMHCase.Stretch, 0.04F);
}

TEST_F(Recalculation, FillsTheFiguresWithoutALabel) {
    Run();
    EXPECT_EQ(m_session.StdCase.IncomeNeeded, 56712); // 1,465.0558 / 0.31 x 12 = 56,711.84
    EXPECT_EQ(m_session.GMHCase.IncomeNeeded, 48125); // (350 + 1,513.0298 - 58.3333) / 0.45 x 12 = 48,125.24
    EXPECT_NEAR(m_session.StdCase.MaxHome, 262484.45, 0.05); // 242,484.45 + 20,000
    EXPECT_NEAR(m_session.GMHCase.MaxHome, 287879.75, 0.05); // 267,879.75 + 20,000
    EXPECT_EQ(m_session.Scenario.EEMAllowance, 8000);
    EXPECT_EQ(m_session.Scenario.ExtraCashToday, 0);
    EXPECT_EQ(m_session.Scenario.PriceDifference, 6000);
}

TEST_F(Recalculation, OfEmptyFieldsIsAllZeroWithoutAMessage) {
    for (const auto& entry : FieldTable())
        (m_session.Screen.*entry.Member).Text.clear();
    ChooseOptions(m_session, "Conventional", "Fannie Mae EEM");
    m_session.Scenario.EEMNoticeFlag = true;
    Run();
    for (HomeCase home : {m_session.StdCase, m_session.GMHCase}) {
        home.FrontRatio = home.BackRatio = 0;
        EXPECT_EQ(Figures(home), Figures(HomeCase()));
    }
    for (const auto& entry : ResultLabelTable()) {
        const std::string& text = (m_session.Screen.*entry.Member).Text;
        if (text.find('$') != text.npos) {
            EXPECT_EQ(text, entry.Name == "Label6" ? "$0 more per month = $0 more today" : "$0")
                << entry.Name;
        }
    }
    EXPECT_EQ(m_session.Screen.lblNetCashMo.Text, "$0");
    EXPECT_EQ(m_session.Screen.lblStdQual.Text, "*NO");
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(Recalculation, TakesAnUnreadableFieldAsZeroSilently) {
    m_session.Screen.ecIncome.Text = "lots";
    m_session.Screen.ecStdHome.Text = "1e5";
    Run();
    EXPECT_EQ(m_session.Scenario.AnnualIncome, 0);
    EXPECT_EQ(m_session.StdCase.Cost, 0);
    EXPECT_EQ(m_session.Screen.ecIncome.Text, "lots");
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(Recalculation, DoesNotClampACheaperLabelledHome) {
    m_session.Screen.ecGMHHome.Text = "$190,000";
    Run();
    EXPECT_EQ(m_session.Scenario.CostDifference, -10000);
    EXPECT_EQ(m_session.Scenario.PriceDifference, -10000);
}

TEST_F(Recalculation, OfAnotherIncomeDoesNotChangeThePayments) {
    Run();
    const Session before = m_session;
    m_session.Screen.ecIncome.Text = "$150,000";
    Run();
    EXPECT_EQ(m_session.StdCase.PITI, before.StdCase.PITI);
    EXPECT_EQ(m_session.GMHCase.PITI, before.GMHCase.PITI);
    EXPECT_EQ(m_session.Scenario.MarginalTaxRate, 0.22F);
    EXPECT_GT(m_session.StdCase.MaxLoan, before.StdCase.MaxLoan);
    EXPECT_GT(m_session.Scenario.TaxSavings, before.Scenario.TaxSavings);
    EXPECT_GT(m_session.Scenario.NetMonthlyCashFlow, before.Scenario.NetMonthlyCashFlow);
    EXPECT_EQ(m_session.Scenario.NetBeforeTax, before.Scenario.NetBeforeTax);
}

TEST_F(Recalculation, StartsFromClearedResults) {
    m_session.Scenario.ClosingCostAdjust = 500;
    Run();
    EXPECT_EQ(m_session.Scenario.ClosingCostAdjust, 0);
    m_session.Screen.ecGMHRate.Text = "1000000000000"; // the cash flow faults at the first future value
    Run();
    EXPECT_EQ(m_session.Scenario.SavingsAfter7Years, 0);
    EXPECT_EQ(m_session.Scenario.SavingsAfter30Years, 0);
    EXPECT_EQ(m_session.Scenario.PVNetBeforeTax, 0);
}

TEST_F(Recalculation, GivesTheSameResultsEveryTime) {
    Run();
    const Session first = m_session;
    Run();
    EXPECT_EQ(Figures(m_session.StdCase), Figures(first.StdCase));
    EXPECT_EQ(Figures(m_session.GMHCase), Figures(first.GMHCase));
    for (const auto& entry : LabelTable())
        EXPECT_EQ((m_session.Screen.*entry.Member).Text, (first.Screen.*entry.Member).Text) << entry.Name;
}

TEST_F(Recalculation, KeepsTheOldRatiosWhereTheLoanTypeIsMissing) {
    Run();
    m_session.LoanTypes.resize(4);
    Run();
    EXPECT_EQ(m_session.GMHCase.PITI, 0);
    EXPECT_EQ(m_session.GMHCase.FrontRatio, 0.330F);
    EXPECT_EQ(m_session.GMHCase.BackRatio, 0.450F);
    EXPECT_GT(m_session.StdCase.PITI, 0);
}

TEST_F(Recalculation, KeepsTheLastAllowanceForAnotherOption) {
    Run();
    ChooseOptions(m_session, "Conventional", "Conventional");
    m_session.Screen.ecStdHome.Text = "$100,000";
    Run();
    EXPECT_EQ(m_session.Scenario.EEMAllowance, 8000);
}

TEST_F(Recalculation, FixedDownOnABasePriceOfZeroZeroesBothHomes) {
    m_session.Screen.optDownPayment = 1;
    m_session.Screen.ecStdHome.Text = "$0";
    m_session.Screen.ecMonthlyDebt.Text = "$0";
    m_session.Screen.ecFixedDown.Text = "$10,000";
    Run();
    for (const HomeCase& home : {m_session.StdCase, m_session.GMHCase}) {
        EXPECT_EQ(home.DownPayment, 0);
        EXPECT_EQ(home.LoanAmount, 0);
        EXPECT_EQ(home.PITI, 0);
        EXPECT_EQ(home.IncomeNeeded, 0);
        EXPECT_EQ(home.PVSavings, 0);
    }
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(Recalculation, AHigherLabelledRateAddsMortgageInRedAndSavesTaxes) {
    m_session.Screen.ecGMHHome.Text = "$200,000";
    m_session.Screen.ecGMHRate.Text = "7.000%";
    Run();
    EXPECT_EQ(m_session.Screen.lbladditionalmortgagetext.Text, "Additional Mortgage");
    EXPECT_EQ(m_session.Screen.lblAddMortMo.Text, "-$60"); // 1,137.72 - 1,197.54 = -59.82
    EXPECT_EQ(m_session.Screen.lblAddMortMo.Colour, TextColour::Red);
    EXPECT_NEAR(m_session.Scenario.TaxSavings, 8.38394, 1e-4); // (779.6359 - 709.7697) x 0.12
    EXPECT_EQ(m_session.Screen.lbltaxsavingstext.Text, "Tax Savings");
}

TEST_F(Recalculation, ShowsTheEEMNoticeOncePerEdit) {
    m_session.Screen.ecGMHHome.Text = "$209,229"; // an upgrade of 9,229 against savings worth 9,228.96
    m_session.Scenario.EEMNoticeFlag = true;
    std::string priceBehindTheNotice;
    m_host.OnMessage = [&](const Message&) { priceBehindTheNotice = m_session.Screen.lblGMHHome.Text; };
    Run();
    ASSERT_EQ(m_host.Messages.size(), 1U);
    const Message& notice = m_host.Messages.front();
    EXPECT_EQ(notice.Text, "The homebuyer may not qualify for the EEM you have selected because the present "
                           "value of the savings are less than the cost of the energy efficiency upgrade.");
    EXPECT_EQ(notice.Title, "Ledgrove");
    EXPECT_EQ(notice.Icon, MessageIcon::None);
    EXPECT_EQ(notice.Buttons, MessageButtons::Ok);
    EXPECT_EQ(priceBehindTheNotice, "$209,229"); // the figures that it speaks of
    m_session.Screen.ecIncome.Text = "$80,000";
    Run();
    EXPECT_EQ(m_host.Messages.size(), 1U);
}

TEST_F(Recalculation, ShowsNoEEMNoticeForAnUpgradeThatPays) {
    m_session.Screen.ecGMHHome.Text = "$209,228";
    m_session.Scenario.EEMNoticeFlag = true;
    Run();
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(Recalculation, YieldsOnceAtTheEnd) {
    std::string netWhenYielding;
    m_host.OnPendingEvents = [&] { netWhenYielding = m_session.Screen.lblNetCashMo.Text; };
    Run();
    EXPECT_EQ(m_host.PendingEventRuns, 1);
    EXPECT_EQ(netWhenYielding, "$13");
}

TEST_F(Recalculation, IsUpToDateUntilAnInputChanges) {
    EXPECT_FALSE(IsUpToDate(m_session));
    Run();
    EXPECT_TRUE(IsUpToDate(m_session));
    m_session.Screen.ecIncome.Text = "72000.00"; // the same amount in other words
    EXPECT_TRUE(IsUpToDate(m_session));
    m_session.Screen.ecIncome.Text = "$72,001";
    EXPECT_FALSE(IsUpToDate(m_session));
    Run();
    m_session.Screen.chkDoTax0 = false;
    EXPECT_FALSE(IsUpToDate(m_session));
}

TEST_F(Recalculation, IsNotUpToDateWhileTheNoticeFlagWaitsAfterAFault) {
    m_session.Screen.optDownPayment = 1; // on a base price of 0 a fault, which clears the savings' worth
    m_session.Screen.ecStdHome.Text = "$0";
    m_session.Scenario.EEMNoticeFlag = true;
    Run();
    ASSERT_EQ(m_host.Messages.size(), 1U);
    ASSERT_EQ(m_session.GMHCase.PVSavings, 0);
    m_session.Scenario.EEMNoticeFlag = true;
    EXPECT_FALSE(IsUpToDate(m_session));
}

TEST_F(Recalculation, IsNotUpToDateWhileTheNoticeFlagWaitsToBeSpent) {
    Run();
    m_session.Scenario.EEMNoticeFlag = true; // typed and typed back
    EXPECT_FALSE(IsUpToDate(m_session));
    Run();
    EXPECT_TRUE(IsUpToDate(m_session));
    ChooseOptions(m_session, "FHA", "FHA");
    Run();
    m_session.Scenario.EEMNoticeFlag = true;
    Run(); // an option that is not an EEM leaves it set
    EXPECT_TRUE(IsUpToDate(m_session));
}

struct PanelRow {
    int Tab;
    std::vector<bool> VisibleAtYields; ///< of the tab's own panel, including the recalculation's last yield
};

class Panels : public Recalculation, public testing::WithParamInterface<PanelRow> {};

TEST_P(Panels, AreShownBeforeOrAfterTheirYield) {
    const auto tab = static_cast<std::size_t>(GetParam().Tab);
    m_session.Screen.SSTab1 = GetParam().Tab;
    m_session.Screen.DetlFrame.fill(false);
    std::vector<bool> visible;
    m_host.OnPendingEvents = [&] { visible.push_back(m_session.Screen.DetlFrame[tab]); };
    Run();
    EXPECT_EQ(visible, GetParam().VisibleAtYields);
    for (std::size_t panel = 0; panel < TabCount; ++panel)
        EXPECT_EQ(m_session.Screen.DetlFrame[panel], panel == tab) << panel;
}

INSTANTIATE_TEST_SUITE_P(Tabs, Panels,
                         testing::Values(PanelRow{0, {true}}, PanelRow{1, {false, true}},
                                         PanelRow{2, {false, true}}, PanelRow{3, {true, true}},
                                         PanelRow{4, {true}}));

TEST_F(Recalculation, ShowsNoPanelForAnyOtherTab) {
    m_session.Screen.DetlFrame.fill(false);
    for (const int tab : {-1, 5}) {
        m_session.Screen.SSTab1 = tab;
        Run();
        EXPECT_THAT(m_session.Screen.DetlFrame, ElementsAre(false, false, false, false, false));
    }
    EXPECT_EQ(m_host.PendingEventRuns, 2);
}

class FeatureCaptions : public Recalculation {
protected:
    FeatureCaptions() {
        m_session.Screen.SSTab1 = 2;
        m_session.Features = {"Finished basement", " Larger deck"};
    }
    std::pair<std::string, std::string> Captions() {
        Run();
        return {m_session.Screen.lblfeature1.Text, m_session.Screen.lblfeature2.Text};
    }
};

using Texts = std::pair<std::string, std::string>;

TEST_F(FeatureCaptions, ShowBothTexts) {
    EXPECT_EQ(Captions(), Texts("Finished basement", " Larger deck"));
}

TEST_F(FeatureCaptions, AreEmptyWhenTheFirstTextIsBlank) {
    for (const char* blank : {"", " ", "   "}) {
        m_session.Features.Feature1 = blank;
        EXPECT_EQ(Captions(), Texts("", ""));
    }
}

TEST_F(FeatureCaptions, MayShowOnlyTheFirstText) {
    m_session.Features.Feature2 = " ";
    EXPECT_EQ(Captions(), Texts("Finished basement", " "));
}

TEST_F(FeatureCaptions, AreClearedWhenBothAmountsAreZero) {
    m_session.Screen.ecGMHHome.Text = m_session.Screen.ecStdHome.Text;
    m_session.Screen.ecGMHUtil.Text = m_session.Screen.ecStdUtil.Text;
    EXPECT_EQ(Captions(), Texts("", ""));
}

TEST_F(FeatureCaptions, StayWhileOneAmountIsNotZero) {
    m_session.Scenario.PVNetCashFlow = 1;
    RefreshFeatureCaptions(m_session);
    EXPECT_EQ(m_session.Screen.lblfeature1.Text, "Finished basement");
    m_session.Scenario.PVNetCashFlow = 0;
    m_session.Scenario.PVNetBeforeTax = -1;
    RefreshFeatureCaptions(m_session);
    EXPECT_EQ(m_session.Screen.lblfeature1.Text, "Finished basement");
}

TEST_F(FeatureCaptions, AreRefreshedOnlyWithTheirPanel) {
    m_session.Screen.SSTab1 = 4;
    EXPECT_EQ(Captions(), Texts("", ""));
}

} // namespace

} // namespace Ledgrove::Module1
