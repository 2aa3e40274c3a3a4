#pragma once

#include "engine/Inputs.h"
#include "engine/Results.h"
#include "engine/Rules.h"

namespace Ledgrove::Module1 {

/// Computes a whole comparison. It reads its arguments alone, writes `carried` alone and asks for no memory,
/// so any number of threads may evaluate at once with a `Carried` of their own. `inputs` and `rules` may hold
/// any finite numbers; a fault of a home clears that home's figures and stands in the decisions.
Results Evaluate(const Inputs& inputs, const Rules& rules, Carried& carried);

} // namespace Ledgrove::Module1
