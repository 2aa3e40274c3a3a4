#include "engine/Rounding.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Ledgrove::Module1 {

namespace {

/// `value` rounded to `digits` significant decimal digits.
double AtSignificantDigits(double value, int digits) {
    std::array<char, 40> text;
    char* const first = text.data();
    const auto end =
        std::to_chars(first, first + text.size(), value, std::chars_format::scientific, digits - 1);
    std::from_chars(first, end.ptr, value);
    return value;
}

/// `value` rounded to seven significant decimal digits, without a text where possible.
double AtSevenDigits(double value) {
    constexpr double smallest = 1e-3;
    constexpr double largest = 1e7;
    const double magnitude = std::fabs(value);
    if (!(magnitude >= smallest && magnitude < largest))
        return AtSignificantDigits(value, 7);
    double scale = 1e6;
    for (double power = 10; magnitude >= power; power *= 10)
        scale /= 10;
    for (double power = 1; magnitude < power; power /= 10)
        scale *= 10;
    // The product is exact: a single has 24 bits, and the scale is a power of ten up to 10^9.
    return std::nearbyint(value * scale) / scale;
}

} // namespace

float ShownDollars(float amount) {
    // From this value on, all singles are whole numbers.
    constexpr float wholeFrom = 8388608;
    if (!std::isfinite(amount))
        return 0;
    // Below it, singles represent every half dollar, so std::round rounds exactly.
    return std::fabs(amount) < wholeFrom ? std::round(amount) : amount;
}

double WholeDollarsFromCents(double amount) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    // Amounts are written with 15 digits. From this value on, these no longer include the cents.
    constexpr double centsEnd = 1e13;
    double cents = std::nearbyint(amount * 100) / 100;
    if (std::fabs(cents) >= centsEnd)
        cents = AtSignificantDigits(cents, 15);
    // Adding 0 turns -0 into 0.
    const double dollars = std::round(cents) + 0.0;
    return std::isfinite(static_cast<float>(dollars)) ? dollars : infinity;
}

float AsTyped(float percent) {
    if (percent == 0)
        return 0; // zero has no sign
    return static_cast<float>(AtSevenDigits(static_cast<double>(percent)) / 100);
}

} // namespace Ledgrove::Module1
