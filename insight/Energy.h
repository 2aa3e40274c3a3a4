#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "insight/Insight.h"
#include "insight/Sheet.h"
#include "insight/Years.h"

// The years with other growth of the utility bills.
namespace Ledgrove {

inline constexpr std::array<double, 7> EnergyRates{0, 0.01, 0.02, 0.03, 0.04, 0.05, 0.06};

struct EnergyGrowth {
    /// What the buyer is ahead by, in dollars, at the end of each year of the years view, for each rate.
    std::array<std::vector<double>, EnergyRates.size()> Cumulative;
    /// The same at the growth in force; empty if that is one of the rates.
    std::optional<std::vector<double>> Own;
    /// The least growth per year, in steps of 0.0001, with which the buyer does not lose in the years in the
    /// home; empty if 0.20 is not enough.
    std::optional<double> Needed;
    double ExtraCash = 0; ///< what the labelled home takes more on the first day, in dollars
    int InHome = 1;       ///< the years in the home
    YearSettings By;      ///< of the years view
};

/// `years` are the insight's; the insight must not be missing.
EnergyGrowth ComputeEnergy(const YearByYear& years);

/// "needed: at least 3.42% a year", or that no growth is, or that none is enough.
std::string NeededText(const EnergyGrowth& energy);

Sheet EnergySheet(const EnergyGrowth& energy);

} // namespace Ledgrove
