#pragma once

#include <optional>

#include "insight/Answer.h"
#include "insight/Insight.h"
#include "insight/Sheet.h"

// How far the labelled home's price, bill and rate may go until it no longer pays.
namespace Ledgrove {

/// An empty answer is not certain.
struct Breakeven {
    std::optional<Answer> Price;          ///< until the shown net falls below 0
    std::optional<Answer> PriceBeforeTax; ///< until the net before tax falls below 0
    std::optional<Answer> SavingsPrice;   ///< until the difference exceeds the savings' present value
    std::optional<Answer> Bill;           ///< until the shown net falls below 0
    std::optional<Answer> Rate;           ///< the same
    /// The part of the expected yearly saving that must come true; empty if no saving is expected or `Bill`
    /// is not found.
    std::optional<double> SavingsShare;
};

/// `Breakeven::Price` alone. The insight must not be missing.
std::optional<Answer> BreakevenPrice(const Insight& insight);

/// The insight must not be missing.
Breakeven ComputeBreakeven(const Insight& insight);

Sheet BreakevenSheet(const Insight& insight, const Breakeven& breakeven);

} // namespace Ledgrove
