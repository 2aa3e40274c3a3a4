#include "ui/MainScreenRules.h"

#include "tests/ui/EntryDesk.h"

#include <gmock/gmock.h>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;
using testing::ElementsAre;

constexpr const char* fannieMaeMessage =
    "Fannie Mae offers two types of energy efficient mortgages (EEMs).  Fannie Mae's traditional EEM allows "
    "a "
    "home buyer to qualify for a higher loan amount based on the value of the energy savings, and requires a "
    "3% "
    "buyer contribution.  Fannie Mae's MyCommunity Mortgage EEM is similar, but only requires the lesser of "
    "$500 "
    "or one percent of the borrower contribution to the transaction, which can come from a variety of "
    "sources.  "
    "The MyCommunity Mortgage EEM is available to borrowers meeting certain income requirements, with "
    "exceptions "
    "for high-cost areas.  Special restrictions apply, so contact your loan officer or Fannie Mae's Consumer "
    "Resource Center at 1-800-732-6643 for more details.";

class MainScreenClicks : public testing::Test {
protected:
    MainScreen& Screen() { return m_session.Screen; }

    Session m_session = SampleSession();
    ScriptedHost m_host;
};

TEST_F(MainScreenClicks, EveryInputFieldHasItsFormatAndItsStepsAfterwards) {
    struct Row {
        const char* Name;
        FieldFormat Format;
        AfterEdit After;
    };
    const auto recalculate = AfterEdit::Recalculate;
    const auto withHouse = AfterEdit::RecalculateAndCheckHouse;
    const Row rows[] = {
        {"ecIncome", FieldFormat::Dollar, recalculate},   {"ecMonthlyDebt", FieldFormat::Dollar, recalculate},
        {"ecPctDown", FieldFormat::Percent, recalculate}, {"ecFixedDown", FieldFormat::Dollar, recalculate},
        {"ecStdHome", FieldFormat::Dollar, withHouse},    {"ecGMHHome", FieldFormat::Dollar, withHouse},
        {"ecStdUtil", FieldFormat::Dollar, withHouse},    {"ecGMHUtil", FieldFormat::Dollar, withHouse},
        {"ecStdRate", FieldFormat::IntRate, recalculate}, {"ecGMHRate", FieldFormat::IntRate, recalculate},
        {"ecStdStr", FieldFormat::Percent, recalculate},  {"ecGMHStr", FieldFormat::Percent, recalculate}};
    ASSERT_EQ(MainEntryRules().size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const EntryRule& rule = MainEntryRules()[i];
        EXPECT_EQ(rule.Name, rows[i].Name);
        EXPECT_EQ(rule.Format, rows[i].Format) << rule.Name;
        EXPECT_EQ(rule.After, rows[i].After) << rule.Name;
        EXPECT_EQ(&(Screen().*rule.Member), &FieldNamed(m_session, rule.Name));
    }
}

struct BaseOptionRow {
    const char* Base;
    std::vector<const char*> Labelled;
};

class BaseOption : public MainScreenClicks, public testing::WithParamInterface<BaseOptionRow> {};

TEST_P(BaseOption, RefillsTheLabelledHomesListAndChoosesItsFirst) {
    ClickBaseOption(m_session, m_host, GetParam().Base);
    EXPECT_EQ(Screen().cboStdMortOption.Text(), GetParam().Base);
    std::vector<std::string_view> items;
    for (const PickItem& item : Screen().cboGMHMortOption.Items)
        items.push_back(item.Text);
    EXPECT_EQ(items, std::vector<std::string_view>(GetParam().Labelled.begin(), GetParam().Labelled.end()));
    EXPECT_EQ(Screen().cboGMHMortOption.Text(), GetParam().Labelled.front());
    EXPECT_TRUE(m_host.Messages.empty());
    EXPECT_FALSE(m_session.Scenario.EEMNoticeFlag);
    EXPECT_EQ(m_host.PendingEventRuns, 1); // from one recalculation
}

INSTANTIATE_TEST_SUITE_P(
    Choices, BaseOption,
    testing::Values(BaseOptionRow{"Conventional", {"Conventional", "Fannie Mae EEM", "Freddie Mac EEM"}},
                    BaseOptionRow{"FHA", {"FHA", "FHA EEM"}}, BaseOptionRow{"VA", {"VA", "VA EEM"}}));

