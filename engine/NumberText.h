#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/Picture.h"

// Converts numbers to text and text to numbers under one fixed convention ("$", "," grouping, "." decimal
// point), whatever the machine's locale.
namespace Ledgrove::Module1 {

/// Reads a number as people type it: blanks around it; one sign before or after "$"; commas anywhere after
/// the first digit of the whole part. Anything else gives nothing: exponents, hex, inf, nan, parentheses,
/// blanks inside, amounts beyond single precision.
///     "$1,234.50" -> 1234.5    " -$5 " -> -5    "$-5" -> -5    "+5" -> 5    "5." -> 5    ".5" -> 0.5
///     "" -> nothing    "$" -> nothing    "1e5" -> nothing    "1.2.3" -> nothing    "5 000" -> nothing
std::optional<double> ReadNumber(std::string_view text);

/// The text without any "%", all other characters in order.
///     "6%.5%" -> "6.5"
std::string StripPercent(std::string_view text);

/// The text without "%" as a number.
///     "6.5%" -> 6.5    "%" -> nothing
std::optional<double> ReadStrippedNumber(std::string_view text);

/// The same, divided by `divisor` (100 turns a percentage into a fraction) and rounded to single precision. A
/// text that is not a number gives 0.
///     ("6.5%", 100) -> 0.065    ("$72,000", 1) -> 72000    ("abc", 1) -> 0
float ParseFieldValue(std::string_view text, double divisor);

/// The plain decimal text of a single at no more than 7 significant digits, never with an exponent.
///     1.5 -> "1.5"    0.0087 -> "0.0087"    0 -> "0"    16777216 -> "16777220"
std::string PlainText(float value);

/// The shortest plain decimal text that reads back as the same single (up to 9 significant digits).
///     0.1 -> "0.1"    16777216 -> "16777216"    -2.5 -> "-2.5"
std::string ShortestText(float value);

/// A number shown through a picture: "#" an optional digit, "0" a required digit, "," grouping by thousands,
/// "." the decimal point, "$" in front itself. Halves go away from zero on the decimal value at 15
/// significant digits; the minus sign stands before "$", and an amount that rounds to zero has none. A number
/// that is not finite gives an empty text.
///     (1234.5, "$#,##0") -> "$1,235"    (-0.4, "$#,##0") -> "$0"    (6.5, "#0.000") -> "6.500"
///     (0, "#") -> ""    (-1234, "###,##0") -> "-1,234"    (0.125, "0.00") -> "0.13"
std::string FormatPicture(double value, const Picture& picture);

/// The same for a single, taken at its shortest decimal text (from 2^24 on, where singles are whole numbers,
/// as it is).
///     (0.145F, "0.00") -> "0.15", although that single lies below 0.145
std::string FormatPicture(float value, const Picture& picture);

/// A dollar amount through "$##,###,##0"; "FormatError" when the amount is not finite.
///     1465.06 -> "$1,465"    -47.97 -> "-$48"    -0.4 -> "$0"
std::string MoneyText(float amount);

/// Writes MoneyText into `text` and reuses its memory.
void MoneyText(float amount, std::string& text);

/// Appends FormatPicture(amount, "0.00") to `text`, faster: a price list has two dozen of them in a row.
void AppendCents(float amount, std::string& text);

} // namespace Ledgrove::Module1
