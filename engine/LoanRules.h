#pragma once

#include "engine/Host.h"
#include "engine/Session.h"

namespace Ledgrove::Module1 {

/// a when a < b, else b.
inline float MinOf(float a, float b) {
    return a < b ? a : b;
}

/// a when a > b, else b.
inline float MaxOf(float a, float b) {
    return a > b ? a : b;
}

enum class HomeCode { Std, GMH };

/// The loan type that a pick-list code names, nullptr when the table has no such row.
const LoanType* FindLoanType(const LoanTypeList& loanTypes, int code);

/// Turns one home's inputs and the buyer's down payment choice into its monthly housing cost: down payment,
/// loan, principal and interest, insurance, taxes, PMI, PITI, income needed; for the labelled home also the
/// present value of the energy savings and the EEM rules, with their notice. An arithmetic fault (a ratio of
/// 0, a fixed down payment on a base price of 0, overflow, a missing loan type) sets these figures of the
/// home to 0, silently.
void ComputeHomeCase(Session& session, HomeCode code, Host& host);

} // namespace Ledgrove::Module1
