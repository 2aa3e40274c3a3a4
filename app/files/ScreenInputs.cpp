#include "app/files/ScreenInputs.h"

#include "engine/NumberText.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {

namespace {

void Put(InputRecord& inputs, std::string_view name, InputKind kind, std::string_view text) {
    InputValue& value = *inputs.Find(name);
    value.Present = true;
    value.Kind = kind;
    value.Text = text;
}

/// A percentage above 100 that was made from dollars would be taken for dollars when it is entered again, so
/// the dollars are given.
std::string PercentDownText(const MainScreen& screen) {
    const double percent = Module1::ParseFieldValue(screen.ecPctDown.Text, 1);
    if (!screen.PctDownConverted || percent <= 100)
        return screen.ecPctDown.Text;
    const double basePrice = Module1::ParseFieldValue(screen.ecStdHome.Text, 1);
    return Module1::FormatPicture(percent / 100 * basePrice, "#0.00");
}

} // namespace

InputRecord ScreenInputs(const MainScreen& screen) {
    InputRecord inputs;
    for (const EntryRule& rule : MainEntryRules()) {
        const bool isPercentDown = rule.Member == &MainScreen::ecPctDown;
        const std::string text = isPercentDown ? PercentDownText(screen) : (screen.*rule.Member).Text;
        if (!text.empty())
            Put(inputs, rule.Name, InputKind::Text, text);
    }
    for (const auto& [name, member] : PickListTable())
        Put(inputs, name, InputKind::Text, (screen.*member).Text());
    Put(inputs, "optDownPayment", InputKind::Number, screen.optDownPayment == 0 ? "0" : "1");
    Put(inputs, "chkDoTax0", InputKind::Boolean, screen.chkDoTax0 ? "true" : "false");
    return inputs;
}

} // namespace Ledgrove
