#pragma once

#include <string_view>

#include "engine/MainScreen.h"

namespace Ledgrove {

/// What leads to a first result: a sentence, and the control that is to be used for it.
struct FirstStep {
    std::string_view Sentence;
    std::string_view Button;  ///< the caption of a button that goes there
    std::string_view Control; ///< its name; a tab strip when everything needed is entered
};

/// The first input that is still missing for a comparison with figures; the results when none is.
FirstStep NextFirstStep(const MainScreen& screen);

/// Whether none of the inputs that a comparison needs has been entered; a field that was only passed through
/// shows $0.
bool IsUntouched(const MainScreen& screen);

} // namespace Ledgrove
