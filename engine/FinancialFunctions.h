#pragma once

// Annuities with payments at the end of each period and no future (for FV: no present) value. `rate` is a
// fraction per period; money paid out is negative, money received positive, so PV(rate, n, +1) is negative.
// Arguments that have no result (no periods, a rate of -1 or below) give a value that is not finite; callers
// test for it.
namespace Ledgrove::Module1 {

/// What `periods` payments of `payment` are worth today.
double PV(double rate, double periods, double payment);

/// What `periods` payments of `payment` have grown to after the last one.
double FV(double rate, double periods, double payment);

/// The level payment that repays `presentValue` in `periods`.
double PMT(double rate, double periods, double presentValue);

/// What is still owed of `presentValue` after `paid` (0 to `periods`) such payments, with its sign.
double UnpaidBalance(double rate, double paid, double periods, double presentValue);

/// The interest part of that payment in period `period` (1 to `periods`).
double IPMT(double rate, double period, double periods, double presentValue);

} // namespace Ledgrove::Module1
