#pragma once

#include "engine/LoanRules.h"

namespace Ledgrove::Module1 {

/// Writes one home's cost labels, the largest payment and loan the buyer qualifies for under the home's loan
/// type, and "YES" or "*NO". Needs both home records complete. An arithmetic fault sets `MaxPayment`,
/// `MaxLoan` and `MaxHome` to 0 and shows "$0"; the qualification then follows from the labels.
void ComputeAffordability(Session& session, HomeCode code);

} // namespace Ledgrove::Module1
