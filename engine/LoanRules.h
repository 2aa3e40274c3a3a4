#pragma once

#include "engine/Inputs.h"
#include "engine/Results.h"
#include "engine/Rules.h"

namespace Ledgrove::Module1 {

/// a when a < b, else b.
inline float MinOf(float a, float b) {
    return a < b ? a : b;
}

/// a when a > b, else b.
inline float MaxOf(float a, float b) {
    return a > b ? a : b;
}

/// Turns one home's price, rate and utility bill in `results` and the buyer's down payment choice into its
/// monthly housing cost: down payment, loan, principal and interest, insurance, taxes, PMI, PITI, income
/// needed; for the labelled home also the present value of the energy savings and whether the EEM notice is
/// due, which spends the notice flag. `inputs` gives the term and the option. A fault (a ratio of 0, a fixed
/// down payment on a base price of 0, overflow, a missing loan type) sets these figures of the home to 0,
/// silently.
void ComputeHomeCase(const Inputs& inputs, const Rules& rules, HomeCode code, Results& results);

/// Whether an evaluation would spend the notice flag: it is set, the labelled home's option is an EEM, and
/// its savings are worth something.
bool SpendsNoticeFlag(const Records& records, const LoanType* labelledLoanType);

} // namespace Ledgrove::Module1
