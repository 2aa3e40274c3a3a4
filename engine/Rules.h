#pragma once

#include "engine/MortgageOption.h"
#include "engine/TypeDeclarations.h"
#include "engine/YearSettings.h"

#include <optional>

namespace Ledgrove {

/// The parts of the settings file that a comparison uses. Code that changes them in a session resets the
/// session's `From`, because the results then go by former rules.
struct Rules {
    AssumptionSet Assumptions;
    LoanTypeList LoanTypes;
    TaxSchedule TaxBrackets;
    YearSettings Years; ///< no figure of a record depends on them
};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// The loan type of an option; nullptr without an option or if the table has no row for it.
const LoanType* FindLoanType(const LoanTypeList& loanTypes, std::optional<MortgageOption> option);

} // namespace Ledgrove::Module1
