#include "ui/InputWords.h"

#include <algorithm>
#include <iterator>

namespace Ledgrove {

namespace {

struct NamedControl {
    std::string_view Control;
    std::string_view Words;
};

constexpr NamedControl inputs[] = {
    {"ecIncome", "Annual Income"},
    {"ecMonthlyDebt", "Monthly Debt"},
    {"optDownPayment", "Down Payment"},
    {"ecPctDown", "% Down, Down Payment"},
    {"ecFixedDown", "or Fixed $, Down Payment"},
    {"ecStdHome", "Sticker Price, Base Home"},
    {"ecGMHHome", "Sticker Price, GREENMARK Home"},
    {"ecStdUtil", "Annual Utility Cost, Base Home"},
    {"ecGMHUtil", "Annual Utility Cost, GREENMARK Home"},
    {"ecStdRate", "Interest Rate, Base Home"},
    {"ecGMHRate", "Interest Rate, GREENMARK Home"},
    {"ecStdStr", "Mortgage Stretch, Base Home"},
    {"ecGMHStr", "Mortgage Stretch, GREENMARK Home"},
    {"cboMortTerm", "Term, Base Home"},
    {"cboStdMortOption", "Mortgage Option, Base Home"},
    {"cboGMHMortOption", "Mortgage Option, GREENMARK Home"},
    {"chkDoTax0", "Include Taxes in"},
    // Only files hold these two: they restore how the screen shows the others.
    {"PctDownConverted", "% Down as dollars, Down Payment"},
    {"lblHomeName", "House Scenarios"},
};

} // namespace

std::string_view InputWords(std::string_view control) {
    const auto* const found = std::find_if(std::begin(inputs), std::end(inputs),
                                           [control](const auto& input) { return input.Control == control; });
    return found == std::end(inputs) ? std::string_view() : found->Words;
}

} // namespace Ledgrove
