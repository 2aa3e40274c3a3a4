#include "insight/QualifyWords.h"

#include "insight/Sheet.h"

namespace Ledgrove {

namespace {

/// Amounts below it show as $0.
constexpr double leastShown = 0.5;

} // namespace

bool NeedsNoMortgage(const HomeQualification& home) {
    return home.Loan < leastShown;
}

bool AllowsNoMortgage(const HomeQualification& home) {
    return home.Loan + home.Margin < leastShown;
}

std::string RoomAmount(const HomeQualification& home) {
    return home.Margin < leastShown ? "less than a dollar" : DollarText(home.Margin);
}

std::string NoMortgagePhrase(const HomeQualification& home) {
    return home.Loan > -leastShown
               ? "needs no mortgage"
               : "needs no mortgage (the down payment is " + DollarText(-home.Loan) + " more than the price)";
}

std::string RoomPhrase(const HomeQualification& home) {
    return NeedsNoMortgage(home) ? ", which " + NoMortgagePhrase(home)
                                 : ", with room for " + RoomAmount(home) + " more loan";
}

std::string ExcessPhrase(const HomeQualification& home) {
    return home.Margin > -leastShown ? "not less than the largest loan"
                                     : DollarText(-home.Margin) + " too large";
}

} // namespace Ledgrove
