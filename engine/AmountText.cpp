// Fast formatting for the two pictures that a comparison uses dozens of times. Amounts that need more care go
// to FormatPicture.

#include "engine/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace Ledgrove::Module1 {

namespace {

/// For a single whose neighbours are more than a cent away: at most two decimal places identify it, and its
/// shortest decimal text is the one with the fewest places that do.
std::optional<std::int64_t> CentsFromFewestPlaces(double magnitude) {
    constexpr std::int64_t tens[] = {1, 10, 100};
    for (int places = 0; places <= 2; ++places) {
        const auto scale = static_cast<double>(tens[places]);
        const double scaled = magnitude * scale;
        // Two texts are equally near: FormatPicture decides between them.
        if (scaled - std::floor(scaled) == 0.5)
            return std::nullopt;
        const auto digits = static_cast<std::int64_t>(scaled + 0.5);
        if (static_cast<float>(static_cast<double>(digits) / scale) == static_cast<float>(magnitude))
            return digits * tens[2 - places];
    }
    return std::nullopt;
}

/// The amount of a single in whole cents; empty if that depends on the single's exact decimal digits.
std::optional<std::int64_t> CentsClearly(double magnitude) {
    constexpr double singlesBeyondCents = 131072;
    constexpr double singlesAreWhole = 16777216;
    if (!(magnitude < singlesAreWhole))
        return std::nullopt;
    if (magnitude >= singlesBeyondCents)
        return CentsFromFewestPlaces(magnitude);
    const double scaled = magnitude * 100;
    const double whole = std::floor(scaled);
    const double fraction = scaled - whole;
    // The shortest decimal text differs from the single by less than half of its last bit. So only a value
    // this close to half a cent can round differently as a text. Whole cents need no rounding.
    const double halfBit = scaled / singlesAreWhole + 1e-6;
    if (fraction != 0 && std::fabs(fraction - 0.5) <= halfBit)
        return std::nullopt;
    return static_cast<std::int64_t>(whole) + (fraction > 0.5 ? 1 : 0);
}

} // namespace

std::string MoneyText(float amount) {
    std::string text;
    MoneyText(amount, text);
    return text;
}

void MoneyText(float amount, std::string& text) {
    // Below 2^22 a single represents every half dollar, so adding one half in double rounds exactly as the
    // decimal text would. Every recalculation formats all result labels here, and FormatPicture takes five
    // times as long.
    constexpr float halvesAreExact = 4194304.0F;
    if (!std::isfinite(amount)) {
        text = "FormatError";
    } else if (std::fabs(amount) < halvesAreExact) {
        auto dollars = static_cast<int>(std::fabs(static_cast<double>(amount)) + 0.5);
        std::array<char, 16> buffer{};
        char* const end = buffer.data() + buffer.size();
        char* first = end;
        const bool negative = amount < 0 && dollars > 0;
        for (int written = 0; dollars > 0 || written == 0; ++written, dollars /= 10) {
            if (written > 0 && written % 3 == 0)
                *--first = ',';
            *--first = static_cast<char>('0' + dollars % 10);
        }
        *--first = '$';
        if (negative)
            *--first = '-';
        text.assign(first, end);
    } else {
        text = FormatPicture(amount, "$##,###,##0");
    }
}

void AppendCents(float amount, std::string& text) {
    const auto cents = CentsClearly(std::fabs(static_cast<double>(amount)));
    if (!cents) {
        text += FormatPicture(amount, "0.00");
        return;
    }
    if (amount < 0 && *cents > 0)
        text += '-';
    std::array<char, 24> digits;
    char* const first = digits.data();
    char* const end = std::to_chars(first, first + digits.size(), *cents / 100).ptr;
    end[0] = '.';
    end[1] = static_cast<char>('0' + *cents % 100 / 10);
    end[2] = static_cast<char>('0' + *cents % 10);
    text.append(first, end + 3);
}

} // namespace Ledgrove::Module1
