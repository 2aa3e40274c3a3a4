#pragma once

// The rules define these roundings by formatting a number and reading the text back. The functions compute
// the same results from the numbers, for every value.
namespace Ledgrove::Module1 {

/// An amount in dollars as MoneyText shows it: whole dollars, halves away from zero.
///     0.49 -> 0     0.5 -> 1     -2.5 -> -3     8388607.5 -> 8388608     1e30 -> 1e30
/// If the amount is not finite, returns 0.
float ShownDollars(float amount);

/// An amount in dollars, rounded to cents (halves to even) and then to whole dollars (halves away from zero).
///     100.494 -> 100     100.495 -> 101 (100.50)     100.505 -> 101     -0.2 -> 0
/// If the amount is not finite or exceeds single precision, returns infinity.
double WholeDollarsFromCents(double amount);

/// Converts a percentage to a fraction. It rounds the percentage to 7 significant digits first, because a
/// person typed it as a decimal number.
///     1.5 -> 0.015     0.9 -> 0.009     39.6 -> 0.396     -0 -> 0
float AsTyped(float percent);

} // namespace Ledgrove::Module1
