#pragma once

#include <cstddef>
#include <optional>

#include "engine/Inputs.h"
#include "engine/Results.h"
#include "engine/Rules.h"

namespace Ledgrove::Module1 {

/// The index of the bracket for a yearly income in dollars; empty if no bracket matches. An income on a
/// boundary belongs to the lower bracket.
std::optional<std::size_t> FindTaxBracket(const TaxSchedule& schedule, float income);

/// The marginal income tax rate for a yearly income in dollars, as a fraction; 0 if no bracket matches.
float LookupTaxRate(const TaxSchedule& schedule, float income);

/// Compares the monthly cost of the two homes, whose records must be complete, and sets the results in the
/// Scenario: savings and cash flow in dollars per month, present and future values in dollars. `inputs`
/// supplies the term and whether taxes are included. A fault stops the computation, and the remaining results
/// stay 0.
void ComputeCashFlow(const Inputs& inputs, const Rules& rules, Results& results);

} // namespace Ledgrove::Module1
