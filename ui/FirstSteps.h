#pragma once

#include <string_view>

#include "engine/MainScreen.h"

namespace Ledgrove {

/// The next step towards a first result: a sentence for the user and the control to use.
struct FirstStep {
    std::string_view Sentence;
    std::string_view Button;  ///< the caption of the button that goes to the control
    std::string_view Control; ///< the control's name; the tab strip if no input is missing
};

/// The first input that a comparison still needs; the results if none is missing.
FirstStep NextFirstStep(const MainScreen& screen);

/// Whether none of the needed inputs has been entered. A field that shows $0 counts as not entered, because
/// leaving an empty field sets it to $0.
bool IsUntouched(const MainScreen& screen);

} // namespace Ledgrove
