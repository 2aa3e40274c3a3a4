#include "engine/FinancialFunctions.h"

#include <cmath>

namespace Ledgrove::Module1 {

namespace {

/// 1 - (1 + rate)^-periods, computed without the cancellation that a subtraction causes at small rates.
double DiscountShortfall(double rate, double periods) {
    return -std::expm1(-periods * std::log1p(rate));
}

} // namespace

double PV(double rate, double periods, double payment) {
    if (rate == 0)
        return -payment * periods;
    return -payment * DiscountShortfall(rate, periods) / rate;
}

double FV(double rate, double periods, double payment) {
    if (rate == 0)
        return -payment * periods;
    return -payment * std::expm1(periods * std::log1p(rate)) / rate;
}

double PMT(double rate, double periods, double presentValue) {
    if (rate == 0)
        return -presentValue / periods;
    return -presentValue * rate / DiscountShortfall(rate, periods);
}

double UnpaidBalance(double rate, double paid, double periods, double presentValue) {
    const double left = periods - paid;
    if (rate == 0)
        return presentValue * (left / periods);
    // The balance is the present value of the remaining payments, here as a fraction of the value of all
    // payments.
    return presentValue * (DiscountShortfall(rate, left) / DiscountShortfall(rate, periods));
}

double IPMT(double rate, double period, double periods, double presentValue) {
    if (rate == 0)
        return 0;
    return -UnpaidBalance(rate, period - 1, periods, presentValue) * rate;
}

} // namespace Ledgrove::Module1
