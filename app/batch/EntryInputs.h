#pragma once

#include <span>

#include "app/batch/InputRecord.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {

/// An edit field of the main screen and its input.
struct EntryInput {
    const EntryRule& Rule;
    Input Which;
};

/// The edit fields of the main screen in tab order. Each has an input with the same name.
std::span<const EntryInput> EntryInputs();

} // namespace Ledgrove
