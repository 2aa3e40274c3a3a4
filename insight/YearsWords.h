#pragma once

#include <string>

#include "engine/YearSettings.h"

// Years, months and rates in the words of a buyer.
namespace Ledgrove {

/// "1 year", "7 years".
std::string YearsText(int years);

/// "from the first day", "from month 33".
std::string FromMonthText(int month);

/// A fraction: "4.25%", "22%".
std::string RateText(double rate);

/// Whether the amount is neither gained nor lost, to the cent.
bool IsEven(double dollars);

/// After "the buyer is": "ahead by $843", "behind by less than a dollar", "as well off as with the base
/// home".
std::string AheadText(double dollars);

/// What the years assume about bills and taxes, as a sentence.
std::string GrowthText(const YearSettings& settings);

/// The same about property tax and insurance alone; the argument is their growth a year as a fraction.
std::string HomeGrowthText(double growth);

/// What a sale assumes, as a sentence that begins with `what`: "This", "The return with the sale".
std::string SaleText(const YearSettings& settings, const std::string& what = "This");

/// A return per year as a fraction, with what it is on.
std::string ReturnText(double rate);

} // namespace Ledgrove
