#pragma once

#include "engine/Inputs.h"
#include "engine/Results.h"
#include "engine/Rules.h"

namespace Ledgrove::Module1 {

/// Fills the largest payment, loan and home the buyer qualifies for under the home's option, and whether the
/// buyer qualifies; for the labelled home also the energy allowance. Needs both home records complete.
/// `inputs` gives the term and the option. A fault sets `MaxPayment`, `MaxLoan` and `MaxHome` to 0; the
/// qualification then follows from these.
void ComputeAffordability(const Inputs& inputs, const Rules& rules, HomeCode code, Results& results);

} // namespace Ledgrove::Module1
