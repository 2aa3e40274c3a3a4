#include "engine/FinancialFunctions.h"

#include <cmath>

namespace Ledgrove::Module1 {

namespace {

/// 1 - (1 + rate)^-periods without losing the small rates' digits to the subtraction.
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
    // What the payments still to come are worth, as a fraction of what all of them were worth.
    return presentValue * (DiscountShortfall(rate, left) / DiscountShortfall(rate, periods));
}

double IPMT(double rate, double period, double periods, double presentValue) {
    if (rate == 0)
        return 0;
    return -UnpaidBalance(rate, period - 1, periods, presentValue) * rate;
}

} // namespace Ledgrove::Module1
