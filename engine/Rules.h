#pragma once

#include "engine/MortgageOption.h"
#include "engine/TypeDeclarations.h"

#include <optional>

namespace Ledgrove {

/// What the settings file says a comparison is computed by.
struct Rules {
    AssumptionSet Assumptions;
    LoanTypeList LoanTypes;
    TaxSchedule TaxBrackets;
};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// The loan type of an option, nullptr without an option or when the table has no such row.
const LoanType* FindLoanType(const LoanTypeList& loanTypes, std::optional<MortgageOption> option);

} // namespace Ledgrove::Module1
