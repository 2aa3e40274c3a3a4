#include "ui/FieldFormats.h"

#include "engine/NumberText.h"

namespace Ledgrove::Module1 {

namespace {

constexpr Picture dollars("$###,##0");
constexpr Picture oneDecimal("#0.0");
constexpr Picture twoDecimals("#0.00");
constexpr Picture threeDecimals("#0.000");

std::string PercentPicture(double value, const Picture& picture) {
    return FormatPicture(value, picture) + "%";
}

std::string PercentText(std::string_view text, double value) {
    const bool fraction = value < 1.0 && text.find('%') == text.npos;
    return PercentPicture(fraction ? value * 100 : value, twoDecimals);
}

std::string Either2Text(double value) {
    if (value < 0.01)
        return PercentPicture(value * 100, "0.00");
    return value < 1.0 ? PercentPicture(value, twoDecimals) : FormatPicture(value, dollars);
}

} // namespace

std::string FormatFieldText(std::string_view text, FieldFormat format) {
    return FormatFieldText(text, ReadStrippedNumber(text).value_or(0), format);
}

std::string FormatFieldText(std::string_view text, double number, FieldFormat format) {
    switch (format) {
    case FieldFormat::Dollar:
        return FormatPicture(number, dollars);
    case FieldFormat::IntRate:
        return PercentPicture(number, threeDecimals);
    case FieldFormat::Percent:
        return PercentText(text, number);
    case FieldFormat::Percent2:
        return PercentPicture(number < 0.01 ? number * 100 : number, twoDecimals);
    case FieldFormat::Either:
        return number < 1.0 ? PercentPicture(number * 100, oneDecimal) : FormatPicture(number, dollars);
    case FieldFormat::Either2:
        return Either2Text(number);
    case FieldFormat::Whole:
        // Intended: this format does not remove "%", so a text with "%" is not a number and is shown as 0.
        return FormatPicture(ReadNumber(text).value_or(0), "###,##0");
    case FieldFormat::WholePercent:
        return PercentPicture(number, "##0.00");
    case FieldFormat::String:
    case FieldFormat::SmallPercent:
        break;
    }
    return std::string(text);
}

} // namespace Ledgrove::Module1
