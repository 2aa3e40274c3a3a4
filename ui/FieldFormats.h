#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Ledgrove {

/// How a field converts and shows its value.
///     Dollar        150000 -> $150,000
///     IntRate       6.5 -> 6.500%
///     Percent       0.05 -> 5.00%    5 -> 5.00%       0.5% -> 0.50%
///     Percent2      0.005 -> 0.50%   0.5 -> 0.50%
///     Either        0.1 -> 10.0%     2500 -> $2,500
///     Either2       0.005 -> 0.50%   0.5 -> 0.50%     2500 -> $2,500
///     String        as typed, any text
///     Whole         1200 -> 1,200    12% -> 0
///     WholePercent  28 -> 28.00%
///     SmallPercent  as typed, a number
enum class FieldFormat : std::uint8_t {
    Dollar,
    IntRate,
    Percent,
    Percent2,
    Either,
    Either2,
    String,
    Whole,
    WholePercent,
    SmallPercent
};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// The text in its display format. A text that is not a number is shown as 0. String and SmallPercent return
/// the text unchanged.
std::string FormatFieldText(std::string_view text, FieldFormat format);

/// The same for a text whose number, without "%", is already known.
std::string FormatFieldText(std::string_view text, double number, FieldFormat format);

} // namespace Ledgrove::Module1
