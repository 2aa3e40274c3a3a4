#pragma once

#include "engine/MortgageOption.h"

#include <cstdint>
#include <optional>

// The input values of a comparison. Amounts are dollars in single precision, rates are fractions per year.
namespace Ledgrove {

struct HomeInputs {
    float Cost = 0;                       ///< sticker price
    float UtilAnnual = 0;                 ///< utility bill per year
    float IntRate = 0;                    ///< per year
    float Stretch = 0;                    ///< mortgage stretch; no formula uses it
    std::optional<MortgageOption> Option; ///< empty if none is chosen, which is a fault of the home

    bool operator==(const HomeInputs&) const = default;
};

struct Inputs {
    float AnnualIncome = 0;
    float MonthlyDebt = 0;
    float PctDown = 0;         ///< fraction of the price
    float FixedDown = 0;       ///< dollars
    bool DownAsPercent = true; ///< true: PctDown applies, false: FixedDown
    bool IncludeTaxes = true;  ///< whether the shown figures include the income-tax savings
    std::int32_t TermYears = 0;
    HomeInputs Std; ///< the base home
    HomeInputs GMH; ///< the energy-efficiency-labelled home

    bool operator==(const Inputs&) const = default;
};

} // namespace Ledgrove
