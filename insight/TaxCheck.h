#pragma once

#include <array>
#include <string>
#include <string_view>

#include "insight/Insight.h"
#include "insight/Sheet.h"
#include "insight/Years.h"

// The income-tax line of the first year, checked against the standard deduction.
namespace Ledgrove {

/// Amounts in dollars a year.
struct HomeTax {
    double Interest = 0;
    double Itemized = 0; ///< deductions, if they are itemized
    double Benefit = 0;  ///< income tax saved by itemizing
    bool Itemizes = false;
};

struct TaxCheck {
    bool IsIncluded = true; ///< income tax counts in the figures
    float Shown = 0;        ///< the tax line as shown, per month
    HomeTax Std;
    HomeTax GMH;
    double Real = 0; ///< the tax line as it would really be, per month
    double Rate = 0; ///< of the income's bracket, whether or not taxes are included
    YearSettings By;
    std::string Sentence;
};

/// Whose standard deduction an amount is.
struct FilingStatus {
    std::string_view Name;  ///< "Single"
    std::string_view Whose; ///< "a single filer"
    double Deduction = 0;   ///< dollars a year
};

/// Of the United States federal income tax for the tax year 2026.
inline constexpr std::array<FilingStatus, 3> FilingStatuses{
    {{"Single", "a single filer", 16'100},
     {"Joint", "a couple filing jointly", 32'200},
     {"Head of household", "a head of household", 24'150}}};

/// Whether the shown line is off by more than $0.50 a month.
bool DiffersFromShown(const TaxCheck& tax);

/// Checks the line of a comparison; the plans are those of its homes. The insight must not be missing.
TaxCheck CheckTaxLine(const Insight& insight, const HomePlan& std, const HomePlan& gmh);

/// `years` are the insight's; the insight must not be missing.
TaxCheck ComputeTaxCheck(const Insight& insight, const YearByYear& years);

Sheet TaxCheckSheet(const TaxCheck& tax);

} // namespace Ledgrove
