#pragma once

#include "engine/Inputs.h"
#include "engine/MainScreen.h"

namespace Ledgrove::Module1 {

/// What the fields, pick lists and options of the main screen say. An empty or unreadable field counts as 0;
/// the term is `xMortTerm`.
Inputs ReadInputs(const MainScreen& screen);

} // namespace Ledgrove::Module1
