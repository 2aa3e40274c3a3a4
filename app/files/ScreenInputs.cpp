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

/// A number above 100 would count as dollars when it is entered again.
bool NeedsConversion(const MainScreen& screen) {
    return Module1::ParseFieldValue(screen.ecPctDown.Text, 1) > 100;
}

} // namespace

InputRecord ScreenInputs(const MainScreen& screen) {
    InputRecord inputs;
    for (const EntryInput& entry : EntryInputs()) {
        const std::string& text = (screen.*entry.Rule.Member).Text;
        if (!text.empty())
            Put(inputs, entry.Which, InputKind::Text, text);
    }
    Put(inputs, Input::cboMortTerm, InputKind::Text, screen.cboMortTerm.Text());
    Put(inputs, Input::cboStdMortOption, InputKind::Text, screen.cboStdMortOption.Text());
    Put(inputs, Input::cboGMHMortOption, InputKind::Text, screen.cboGMHMortOption.Text());
    Put(inputs, Input::optDownPayment, InputKind::Number, screen.optDownPayment == 0 ? "0" : "1");
    Put(inputs, Input::chkDoTax0, InputKind::Boolean, screen.chkDoTax0 ? "true" : "false");
    if (NeedsConversion(screen))
        Put(inputs, Input::PctDownConverted, InputKind::Boolean, screen.PctDownConverted ? "true" : "false");
    if (screen.lblHomeName.Text != CustomHouse)
        Put(inputs, Input::lblHomeName, InputKind::Text, screen.lblHomeName.Text);
    return inputs;
}

} // namespace Ledgrove
