#include "ui/TextEntry.h"

#include <algorithm>

#include "ui/HouseScenarios.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove::Module1 {

namespace {

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
    const auto rules = MainEntryRules();
    const auto rule = std::find_if(rules.begin(), rules.end(),
                                   [&](const EntryRule& one) { return one.Name == entry.Control; });
    if (rule == rules.end())
        return;
    Field& field = context.State.Screen.*rule->Member;
    SetFieldText(context.State, field, entry.Text);
    LeaveField(context, field, rule->Format, rule->After);
}

} // namespace

void EnterTexts(EntryContext& context, std::span<const EntryText> texts) {
    for (const EntryText& entry : texts)
        EnterText(context, entry);
}

} // namespace Ledgrove::Module1
