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

double IPMT(double rate, double period, double periods, double presentValue) {
    if (rate == 0)
        return 0;
    // The balance before the period is what the payments still to come are worth, a fraction of the loan.
    const double unpaid = DiscountShortfall(rate, periods - period + 1) / DiscountShortfall(rate, periods);
    return -presentValue * unpaid * rate;
}

} // namespace Ledgrove::Module1
