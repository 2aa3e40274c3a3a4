#pragma once

#include "engine/Inputs.h"
#include "engine/Results.h"
#include "engine/Rules.h"

namespace Ledgrove::Module1 {

/// a if a < b, else b.
inline float MinOf(float a, float b) {
    return a < b ? a : b;
}

/// a if a > b, else b.
inline float MaxOf(float a, float b) {
    return a > b ? a : b;
}

/// The ratio whose amount decides: `decisive` is the larger or the smaller of the two.
inline QualifyingRatio DecidingRatio(float decisive, float byFront, float byBack) {
    if (byFront == byBack)
        return QualifyingRatio::Both;
    return byFront == decisive ? QualifyingRatio::FrontEnd : QualifyingRatio::BackEnd;
}

/// Computes one home's housing cost from its price, rate and utility bill in `results` and the buyer's down
/// payment: down payment and loan in dollars; principal and interest, insurance, taxes, PMI and PITI in
/// dollars per month; the income needed in dollars per year. For the labelled home it also computes the
/// present value of the energy savings in dollars and whether the EEM notice is due; if it checks this, it
/// clears the notice flag. `inputs` supplies the term and the option. A fault (a ratio of 0, a fixed down
/// payment with a base price of 0, overflow, a missing loan type) sets these figures of the home to 0 without
/// a message.
void ComputeHomeCase(const Inputs& inputs, const Rules& rules, HomeCode code, Results& results);

} // namespace Ledgrove::Module1
