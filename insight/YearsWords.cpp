#include "insight/YearsWords.h"

#include "engine/NumberText.h"

namespace Ledgrove {

std::string YearsText(int years) {
    return std::to_string(years) + (years == 1 ? " year" : " years");
}

std::string FromMonthText(int month) {
    return month == 0 ? "from the first day" : "from month " + std::to_string(month);
}

std::string RateText(double rate) {
    std::string text = Module1::FormatPicture(rate * 100, "##0.##");
    if (text.ends_with('.'))
        text.pop_back();
    return text + "%";
}

std::string ReturnText(double rate) {
    const std::string size = rate > 1 ? "over 100 %" : Module1::FormatPicture(rate * 100, "##0.0") + "%";
    return size + " a year on the extra down payment alone";
}

} // namespace Ledgrove
