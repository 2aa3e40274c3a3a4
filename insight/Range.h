#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Session.h"
#include "insight/Answer.h"
#include "insight/OptionPairs.h"
#include "insight/Sheet.h"

// Every saved house with some pairs of mortgage options, for one buyer.
namespace Ledgrove {

/// What a row says of one of its homes.
struct RangeHome {
    float Price = 0; ///< as the screen shows it
    float Bill = 0;  ///< utility bills per year, as the screen shows them
    float PITIU = 0; ///< per month
    bool Qualifies = false;
    double Margin = 0; ///< MaxLoan less LoanAmount, in dollars
};

struct RangeRow {
    std::string House;
    std::string_view Base;
    std::string_view Labelled;
    RangeHome Std;
    RangeHome GMH;
    std::string Missing;         ///< why the figures are unknown; empty if they are known
    float ShownNet = 0;          ///< per month
    float PVSavings = 0;         ///< dollars
    std::optional<Answer> Price; ///< `Breakeven::Price`; empty without limits, or if it is not certain
};

struct Range {
    std::vector<RangeRow> Rows; ///< in the order of the houses, those of a house in the order of the pairs
    bool HasLimits = true;
    bool WithTaxes = true; ///< the nets include the tax savings
    std::size_t Houses = 0;
};

/// Copies a house to the screen of the session, as the main window does with a chosen house.
using HouseTaker = std::function<void(const House& house, Session& session)>;

struct RangeChoice {
    std::vector<OptionPair> Pairs; ///< empty for the pair that the screen has
    bool Limits = true;            ///< with the price up to which each row pays, which takes most of the time
    std::size_t Threads = 0;       ///< that compute; 0 for one per core
    /// Is called in the calling thread every few houses, with the number of houses done. Returns whether to
    /// go on.
    std::function<bool(std::size_t done, std::size_t total)> Watch = {};
};

/// Computes a row for every house with every pair; everything else is as on the screen of `start`. Empty if
/// `Watch` stopped it. If the system provides fewer threads, those do the work, or the calling thread alone.
/// Several threads call `take` at the same time, each with a session of its own.
std::optional<Range> ComputeRange(const Session& start, const HouseList& houses, const HouseTaker& take,
                                  const RangeChoice& choice = {});

/// A row of the table for each row of the range. The first cell proposes to enter the house and the options.
Sheet RangeSheet(const Range& range);

} // namespace Ledgrove
