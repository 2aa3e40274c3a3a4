#pragma once

#include <optional>
#include <string>
#include <string_view>

// Numbers to and from text under one fixed convention ("$", "," grouping, "." decimal point), whatever the
// machine's locale.
namespace Ledgrove::Module1 {

/// Reads a number as people type it: blanks around; one sign before or after "$"; commas anywhere after the
/// first digit of the whole part; "5.", ".5" and "+5" are numbers. Exponents, hex, inf, nan, parentheses,
/// blanks inside and amounts beyond single precision are none: the result is then empty.
std::optional<double> ReadNumber(std::string_view text);

/// The text without any "%", all other characters in order.
std::string StripPercent(std::string_view text);

/// The text without "%" as a number.
std::optional<double> ReadStrippedNumber(std::string_view text);

/// The same, divided by `divisor` (100 turns a percent into a fraction) and rounded
/// to single precision. A text that is no number gives 0.
float ParseFieldValue(std::string_view text, double divisor);

/// The plain decimal text of a single at no more than 7 significant digits, never an exponent: "1.5",
/// "0.0087".
std::string PlainText(float value);

/// The shortest plain decimal text that reads back as the same single (up to 9 significant digits).
std::string ShortestText(float value);

/// A number shown through a picture: "#" an optional digit, "0" a required digit, "," grouping by thousands,
/// "." the decimal point, "$" in front itself. Halves go away from zero on the decimal value at 15
/// significant digits; the minus sign stands before "$", and an amount that rounds to zero has none. Not
/// finite: empty.
std::string FormatPicture(double value, std::string_view picture);

/// The same for a single, taken at its shortest decimal text (from 2^24 on, where singles are whole numbers,
/// as it is).
std::string FormatPicture(float value, std::string_view picture);

/// A dollar amount through "$##,###,##0"; "FormatError" when the amount is not finite.
std::string MoneyText(float amount);

/// Writes MoneyText into `text`, reusing its memory.
void MoneyText(float amount, std::string& text);

/// Appends FormatPicture(amount, "0.00") to `text`: a price list has two dozen of them in a row.
void AppendCents(float amount, std::string& text);

} // namespace Ledgrove::Module1
