#include "ui/FieldFormats.h"

#include "engine/NumberText.h"

namespace Ledgrove::Module1 {

namespace {

std::string PercentPicture(double value, std::string_view picture) {
    return FormatPicture(value, picture) + "%";
}

} // namespace

std::string FormatFieldText(std::string_view text, FormatType type) {
    // A "%" in a whole-number field makes the conversion fail, and so shows 0.
    if (type == "Whole")
        return FormatPicture(ReadNumber(text).value_or(0), "###,##0");

    const double value = ReadStrippedNumber(text).value_or(0);
    if (type == "Dollar")
        return FormatPicture(value, "$###,##0");
    if (type == "IntRate")
        return PercentPicture(value, "#0.000");
    if (type == "Percent") {
        const bool fraction = value < 1.0 && text.find('%') == text.npos;
        return PercentPicture(fraction ? value * 100 : value, "#0.00");
    }
    if (type == "Percent2")
        return PercentPicture(value < 0.01 ? value * 100 : value, "#0.00");
    if (type == "Either")
        return value < 1.0 ? PercentPicture(value * 100, "#0.0") : FormatPicture(value, "$###,##0");
    if (type == "Either2") {
        if (value < 0.01)
            return PercentPicture(value * 100, "0.00");
        return value < 1.0 ? PercentPicture(value, "#0.00") : FormatPicture(value, "$###,##0");
    }
    if (type == "WholePercent")
        return PercentPicture(value, "##0.00");
    return std::string(text);
}

} // namespace Ledgrove::Module1
