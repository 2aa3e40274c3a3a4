#include "ui/MainScreenRules.h"

#include <algorithm>

#include "engine/Recalculate.h"
#include "ui/DataCheck.h"

namespace Ledgrove {

namespace {

using Module1::AfterEdit;

constexpr EntryRule entryRules[] = {
    {"ecIncome", &MainScreen::ecIncome, FieldFormat::Dollar, AfterEdit::Recalculate},
    {"ecMonthlyDebt", &MainScreen::ecMonthlyDebt, FieldFormat::Dollar, AfterEdit::Recalculate},
    {"ecPctDown", &MainScreen::ecPctDown, FieldFormat::Percent, AfterEdit::Recalculate},
    {"ecFixedDown", &MainScreen::ecFixedDown, FieldFormat::Dollar, AfterEdit::Recalculate},
    {"ecStdHome", &MainScreen::ecStdHome, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse},
    {"ecGMHHome", &MainScreen::ecGMHHome, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse},
    {"ecStdUtil", &MainScreen::ecStdUtil, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse},
    {"ecGMHUtil", &MainScreen::ecGMHUtil, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse},
    {"ecStdRate", &MainScreen::ecStdRate, FieldFormat::IntRate, AfterEdit::Recalculate},
    {"ecGMHRate", &MainScreen::ecGMHRate, FieldFormat::IntRate, AfterEdit::Recalculate},
    {"ecStdStr", &MainScreen::ecStdStr, FieldFormat::Percent, AfterEdit::Recalculate},
    {"ecGMHStr", &MainScreen::ecGMHStr, FieldFormat::Percent, AfterEdit::Recalculate},
};

} // namespace

std::span<const EntryRule> MainEntryRules() {
    return entryRules;
}

} // namespace Ledgrove

namespace Ledgrove::Module1 {

namespace {

bool Select(PickList& list, std::string_view text) {
    const int index = list.IndexOf(text);
    if (index < 0)
        return false;
    list.Selected = index;
    return true;
}

void FinishLabelledOption(Session& session, Host& host) {
    const PickList& option = session.Screen.cboGMHMortOption;
    if (const auto message = OptionMessage(option.Option()))
        host.ShowMessage(*message);
    Recalculate(session, host);
}

} // namespace

bool IsRefused(const MainScreen& screen, std::string_view control) {
    return std::any_of(std::begin(entryRules), std::end(entryRules), [&](const EntryRule& rule) {
        return rule.Name == control && !FieldComplaint((screen.*rule.Member).Text, rule.Format).empty();
    });
}

bool SetBaseOption(MainScreen& screen, std::string_view text) {
    if (!Select(screen.cboStdMortOption, text))
        return false;
    screen.cboGMHMortOption.Items = LabelledOptionItems(screen.cboStdMortOption.Option());
    screen.cboGMHMortOption.Selected = 0;
    return true;
}

bool SetLabelledOption(Session& session, std::string_view text) {
    if (!Select(session.Screen.cboGMHMortOption, text))
        return false;
    const LoanType* loanType = FindLoanType(session.LoanTypes, session.Screen.cboGMHMortOption.Option());
    if (loanType && loanType->IsEEM)
        session.Scenario.EEMNoticeFlag = true;
    return true;
}

bool SetTerm(Session& session, std::string_view text) {
    MainScreen& screen = session.Screen;
    if (!Select(screen.cboMortTerm, text))
        return false;
    screen.xMortTerm = screen.cboMortTerm.Code();
    screen.ecGMHTerm.Text = text;
    session.Scenario.EEMNoticeFlag = true;
    return true;
}

void SetDownPayment(Session& session, int option) {
    MainScreen& screen = session.Screen;
    screen.optDownPayment = option;
    session.Scenario.DownAsPercent = option == 0;
    screen.ecPctDown.Colour = option == 0 ? TextColour::Normal : TextColour::Grey;
    screen.ecFixedDown.Colour = option == 0 ? TextColour::Grey : TextColour::Normal;
}

std::optional<Message> OptionMessage(std::optional<MortgageOption> labelledOption) {
    if (labelledOption != MortgageOption::FannieMaeEEM)
        return std::nullopt;
    return Message{
        ApplicationTitle,
        "Fannie Mae offers two types of energy efficient mortgages (EEMs).  Fannie Mae's traditional EEM "
        "allows a "
        "home buyer to qualify for a higher loan amount based on the value of the energy savings, and "
        "requires a 3% "
        "buyer contribution.  Fannie Mae's MyCommunity Mortgage EEM is similar, but only requires the lesser "
        "of $500 "
        "or one percent of the borrower contribution to the transaction, which can come from a variety of "
        "sources.  "
        "The MyCommunity Mortgage EEM is available to borrowers meeting certain income requirements, with "
        "exceptions for high-cost areas.  Special restrictions apply, so contact your loan officer or Fannie "
        "Mae's "
        "Consumer Resource Center at 1-800-732-6643 for more details."};
}

void ClickBaseOption(Session& session, Host& host, std::string_view text) {
    // Selecting the first labelled option is a click too: its message and recalculation produce the results.
    if (SetBaseOption(session.Screen, text))
        ClickLabelledOption(session, host, session.Screen.cboGMHMortOption.Text());
}

void ClickLabelledOption(Session& session, Host& host, std::string_view text) {
    if (SetLabelledOption(session, text))
        FinishLabelledOption(session, host);
}

void ClickTerm(Session& session, Host& host, std::string_view text) {
    if (SetTerm(session, text))
        Recalculate(session, host);
}

void ClickDownPayment(Session& session, Host& host, int option) {
    SetDownPayment(session, option);
    Recalculate(session, host);
}

void ClickTaxes(Session& session, Host& host, bool checked) {
    session.Screen.chkDoTax0 = checked;
    Recalculate(session, host);
}

void ClickTab(Session& session, Host& host, int tab) {
    MainScreen& screen = session.Screen;
    const int previous = screen.SSTab1;
    screen.DetlFrame[static_cast<std::size_t>(previous)] = false;
    screen.SSTab1 = tab;
    if (tab != previous && tab != 0)
        RunDataCheck(screen, host);
    ShowCurrentPanel(session, host);
    host.RunPendingEvents();
}

Message DisclaimerMessage() {
    return {"GREENMARK Ledgrove Disclaimer",
            "Because actual home energy costs vary with occupant preferences and the weather, "
            "the U.S. Corvane cannot guarantee the energy savings reported in Ledgrove. It is the "
            "responsibility of the user to ensure that the inputs are accurate and the "
            "estimated utility costs are based on a certified home energy rating or equivalent.",
            MessageIcon::Information};
}

std::array<std::string_view, WelcomeStepCount> WelcomeSteps() {
    return {"Enter Homebuyer Annual Income, Monthly Debt Payments, and Down Payment (% or fixed amount).",
            "Select a House Scenario, or enter Sticker Price and Annual Utility Costs (from HERS or BOP) for "
            "the Base "
            "and GREENMARK homes.",
            "Enter Interest Rate for both homes, then select Term.  Select Mortgage Options for both homes.  "
            "Note that "
            "GREENMARK Homes usually qualify for Energy Efficiency Mortgages.",
            "Review/Edit Financial Assumptions and Options to match user preferences.",
            "View results by selecting tabs above."};
}

std::string_view WelcomePrintStep() {
    return "Select Print Reports.  Add your company name and logo to reports by selecting the Report Header "
           "button.  "
           "Select the sections you want to print, then Preview and Print.";
}

std::string_view SummaryFootnote() {
    return "*Ledgrove only provides estimates & does not account for LTV - check with your bank";
}

} // namespace Ledgrove::Module1
