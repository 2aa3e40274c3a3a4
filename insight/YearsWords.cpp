#include "insight/YearsWords.h"

#include <cmath>

#include "engine/NumberText.h"
#include "insight/Sheet.h"
#include "insight/Years.h"

namespace Ledgrove {

std::string YearsText(int years) {
    return std::to_string(years) + (years == 1 ? " year" : " years");
}

std::string FromMonthText(int month) {
    return month == 0 ? "from the first day" : "from month " + std::to_string(month);
}

std::string RateText(double rate) {
    std::string text;
    // A rate that is not 0 must not read as 0.
    for (const char* picture : {"##0.##", "##0.####", "##0.########"}) {
        text = Module1::FormatPicture(rate * 100, picture);
        if (text.ends_with('.'))
            text.pop_back();
        if (rate == 0 || text != "0")
            break;
    }
    return text + "%";
}

bool IsEven(double dollars) {
    return std::fabs(dollars) <= -EvenFrom;
}

std::string AheadText(double dollars) {
    if (IsEven(dollars))
        return "as well off as with the base home";
    return (dollars < 0 ? "behind by " : "ahead by ") + AmountText(std::fabs(dollars));
}

namespace {

/// "utility bills rise by 2% a year".
std::string Growing(const std::string& what, double growth) {
    if (growth == 0)
        return what + " stay as they are";
    return what + (growth > 0 ? " rise by " : " fall by ") + RateText(growth < 0 ? -growth : growth) +
           " a year";
}

constexpr const char* taxAndInsurance = "property tax and insurance";

} // namespace

std::string GrowthText(const YearSettings& settings) {
    return "This assumes that " + Growing("utility bills", settings.UtilityGrowth) + " and that " +
           Growing(taxAndInsurance, settings.HomeGrowth) + ".";
}

std::string HomeGrowthText(double growth) {
    return "This assumes that " + Growing(taxAndInsurance, growth) + ".";
}

std::string SaleText(const YearSettings& settings, const std::string& what) {
    return what + " assumes that " + Growing("home prices", settings.Appreciation) + ", that selling costs " +
           RateText(settings.SellingCost) + " of the price, and that the GREENMARK home keeps " +
           RateText(settings.PremiumKept) + " of the price difference.";
}

std::string ReturnText(double rate) {
    const std::string size = rate > 1 ? "over 100 %" : Module1::FormatPicture(rate * 100, "##0.0") + "%";
    return size + " a year on the extra down payment alone";
}

} // namespace Ledgrove