TEST_F(MainScreenClicks, ABaseOptionReachesTheResults) {
    ClickBaseOption(m_session, m_host, "VA");
    EXPECT_EQ(m_session.StdCase.FrontRatio, 0.410F);
    EXPECT_EQ(m_session.GMHCase.FrontRatio, 0.410F);
    EXPECT_EQ(Screen().lblStdInc.Text, "$2,110"); // 72,000 x 0.41 / 12 - 350
}

TEST_F(MainScreenClicks, AnUnknownOptionChangesNothing) {
    ClickBaseOption(m_session, m_host, "VA EEM");
    ClickLabelledOption(m_session, m_host, "Fannie Mae EEM");
    ClickTerm(m_session, m_host, "12 years");
    EXPECT_EQ(Screen().cboStdMortOption.Text(), "FHA");
    EXPECT_EQ(Screen().cboGMHMortOption.Text(), "FHA EEM");
    EXPECT_EQ(Screen().xMortTerm, 30);
    EXPECT_EQ(m_host.PendingEventRuns, 0);
    EXPECT_TRUE(m_host.Messages.empty());
    EXPECT_FALSE(SetBaseOption(Screen(), ""));
    EXPECT_FALSE(SetLabelledOption(m_session, "VA"));
    EXPECT_FALSE(SetTerm(m_session, "30"));
}

TEST_F(MainScreenClicks, FannieMaeShowsItsMessageEveryTime) {
    ClickBaseOption(m_session, m_host, "Conventional");
    Screen().ecGMHHome.Text = "$206,000";
    for (std::size_t times = 1; times <= 2; ++times) {
        ClickLabelledOption(m_session, m_host, "Fannie Mae EEM");
        ASSERT_EQ(m_host.Messages.size(), times);
        const Message& message = m_host.Messages.back();
        EXPECT_EQ(message.Text, fannieMaeMessage);
        EXPECT_EQ(message.Title, "Ledgrove");
        EXPECT_EQ(message.Icon, MessageIcon::None);
        EXPECT_EQ(message.Buttons, MessageButtons::Ok);
    }
}

TEST_F(MainScreenClicks, NoOtherOptionHasAMessage) {
    using enum MortgageOption;
    for (const MortgageOption option : {Conventional, FreddieMacEEM, FHA, FHAEEM, VA, VAEEM})
        EXPECT_FALSE(OptionMessage(option)) << CodeOf(option);
    EXPECT_FALSE(OptionMessage(std::nullopt));
    EXPECT_TRUE(OptionMessage(MortgageOption::FannieMaeEEM));
}

TEST_F(MainScreenClicks, TheMessageComesBeforeTheNotice) {
    ClickBaseOption(m_session, m_host, "Conventional");
    Screen().ecGMHHome.Text = "$220,000"; // an upgrade of 20,000 for savings worth 9,229
    ClickLabelledOption(m_session, m_host, "Fannie Mae EEM");
    ASSERT_EQ(m_host.Messages.size(), 2U);
    EXPECT_EQ(m_host.Messages[0].Text, fannieMaeMessage);
    EXPECT_TRUE(m_host.Messages[1].Text.starts_with("The homebuyer may not qualify"));
}

TEST_F(MainScreenClicks, OnlyAnEEMOptionSetsTheNoticeFlag) {
    const struct {
        const char *Base, *Labelled;
        bool Flag;
    } rows[] = {{"Conventional", "Conventional", false},
                {"Conventional", "Fannie Mae EEM", true},
                {"Conventional", "Freddie Mac EEM", true},
                {"FHA", "FHA", false},
                {"FHA", "FHA EEM", true},
                {"VA", "VA", false},
                {"VA", "VA EEM", true}};
    for (const auto& row : rows) {
        SetBaseOption(Screen(), row.Base);
        m_session.Scenario.EEMNoticeFlag = false;
        EXPECT_TRUE(SetLabelledOption(m_session, row.Labelled));
        EXPECT_EQ(m_session.Scenario.EEMNoticeFlag, row.Flag) << row.Labelled;
    }
}

