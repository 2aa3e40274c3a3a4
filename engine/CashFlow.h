#pragma once

#include <cstddef>
#include <optional>

#include "engine/Inputs.h"
#include "engine/Results.h"
#include "engine/Rules.h"

namespace Ledgrove::Module1 {

/// The place of the bracket that holds a yearly income. An income on a boundary belongs to the lower bracket.
std::optional<std::size_t> FindTaxBracket(const TaxSchedule& schedule, float income);

/// The marginal income tax rate of a yearly income, as a fraction; 0 without a matching bracket.
float LookupTaxRate(const TaxSchedule& schedule, float income);

/// Compares the two complete home records month by month and fills the Scenario's results. `inputs` gives the
/// term and whether taxes are included. A fault ends the computation: results not yet written stay 0.
void ComputeCashFlow(const Inputs& inputs, const Rules& rules, Results& results);

} // namespace Ledgrove::Module1
