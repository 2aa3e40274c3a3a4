#include "engine/NumberText.h"

#include "base/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace Ledgrove::Module1 {

namespace {

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Takes "$" and one sign, in either order, off the front of `text`; true when the sign is a minus.
bool TakeSignAndCurrency(std::string_view& text) {
    bool negative = false;
    bool signSeen = false;
    bool currencySeen = false;
    while (!text.empty()) {
        const char c = text.front();
        if ((c == '+' || c == '-') && !signSeen) {
            signSeen = true;
            negative = c == '-';
        } else if (c == '$' && !currencySeen) {
            currencySeen = true;
        } else {
            break;
        }
        text.remove_prefix(1);
    }
    return negative;
}

/// Digits with at most one point, and commas only between the first digit and the point.
struct Digits {
    bool Valid = false;
    int Count = 0;                 ///< of digits, leading zeros included
    int Places = 0;                ///< digits after the point
    std::uint64_t Value = 0;       ///< of the digits without the point, while they fit
    static constexpr int Fit = 15; ///< up to so many digits both Value and 10^Places are exact doubles
};

Digits ScanDigits(std::string_view text) {
    Digits digits;
    bool pointSeen = false;
    for (const char c : text) {
        if (IsDigit(c)) {
            if (++digits.Count <= Digits::Fit)
                digits.Value = digits.Value * 10 + static_cast<std::uint64_t>(c - '0');
            digits.Places += pointSeen ? 1 : 0;
        } else if (c == '.' && !pointSeen) {
            pointSeen = true;
        } else if (c != ',' || pointSeen || digits.Count == 0) {
            return digits;
        }
    }
    digits.Valid = digits.Count > 0;
    return digits;
}

/// The value of many digits; empty when the whole part is too long for any number.
std::optional<double> ReadLongNumber(std::string_view text) {
    std::string digits(text);
    std::erase(digits, ',');
    double value = 0;
    const auto read =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    if (read.ec != std::errc::result_out_of_range)
        return value;
    // Too long a fraction is still a number, namely 0.
    digits.erase(std::min(digits.find('.'), digits.size()));
    return digits.find_first_not_of('0') == digits.npos ? std::optional(0.0) : std::nullopt;
}

std::optional<double> ReadUnsigned(std::string_view text) {
    const Digits digits = ScanDigits(text);
    if (!digits.Valid)
        return std::nullopt;
    if (digits.Count > Digits::Fit)
        return ReadLongNumber(text);
    if (digits.Places == 0)
        return static_cast<double>(digits.Value);
    // One division of exact numbers rounds once, so this is the nearest double, as from_chars would give.
    constexpr double tens[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                               1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    return static_cast<double>(digits.Value) / tens[digits.Places];
}

/// A positive decimal number: its significant digits and the place of the point, counted from the first
/// digit.
struct Decimal {
    std::array<char, 24> Digits{};
    int Count = 0;
    int PointAfter = 0;

    bool IsZero() const {
        return std::all_of(Digits.begin(), Digits.begin() + Count, [](char c) { return c == '0'; });
    }
    char At(int index) const {
        return index >= 0 && index < Count ? Digits[static_cast<std::size_t>(index)] : '0';
    }
};

/// Reads what to_chars wrote in scientific form, "d.ddde+xx".
Decimal FromScientific(const char* first, const char* last) {
    Decimal decimal;
    for (; first != last && *first != 'e'; ++first)
        if (*first != '.')
            decimal.Digits[static_cast<std::size_t>(decimal.Count++)] = *first;
    int exponent = 0;
    const char* exponentStart = first + 1;
    if (exponentStart < last && *exponentStart == '+')
        ++exponentStart;
    std::from_chars(exponentStart, last, exponent);
    decimal.PointAfter = exponent + 1;
    return decimal;
}

Decimal AtSignificantDigits(double magnitude, int digits) {
    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                   std::chars_format::scientific, digits - 1);
    return FromScientific(text.data(), end.ptr);
}

Decimal AtShortest(float magnitude) {
    std::array<char, 40> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific);
    return FromScientific(text.data(), end.ptr);
}

/// The magnitude rounded to `places`, where the rounding is clear without its decimal digits: not near a
/// half, and small enough for the digits to be exact. Empty otherwise.
std::optional<Decimal> RoundedClearly(double magnitude, int places) {
    constexpr double tens[] = {1, 10, 100, 1000};
    if (places >= static_cast<int>(std::size(tens)) || magnitude > 1e9)
        return std::nullopt;
    const double scaled = magnitude * tens[places];
    const double whole = std::floor(scaled);
    const double fraction = scaled - whole;
    if (std::fabs(fraction - 0.5) < 1e-3)
        return std::nullopt;
    Decimal decimal;
    char* const first = decimal.Digits.data();
    const auto end = std::to_chars(first, first + decimal.Digits.size(),
                                   static_cast<std::int64_t>(whole) + (fraction > 0.5 ? 1 : 0));
    decimal.Count = static_cast<int>(end.ptr - first);
    decimal.PointAfter = decimal.Count - places;
    return decimal;
}

