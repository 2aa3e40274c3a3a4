#pragma once

#include <string>

#include "insight/Qualify.h"

// Room and shortfall in the words of a buyer. "The loan is $287,161 too large" would be odd for a mortgage of
// $180,000: where the largest loan is below 0, the option allows none.
namespace Ledgrove {

/// Whether the down payment covers the price, so that there is no mortgage.
bool NeedsNoMortgage(const HomeQualification& home);

/// Whether the largest loan is $0 or less. Another option, price or down payment may allow one: the largest
/// loan is what is left after the taxes and insurance of this price and the PMI of this loan.
bool AllowsNoMortgage(const HomeQualification& home);

/// "$7,102", "less than a dollar"
std::string RoomAmount(const HomeQualification& home);

/// "needs no mortgage", and by how much the down payment is more than the price.
std::string NoMortgagePhrase(const HomeQualification& home);

/// After the name of a home for which the buyer qualifies: ", with room for $7,102 more loan", ", which needs
/// no mortgage".
std::string RoomPhrase(const HomeQualification& home);

/// What is wrong with the loan of a buyer who does not qualify: "$9,000 too large". Call it only where a
/// smaller loan would do.
std::string ExcessPhrase(const HomeQualification& home);

/// Why the buyer does not qualify where AllowsNoMortgage.
inline constexpr const char* NoMortgageWords =
    "with this income, debt, price and down payment, the mortgage option allows no loan";

} // namespace Ledgrove
