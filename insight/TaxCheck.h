#pragma once

#include <string>

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
    float Shown = 0; ///< the tax line as shown, per month
    HomeTax Std;
    HomeTax GMH;
    double Real = 0;              ///< the tax line as it would really be, per month
    double Rate = 0;              ///< of the income's bracket, whether or not taxes are included
    double StandardDeduction = 0; ///< dollars a year
    std::string Sentence;
};

/// `years` are the insight's; the insight must not be missing.
TaxCheck ComputeTaxCheck(const Insight& insight, const YearByYear& years);

Sheet TaxCheckSheet(const TaxCheck& tax);

} // namespace Ledgrove
