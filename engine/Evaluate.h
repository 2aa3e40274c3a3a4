#pragma once

#include "engine/Inputs.h"
#include "engine/Results.h"
#include "engine/Rules.h"

namespace Ledgrove::Module1 {

/// Computes a whole comparison. It reads only its arguments, writes only `carried` and allocates no memory,
/// so threads may call it at the same time, each with its own `Carried`. `inputs` holds finite numbers, its
/// amounts not below 0; `rules` may hold any finite numbers. A fault sets the affected figures to 0 and is
/// recorded in the decisions.
Results Evaluate(const Inputs& inputs, const Rules& rules, Carried& carried);

} // namespace Ledgrove::Module1
