#pragma once

// Annuities with payments at the end of each period and a future value of 0 (FV: a present value of 0).
// `rate` is a fraction per period, so a yearly rate / 12 for monthly payments. Amounts are dollars: negative
// if paid out, positive if received, so PV(rate, n, +1) is negative. If there is no result, for example for
// PMT over 0 periods or a rate below -1, the returned value is not finite, and the caller must check for
// that.
namespace Ledgrove::Module1 {

/// The present value of `periods` payments of `payment`.
double PV(double rate, double periods, double payment);

/// The future value of `periods` payments of `payment`, right after the last one.
double FV(double rate, double periods, double payment);

/// The constant payment per period that repays `presentValue` in `periods`.
double PMT(double rate, double periods, double presentValue);

/// The part of `presentValue` that is still owed after `paid` (0 to `periods`) payments of PMT, with the sign
/// of `presentValue`.
double UnpaidBalance(double rate, double paid, double periods, double presentValue);

/// The interest in the payment of period `period` (1 to `periods`).
double IPMT(double rate, double period, double periods, double presentValue);

} // namespace Ledgrove::Module1
