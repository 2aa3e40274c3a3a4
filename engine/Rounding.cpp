#include "engine/Rounding.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Ledgrove::Module1 {

namespace {

/// The double nearest to the decimal number that `value` is at `digits` significant digits.
double AtSignificantDigits(double value, int digits) {
    std::array<char, 40> text;
    char* const first = text.data();
    const auto end =
        std::to_chars(first, first + text.size(), value, std::chars_format::scientific, digits - 1);
    std::from_chars(first, end.ptr, value);
    return value;
}

/// The same for seven digits.
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
    // The 24 bits of a single times a power of ten up to 10^9 are exact, and so is the decimal point's place.
    return std::nearbyint(value * scale) / scale;
}

} // namespace

float ShownDollars(float amount) {
    // From here on singles are whole numbers.
    constexpr float wholeFrom = 8388608;
    if (!std::isfinite(amount))
        return 0;
    // Below it, halves are singles of their own, and half a dollar more is exact in double.
    return std::fabs(amount) < wholeFrom ? std::round(amount) : amount;
}

double WholeDollarsFromCents(double amount) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    // From here on fifteen digits, at which amounts are written, no longer hold the cents.
    constexpr double centsEnd = 1e13;
    double cents = std::nearbyint(amount * 100) / 100;
    if (std::fabs(cents) >= centsEnd)
        cents = AtSignificantDigits(cents, 15);
    // Zero has no sign.
    const double dollars = std::round(cents) + 0.0;
    return std::isfinite(static_cast<float>(dollars)) ? dollars : infinity;
}

float AsTyped(float percent) {
    if (percent == 0)
        return 0; // zero has no sign
    return static_cast<float>(AtSevenDigits(static_cast<double>(percent)) / 100);
}

} // namespace Ledgrove::Module1
