#pragma once

#include <span>

#include "app/batch/InputRecord.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {

/// An edit field of the main screen and the input that fills it.
struct EntryInput {
    const EntryRule& Rule;
    Input Which;
};

/// The main screen's edit fields in tab order. Each has an input of its name.
std::span<const EntryInput> EntryInputs();

} // namespace Ledgrove
