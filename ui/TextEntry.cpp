#include "ui/TextEntry.h"

#include <algorithm>

#include "ui/HouseScenarios.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove::Module1 {

namespace {

const EntryRule* RuleOf(const EntryText& entry) {
    const auto rules = MainEntryRules();
    const auto rule = std::find_if(rules.begin(), rules.end(),
                                   [&](const EntryRule& one) { return one.Name == entry.Control; });
    return rule == rules.end() ? nullptr : &*rule;
}

using Choose = void (*)(Session&, Host&, std::string_view);

Choose ChoiceOf(std::string_view control) {
    if (control == "cboMortTerm")
        return ClickTerm;
    if (control == "cboStdMortOption")
        return ClickBaseOption;
    return control == "cboGMHMortOption" ? ClickLabelledOption : nullptr;
}

void EnterText(EntryContext& context, const EntryText& entry) {
    if (const Choose choose = ChoiceOf(entry.Control))
        return choose(context.State, context.Outside, entry.Text);
    if (entry.Control == "lblHomeName")
        return NameHouse(entry.Text, context.State);
    if (const EntryRule* rule = RuleOf(entry))
        LeaveField(context, context.State.Screen.*rule->Member, rule->Format, rule->After);
}

} // namespace

void EnterTexts(EntryContext& context, std::span<const EntryText> texts) {
    // All are there before the first is evaluated: a price with the bill of another house may bring a
    // warning.
    for (const EntryText& entry : texts) {
        if (const EntryRule* rule = RuleOf(entry))
            SetFieldText(context.State, context.State.Screen.*rule->Member, entry.Text);
    }
    for (const EntryText& entry : texts)
        EnterText(context, entry);
}

} // namespace Ledgrove::Module1