TEST_F(MainScreenClicks, TheLoanTypeTableDefinesTheEEMs) {
    m_session.LoanTypes[4].IsEEM = false;
    SetLabelledOption(m_session, "FHA EEM");
    EXPECT_FALSE(m_session.Scenario.EEMNoticeFlag);
    m_session.LoanTypes.clear();
    EXPECT_TRUE(SetLabelledOption(m_session, "FHA EEM"));
    EXPECT_FALSE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(MainScreenClicks, APlainOptionKeepsAPendingNotice) {
    m_session.Scenario.EEMNoticeFlag = true;
    SetLabelledOption(m_session, "FHA");
    EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(MainScreenClicks, ATermSetsItsTextAndRecalculates) {
    ClickTerm(m_session, m_host, "40 years");
    EXPECT_EQ(Screen().xMortTerm, 40);
    EXPECT_EQ(Screen().cboMortTerm.Text(), "40 years");
    EXPECT_EQ(Screen().ecGMHTerm.Text, "40 years");
    EXPECT_EQ(m_host.PendingEventRuns, 1);
    EXPECT_EQ(Screen().lblStdMortPayment.Text, "$1,054"); // 180,000 at 6.5 % over 480 months: 1,053.82
}

TEST_F(MainScreenClicks, ATermSetsTheNoticeFlagForThatRecalculation) {
    Screen().ecGMHHome.Text = "$220,000";
    ClickTerm(m_session, m_host, "15 years");
    EXPECT_EQ(m_host.Messages.size(), 1U);
    ChooseOptions(m_session, "FHA", "FHA");
    ClickTerm(m_session, m_host, "20 years");
    EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(MainScreenClicks, TheTermsYearsAreTheFirstTwoCharacters) {
    for (const PickItem& item : TermItems()) {
        ClickTerm(m_session, m_host, item.Text);
        EXPECT_EQ(std::to_string(Screen().xMortTerm), item.Text.substr(0, 2));
    }
}

TEST_F(MainScreenClicks, TheUnselectedDownPaymentFieldIsGrey) {
    Screen().ecFixedDown.Text = "$30,000";
    ClickDownPayment(m_session, m_host, 1);
    EXPECT_EQ(Screen().optDownPayment, 1);
    EXPECT_FALSE(m_session.Scenario.DownAsPercent);
    EXPECT_EQ(Screen().ecPctDown.Colour, TextColour::Grey);
    EXPECT_EQ(Screen().ecFixedDown.Colour, TextColour::Normal);
    EXPECT_EQ(m_session.StdCase.DownPayment, 30000);
    ClickDownPayment(m_session, m_host, 0);
    EXPECT_EQ(Screen().optDownPayment, 0);
    EXPECT_TRUE(m_session.Scenario.DownAsPercent);
    EXPECT_EQ(Screen().ecPctDown.Colour, TextColour::Normal);
    EXPECT_EQ(Screen().ecFixedDown.Colour, TextColour::Grey);
    EXPECT_EQ(m_session.StdCase.DownPayment, 20000);
    EXPECT_EQ(m_host.PendingEventRuns, 2);
}

TEST_F(MainScreenClicks, TheTaxBoxHidesTheSummarysTaxesAndRecalculates) {
    ClickTaxes(m_session, m_host, false);
    EXPECT_FALSE(Screen().chkDoTax0);
    EXPECT_FALSE(Screen().lblTaxSavmo2Text.Visible);
    EXPECT_FALSE(Screen().lbltaxsavmo2.Visible);
    EXPECT_EQ(Screen().lblNetCashMo.Text, "$10"); // 58.33 - 47.97
    EXPECT_NEAR(m_session.Scenario.NetMonthlyCashFlow, 13.1984, 0.0005);
    ClickTaxes(m_session, m_host, true);
    EXPECT_TRUE(Screen().lbltaxsavmo2.Visible);
    EXPECT_EQ(Screen().lblNetCashMo.Text, "$13");
    EXPECT_EQ(m_host.PendingEventRuns, 2);
}

class TabClicks : public MainScreenClicks {
protected:
    TabClicks() {
        Screen().ecIncome.Text = "$0"; // so that the data check has a remark
    }
    /// The number of data check messages so far.
    std::size_t Checks() const {
        for (const Message& message : m_host.Messages)
            EXPECT_EQ(message.Title, "Ledgrove Data Check");
        return m_host.Messages.size();
    }
};

TEST_F(TabClicks, ReplaceTheOldPanelWithTheNewOne) {
    for (const int tab : {1, 2, 3, 4, 0, 3}) {
        ClickTab(m_session, m_host, tab);
        EXPECT_EQ(Screen().SSTab1, tab);
        for (int panel = 0; panel < TabCount; ++panel)
            EXPECT_EQ(Screen().DetlFrame[static_cast<std::size_t>(panel)], panel == tab) << panel;
    }
}

TEST_F(TabClicks, RunTheDataCheckForAnotherResultTab) {
    ClickTab(m_session, m_host, 1);
    EXPECT_EQ(Checks(), 1U);
    ClickTab(m_session, m_host, 4);
    EXPECT_EQ(Checks(), 2U);
    ClickTab(m_session, m_host, 1); // the same message again
    EXPECT_EQ(Checks(), 3U);
    ClickTab(m_session, m_host, 1);
    EXPECT_EQ(Checks(), 3U);
    ClickTab(m_session, m_host, 0);
    EXPECT_EQ(Checks(), 3U);
}

TEST_F(TabClicks, HideTheOldPanelBeforeTheCheckAndShowTheNewOneAfterIt) {
    m_host.OnMessage = [this](const Message&) {
        EXPECT_THAT(Screen().DetlFrame, ElementsAre(false, false, false, false, false));
    };
    ClickTab(m_session, m_host, 4);
    EXPECT_EQ(Checks(), 1U);
}

TEST_F(TabClicks, EndByRunningPendingEvents) {
    bool shownAtLast = false;
    m_host.OnPendingEvents = [&] {
        shownAtLast = Screen().DetlFrame[static_cast<std::size_t>(Screen().SSTab1)];
    };
    const int runs[] = {1, 2, 2, 2, 1}; // the panels of Cash Flow, More Home and Affordability also yield
    for (const int tab : {1, 2, 3, 4, 0}) {
        m_host.PendingEventRuns = 0;
        ClickTab(m_session, m_host, tab);
        EXPECT_EQ(m_host.PendingEventRuns, runs[tab]) << tab;
        EXPECT_TRUE(shownAtLast) << tab;
    }
}

TEST_F(TabClicks, OnMoreHomeFillTheFeatureTexts) {
    m_session.Features = {"Finished basement", "Larger deck"};
    ClickDownPayment(m_session, m_host, 0); // a recalculation
    EXPECT_EQ(Screen().lblfeature1.Text, "");
    ClickTab(m_session, m_host, 2);
    EXPECT_EQ(Screen().lblfeature1.Text, "Finished basement");
    EXPECT_EQ(Screen().lblfeature2.Text, "Larger deck");
}

TEST_F(TabClicks, KeepTheResultsOfTheLastRecalculation) {
    ClickTab(m_session, m_host, 3);
    EXPECT_EQ(Screen().lblStdMaxHome.Text, "");
}

TEST(MainScreenTexts, TabsHaveTheirCaptionsAndHelpContexts) {
    const std::pair<std::string, int> wanted[] = {
        {"Welcome", 501}, {"Cash Flow", 504}, {"More Home", 505}, {"Affordability", 506}, {"Summary", 507}};
    ASSERT_EQ(TabPages.size(), std::size(wanted));
    for (std::size_t tab = 0; tab < TabPages.size(); ++tab) {
        EXPECT_EQ(TabPages[tab].Caption, wanted[tab].first);
        EXPECT_EQ(TabPages[tab].HelpContext, wanted[tab].second);
    }
}

TEST(MainScreenTexts, TheDisclaimer) {
    const Message message = DisclaimerMessage();
    EXPECT_EQ(message.Title, "GREENMARK Ledgrove Disclaimer");
    EXPECT_EQ(message.Icon, MessageIcon::Information);
    EXPECT_EQ(message.Buttons, MessageButtons::Ok);
    EXPECT_EQ(
        message.Text,
        "Because actual home energy costs vary with occupant preferences and the weather, the U.S. Corvane "
        "cannot guarantee the energy savings reported in Ledgrove. It is the responsibility of the user to "
        "ensure that the inputs are accurate and the estimated utility costs are based on a certified home "
        "energy rating or equivalent.");
}

TEST(MainScreenTexts, TheWelcomeSteps) {
    const auto steps = WelcomeSteps();
    EXPECT_EQ(steps[0],
              "Enter Homebuyer Annual Income, Monthly Debt Payments, and Down Payment (% or fixed amount).");
    EXPECT_EQ(steps[1],
              "Select a House Scenario, or enter Sticker Price and Annual Utility Costs (from HERS or BOP) "
              "for the Base and GREENMARK homes.");
    EXPECT_EQ(steps[2],
              "Enter Interest Rate for both homes, then select Term.  Select Mortgage Options for both "
              "homes.  Note that GREENMARK Homes usually qualify for Energy Efficiency Mortgages.");
    EXPECT_EQ(steps[3], "Review/Edit Financial Assumptions and Options to match user preferences.");
    EXPECT_EQ(steps[4], "View results by selecting tabs above.");
    EXPECT_EQ(WelcomePrintStep(), "Select Print Reports.  Add your company name and logo to reports by "
                                  "selecting the Report Header button. "
                                  " Select the sections you want to print, then Preview and Print.");
}

} // namespace

} // namespace Ledgrove::Module1
