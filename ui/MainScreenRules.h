#pragma once

#include <array>
#include <optional>

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/Entry.h"

// What the controls of the main screen do, on the screen record.
namespace Ledgrove {

/// How one edit field of the main screen is entered.
struct EntryRule {
    std::string_view Name;
    Field MainScreen::*Member;
    FieldFormat Format; ///< the same on key press and on lost focus
    Module1::AfterEdit After;
};

/// The main screen's edit fields in tab order.
std::span<const EntryRule> MainEntryRules();

struct TabPage {
    const char* Caption;
    int HelpContext;
};

inline constexpr std::array<TabPage, TabCount> TabPages{
    {{"Welcome", 501}, {"Cash Flow", 504}, {"More Home", 505}, {"Affordability", 506}, {"Summary", 507}}};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Fills the labelled home's options by the base choice and selects the first, without message or
/// recalculation. True when the base list has an item of this text.
bool SetBaseOption(MainScreen& screen, std::string_view text);

/// Selects one of the labelled home's options and remembers an EEM type in the notice flag. True as above.
bool SetLabelledOption(Session& session, std::string_view text);

/// Selects the term, "10 years" to "40 years". True as above.
bool SetTerm(Session& session, std::string_view text);

/// Puts one of the two down payment fields in force: 0 the percentage, 1 the fixed amount; the other is
/// greyed.
void SetDownPayment(Session& session, int option);

/// The message that goes with choosing "Fannie Mae EEM"; nothing for other options.
std::optional<Message> OptionMessage(std::optional<MortgageOption> labelledOption);

// The clicks: the same with message, flag and recalculation as the window's user meets them.
void ClickBaseOption(Session& session, Host& host, std::string_view text);
void ClickLabelledOption(Session& session, Host& host, std::string_view text);
void ClickTerm(Session& session, Host& host, std::string_view text);
void ClickDownPayment(Session& session, Host& host, int option);
void ClickTaxes(Session& session, Host& host, bool checked);

/// Shows the panel of `tab` instead of the one shown last; another result tab runs the data check.
void ClickTab(Session& session, Host& host, int tab);

Message DisclaimerMessage();

/// The five numbered steps of the Welcome tab, and the second caption of the fifth.
inline constexpr int WelcomeStepCount = 5;
std::array<std::string_view, WelcomeStepCount> WelcomeSteps();
std::string_view WelcomePrintStep();

/// The footnote of the Summary tab, as it is read.
std::string_view SummaryFootnote();

} // namespace Ledgrove::Module1
