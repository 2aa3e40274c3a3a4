#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "insight/Answer.h"
#include "insight/Insight.h"
#include "insight/Sheet.h"

// By how much room the buyer qualifies for each home, or what would help.
namespace Ledgrove {

/// Whether the buyer qualifies with another mortgage option.
struct OtherOption {
    std::string_view Base;
    std::string_view Labelled; ///< empty for the base home
    std::string Missing;       ///< why this is unknown; empty if it is not
    bool Qualifies = false;
};

/// An answer is empty if its input does not count for the home's loan, or if it is not certain.
struct HomeQualification {
    bool Qualifies = false;
    double Loan = 0;   ///< LoanAmount, in dollars; below 0 where the down payment is more than the price
    double Margin = 0; ///< MaxLoan less LoanAmount, in dollars
    std::optional<Answer> Income, Debt, Down, Price;
    std::optional<Answer> Bill; ///< of the labelled home only
    std::optional<Answer> Rate, Term;
    std::vector<OtherOption> Options;
};

struct Qualification {
    HomeQualification Std;
    HomeQualification GMH;
};

/// The insight must not be missing.
Qualification ComputeQualification(const Insight& insight);

Sheet QualifySheet(const Qualification& qualification);

} // namespace Ledgrove