/// Rounds to `places` digits after the point, halves away from zero.
void RoundToPlaces(Decimal& decimal, int places) {
    const int kept = decimal.PointAfter + places;
    if (kept >= decimal.Count)
        return;
    const bool up = decimal.At(kept) >= '5';
    decimal.Count = std::max(kept, 0);
    if (!up)
        return;
    int index = decimal.Count - 1;
    while (index >= 0 && decimal.At(index) == '9')
        decimal.Digits[static_cast<std::size_t>(index--)] = '0';
    if (index >= 0) {
        ++decimal.Digits[static_cast<std::size_t>(index)];
        return;
    }
    // The carry ran off the front ("999.5" to "1000"), or nothing was kept (".5" to "1"): a one goes before
    // it all.
    std::copy_backward(decimal.Digits.begin(), decimal.Digits.begin() + decimal.Count,
                       decimal.Digits.begin() + decimal.Count + 1);
    decimal.Digits[0] = '1';
    ++decimal.Count;
    ++decimal.PointAfter;
}

std::string WriteDecimal(Decimal decimal, bool negative, const Picture& picture) {
    RoundToPlaces(decimal, picture.Places);
    const bool zero = decimal.IsZero();
    std::string text;
    if (negative && !zero)
        text += '-';
    text += picture.Literal;

    const int whole = std::max(zero ? 0 : decimal.PointAfter, picture.RequiredWhole);
    for (int left = whole; left > 0; --left) {
        text += zero ? '0' : decimal.At(decimal.PointAfter - left);
        if (picture.Grouped && left > 1 && left % 3 == 1)
            text += ',';
    }
    if (picture.Places == 0)
        return text;
    text += '.';
    for (int place = 0; place < picture.Places; ++place)
        text += zero ? '0' : decimal.At(decimal.PointAfter + place);
    for (int optional = picture.Places - picture.RequiredPlaces; optional > 0 && text.back() == '0';
         --optional)
        text.pop_back();
    return text;
}

std::string WritePlain(const Decimal& decimal, bool negative) {
    std::string text;
    if (negative)
        text += '-';
    for (int index = std::min(decimal.PointAfter - 1, 0); index < decimal.PointAfter; ++index)
        text += decimal.At(index);
    int last = decimal.Count;
    while (last > decimal.PointAfter && decimal.At(last - 1) == '0')
        --last;
    if (last > decimal.PointAfter) {
        text += '.';
        for (int index = decimal.PointAfter; index < last; ++index)
            text += decimal.At(index);
    }
    return text;
}

} // namespace

std::optional<double> ReadNumber(std::string_view text) {
    text = Trimmed(text, " \t");
    const bool negative = TakeSignAndCurrency(text);
    const auto value = ReadUnsigned(text);
    if (!value || !std::isfinite(static_cast<float>(*value)))
        return std::nullopt;
    return negative ? -*value : *value;
}

std::string StripPercent(std::string_view text) {
    std::string stripped(text);
    std::erase(stripped, '%');
    return stripped;
}

std::optional<double> ReadStrippedNumber(std::string_view text) {
    // No text with "%" is a number by itself, and most texts have none.
    const auto number = ReadNumber(text);
    return number || text.find('%') == text.npos ? number : ReadNumber(StripPercent(text));
}

float ParseFieldValue(std::string_view text, double divisor) {
    const auto number = ReadStrippedNumber(text);
    return number ? static_cast<float>(*number / divisor) : 0.0F;
}

std::string PlainText(float value) {
    if (value == 0.0F)
        return "0";
    return WritePlain(AtSignificantDigits(std::fabs(static_cast<double>(value)), 7), value < 0);
}

std::string ShortestText(float value) {
    if (value == 0.0F)
        return "0";
    return WritePlain(AtShortest(std::fabs(value)), value < 0);
}

std::string FormatPicture(double value, const Picture& picture) {
    if (!std::isfinite(value))
        return {};
    const double magnitude = std::fabs(value);
    const auto decimal = RoundedClearly(magnitude, picture.Places);
    return WriteDecimal(decimal ? *decimal : AtSignificantDigits(magnitude, 15), value < 0, picture);
}

std::string FormatPicture(float value, const Picture& picture) {
    // From here on a single is a whole number, and the zeros of its shortest text would not be its own
    // digits.
    constexpr float wholeFrom = 16777216.0F;
    if (!(std::fabs(value) < wholeFrom))
        return FormatPicture(static_cast<double>(value), picture);
    return WriteDecimal(AtShortest(std::fabs(value)), value < 0, picture);
}

} // namespace Ledgrove::Module1
