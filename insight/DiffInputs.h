#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/Inputs.h"
#include "engine/MainScreen.h"

// What a person enters, with what belongs together as one.
namespace Ledgrove {

struct EnteredInput {
    std::string_view Name; ///< the control, or "downPayment" or "mortgageOptions"
    std::string_view Caption;
    std::string (*Text)(const MainScreen& screen);
    void (*Copy)(const Inputs& from, Inputs& to); ///< nullptr for an input that no formula uses
};

/// Everything that is entered, in the order of the screen.
std::span<const EnteredInput> EnteredInputs();

} // namespace Ledgrove
