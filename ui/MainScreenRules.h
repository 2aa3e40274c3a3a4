#pragma once

#include <array>
#include <optional>

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/Entry.h"

// The behaviour of the main screen's controls, on the screen record.
namespace Ledgrove {

/// The entry rules of one edit field on the main screen.
struct EntryRule {
    std::string_view Name;
    Field MainScreen::*Member;
    FieldFormat Format; ///< the same for key presses and for lost focus
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

/// Whether the edit field of this name would refuse its text. False if there is no such field.
bool IsRefused(const MainScreen& screen, std::string_view control);

/// Selects a base option, fills the list of the labelled home's options for it and selects the first of them,
/// without a message or a recalculation. Returns whether the base list has an item with this text.
bool SetBaseOption(MainScreen& screen, std::string_view text);

/// Selects one of the labelled home's options; an EEM option sets the notice flag. Returns whether the list
/// has the text.
bool SetLabelledOption(Session& session, std::string_view text);

/// Selects the term, "10 years" to "40 years". Returns whether the list has the text.
bool SetTerm(Session& session, std::string_view text);

/// Selects the down payment field that applies: 0 the percentage, 1 the fixed amount. The other field becomes
/// grey.
void SetDownPayment(Session& session, int option);

/// The message that appears when "Fannie Mae EEM" is chosen; empty for other options.
std::optional<Message> OptionMessage(std::optional<MortgageOption> labelledOption);

// A user's clicks on the controls, including the messages, the notice flag and the recalculation.
void ClickBaseOption(Session& session, Host& host, std::string_view text);
void ClickLabelledOption(Session& session, Host& host, std::string_view text);
void ClickTerm(Session& session, Host& host, std::string_view text);
void ClickDownPayment(Session& session, Host& host, int option);
void ClickTaxes(Session& session, Host& host, bool checked);

/// Shows the panel of `tab`. Switching to a different result tab runs the data check.
void ClickTab(Session& session, Host& host, int tab);

Message DisclaimerMessage();

/// The five numbered steps of the Welcome tab; WelcomePrintStep is the second caption of step five.
inline constexpr int WelcomeStepCount = 5;
std::array<std::string_view, WelcomeStepCount> WelcomeSteps();
std::string_view WelcomePrintStep();

/// The footnote of the Summary tab as plain text: its "&" does not mark a mnemonic.
std::string_view SummaryFootnote();

} // namespace Ledgrove::Module1
