#pragma once

#include "engine/Inputs.h"
#include "engine/MainScreen.h"

namespace Ledgrove::Module1 {

/// Reads the inputs from the controls of the main screen: amounts in dollars, percentages as fractions. An
/// empty field, or one that is not a number, counts as 0. The term is `xMortTerm`.
Inputs ReadInputs(const MainScreen& screen);

} // namespace Ledgrove::Module1
