#pragma once

// The roundings that the rules prescribe by way of a text, done on the numbers. Each agrees with its text for
// every value.
namespace Ledgrove::Module1 {

/// An amount as MoneyText shows it, read back: whole dollars, halves away from zero.
///     0.49 -> 0     0.5 -> 1     -2.5 -> -3     8388607.5 -> 8388608     1e30 -> 1e30
/// An amount that is not finite gives 0.
float ShownDollars(float amount);

/// An amount rounded to cents, halves to even, and then to whole dollars, halves away from zero.
///     100.494 -> 100     100.495 -> 101 (100.50)     100.505 -> 101     -0.2 -> 0
/// An amount beyond single precision, or not finite, gives infinity.
double WholeDollarsFromCents(double amount);

/// A percentage as a fraction, taken at its decimal text of 7 significant digits, so that it is what a person
/// would have typed.
///     1.5 -> 0.015     0.9 -> 0.009     39.6 -> 0.396     -0 -> 0
float AsTyped(float percent);

} // namespace Ledgrove::Module1
