#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "insight/Breakeven.h"
#include "insight/Insight.h"
#include "insight/Sheet.h"

// The shown net for many price differences and yearly savings.
namespace Ledgrove {

inline constexpr std::size_t MapSize = 41;

struct NetMap {
    std::array<double, MapSize> Price{};   ///< price differences of the columns, in dollars
    std::array<double, MapSize> Savings{}; ///< yearly savings of the rows, in dollars
    /// Per month; empty where the labelled bill would be below 0.
    std::array<std::array<std::optional<float>, MapSize>, MapSize> Net{};
    double PriceNow = 0;
    double SavingsNow = 0;
    float NetNow = 0;
};

/// `breakeven` is the insight's; the insight must not be missing.
NetMap ComputeMap(const Insight& insight, const Breakeven& breakeven);

Sheet MapSheet(const NetMap& map);

} // namespace Ledgrove
