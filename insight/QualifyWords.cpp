#include "insight/QualifyWords.h"

#include "insight/Sheet.h"

namespace Ledgrove {

bool NeedsNoMortgage(const HomeQualification& home) {
    return home.Loan < LeastShown;
}

bool AllowsNoMortgage(const HomeQualification& home) {
    return home.Loan + home.Margin < LeastShown;
}

std::string RoomAmount(const HomeQualification& home) {
    return AmountText(home.Margin);
}

std::string NoMortgagePhrase(const HomeQualification& home) {
    return home.Loan > -LeastShown
               ? "needs no mortgage"
               : "needs no mortgage (the down payment is " + DollarText(-home.Loan) + " more than the price)";
}

std::string RoomPhrase(const HomeQualification& home) {
    return NeedsNoMortgage(home) ? ", which " + NoMortgagePhrase(home)
                                 : ", with room for " + RoomAmount(home) + " more loan";
}

std::string ExcessPhrase(const HomeQualification& home) {
    return home.Margin > -LeastShown ? "not less than the largest loan"
                                     : DollarText(-home.Margin) + " too large";
}

} // namespace Ledgrove
