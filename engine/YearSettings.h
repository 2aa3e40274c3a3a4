#pragma once

namespace Ledgrove {

/// The settings of the views over the years. The initial values apply where the settings file has no line.
/// Rates and shares are fractions, amounts dollars a year unless a comment says otherwise.
struct YearSettings {
    double UtilityGrowth = 0;         ///< of utility bills, per year
    double HomeGrowth = 0;            ///< of property tax and insurance, per year
    double Appreciation = 0;          ///< of home prices, per year
    double PremiumKept = 1;           ///< share of the price difference that the labelled home keeps
    double SellingCost = 0.06;        ///< share of the selling price
    double StandardDeduction = 32200; ///< of a couple filing jointly, tax year 2026
    double SaltCap = 40400;           ///< most that is deductible for state and local taxes
    double StateTax = 0;              ///< state income tax
    double OtherDeductions = 0;
    double DebtCap = 750000; ///< largest loan whose interest is deductible, in dollars

    bool operator==(const YearSettings&) const = default;
};

} // namespace Ledgrove
