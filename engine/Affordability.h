#pragma once

#include "engine/Inputs.h"
#include "engine/Results.h"
#include "engine/Rules.h"

namespace Ledgrove::Module1 {

/// Sets `MaxPayment` (dollars per month), `MaxLoan` and `MaxHome` (dollars) by the home's mortgage option,
/// and whether the buyer qualifies; for the labelled home also the energy allowance (dollars). Both home
/// records must be complete. `inputs` supplies the term and the option. A fault sets `MaxPayment`, `MaxLoan`
/// and `MaxHome` to 0, and the qualification follows from these values.
void ComputeAffordability(const Inputs& inputs, const Rules& rules, HomeCode code, Results& results);

} // namespace Ledgrove::Module1
