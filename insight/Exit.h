#pragma once

#include <optional>
#include <string>
#include <vector>

#include "insight/Insight.h"
#include "insight/Sheet.h"
#include "insight/Years.h"

// What is left if the home is sold at the end of a year.
namespace Ledgrove {

/// Amounts in dollars.
struct SaleYear {
    int Year = 0;
    double Std = 0;        ///< proceeds of the base home: its value less selling cost and balance
    double GMH = 0;        ///< proceeds of the labelled home
    double Cumulative = 0; ///< what the labelled home has saved until then

    double Difference() const { return GMH - Std; }
    double Total() const { return Difference() + Cumulative; }
};

struct SaleByYear {
    std::vector<SaleYear> Years; ///< 1 to 30
    SaleYear AtEnd;              ///< after the years in the home
    /// The least share of the price difference that the labelled home must keep for the buyer not to lose
    /// after the years in the home, in whole percents as a fraction; empty if all of it is not enough.
    std::optional<double> Share;
};

/// A sale after a year that `years` has a row for, if the labelled home keeps `premiumKept` of the price
/// difference.
SaleYear SaleAfter(const Insight& insight, const YearByYear& years, int year, double premiumKept);

/// `years` are the insight's; the insight must not be missing.
SaleByYear ComputeExit(const Insight& insight, const YearByYear& years);

/// What the sale after the years in the home leaves.
std::string SaleSentence(const SaleByYear& exit);

Sheet ExitSheet(const Insight& insight, const SaleByYear& exit);

} // namespace Ledgrove
