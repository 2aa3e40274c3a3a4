#pragma once

#include "engine/Session.h"

namespace Ledgrove::Module1 {

/// The marginal income tax rate of a yearly income, as a fraction. An income on a boundary belongs to the
/// lower bracket; without a matching bracket the rate is 0.
float LookupTaxRate(const TaxSchedule& schedule, float income);

/// Compares the two complete home records month by month and fills the Scenario's results. The term is
/// `xMortTerm`. An arithmetic fault ends the computation: results not yet written stay 0.
void ComputeCashFlow(Session& session);

/// Writes the results into the labels of the Cash Flow, More Home and Summary panels.
void ShowCashFlowResults(Session& session);

} // namespace Ledgrove::Module1
