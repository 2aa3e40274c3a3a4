#pragma once

#include <string>

#include "insight/Qualify.h"

// Room and shortfall in the words of a buyer. "The loan is $287,161 too large" would be odd for a mortgage of
// $180,000: where the largest loan is below 0, no loan at all would do.
namespace Ledgrove {

/// Whether the down payment covers the price, so that there is no mortgage.
bool NeedsNoMortgage(const HomeQualification& home);

/// Whether the taxes, insurance and debts alone are too much, whatever the loan.
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
inline constexpr const char* NoMortgageWords = "with this income and debt, no mortgage of any size would do";

} // namespace Ledgrove
