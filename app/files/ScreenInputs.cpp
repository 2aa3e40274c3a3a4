#include "app/files/ScreenInputs.h"

#include "app/batch/EntryInputs.h"
#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

void Put(InputRecord& inputs, Input input, InputKind kind, std::string_view text) {
    InputValue& value = inputs[input];
    value.Present = true;
    value.Kind = kind;
    value.Text = text;
}

/// A percentage above 100 that was computed from dollars would count as dollars when it is entered again, so
/// this returns the dollars.
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
    for (const EntryInput& entry : EntryInputs()) {
        const bool isPercentDown = entry.Which == Input::ecPctDown;
        const std::string text = isPercentDown ? PercentDownText(screen) : (screen.*entry.Rule.Member).Text;
        if (!text.empty())
            Put(inputs, entry.Which, InputKind::Text, text);
    }
    Put(inputs, Input::cboMortTerm, InputKind::Text, screen.cboMortTerm.Text());
    Put(inputs, Input::cboStdMortOption, InputKind::Text, screen.cboStdMortOption.Text());
    Put(inputs, Input::cboGMHMortOption, InputKind::Text, screen.cboGMHMortOption.Text());
    Put(inputs, Input::optDownPayment, InputKind::Number, screen.optDownPayment == 0 ? "0" : "1");
    Put(inputs, Input::chkDoTax0, InputKind::Boolean, screen.chkDoTax0 ? "true" : "false");
    return inputs;
}

} // namespace Ledgrove
