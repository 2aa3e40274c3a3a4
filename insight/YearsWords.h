#pragma once

#include <string>

// Years, months and rates in the words of a buyer.
namespace Ledgrove {

/// "1 year", "7 years".
std::string YearsText(int years);

/// "from the first day", "from month 33".
std::string FromMonthText(int month);

/// A fraction: "4.25%", "22%".
std::string RateText(double rate);

/// A return per year as a fraction, with what it is on.
std::string ReturnText(double rate);

} // namespace Ledgrove
