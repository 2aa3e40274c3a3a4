#pragma once

#include <cmath>

// The bare arithmetic of one comparison in double, formula by formula, without texts, records or fault
// handling: the floor for the program's recalculation.
namespace Ledgrove::Bench {

struct PlainInput {
    double Income, Debt, PctDown, StdCost, GMHCost, StdUtil, GMHUtil, StdRate, GMHRate;
};

struct PlainResult {
    double StdPITI, GMHPITI, Net, PVSavings, StdMaxLoan, GMHMaxLoan, GMHMaxPayment, After7, AfterYears,
        After30, PVNet, PVBeforeTax;
};

inline double PV(double rate, double periods, double payment) {
    return -payment * (1 - std::pow(1 + rate, -periods)) / rate;
}

inline double FV(double rate, double periods, double payment) {
    return -payment * (std::pow(1 + rate, periods) - 1) / rate;
}

inline double PMT(double rate, double periods, double presentValue) {
    return -presentValue * rate / (1 - std::pow(1 + rate, -periods));
}

inline double IPMT(double rate, double period, double periods, double presentValue) {
    const double paid = FV(rate, period - 1, PMT(rate, periods, presentValue));
    return -(presentValue * std::pow(1 + rate, period - 1) - paid) * rate;
}

inline double PlainPMI(double down) {
    return down < 0.05 ? 0.0087 : down < 0.10 ? 0.0066 : down < 0.15 ? 0.0046 : down < 0.20 ? 0.0023 : 0;
}

inline PlainResult ComparePlainly(const PlainInput& in, double years, double yearsInHome) {
    constexpr double highEnds[] = {57000, 133000, 243600, 435750, 544650, 1e30};
    constexpr double taxRates[] = {0.10, 0.12, 0.22, 0.24, 0.32, 0.35};
    const double n = years * 12;
    const double stdRate = in.StdRate / 12;
    const double gmhRate = in.GMHRate / 12;
    const double savings = (in.StdUtil - in.GMHUtil) / 12;

    const double stdLoan = in.StdCost * (1 - in.PctDown);
    const double gmhLoan = in.GMHCost * (1 - in.PctDown);
    const double stdTIP = in.StdCost * (0.0090 + 0.0065) / 12 + stdLoan * PlainPMI(in.PctDown) / 12;
    const double gmhTIP = in.GMHCost * (0.0090 + 0.0065) / 12 + gmhLoan * PlainPMI(in.PctDown) / 12;
    PlainResult out{};
    out.StdPITI = PMT(stdRate, n, -stdLoan) + stdTIP;
    out.GMHPITI = PMT(gmhRate, n, -gmhLoan) + gmhTIP;
    out.PVSavings = PV(gmhRate, n, -savings);

    const double payment = std::fmin(in.Income * 0.31 / 12, in.Income * 0.43 / 12 - in.Debt);
    out.StdMaxLoan = PV(stdRate, n, stdTIP - payment);
    out.GMHMaxLoan = PV(gmhRate, n, gmhTIP - payment) + std::fmin(out.PVSavings, 8000.0);
    out.GMHMaxPayment = PMT(gmhRate, n, -out.GMHMaxLoan);

    int bracket = 0;
    while (in.Income > highEnds[bracket])
        ++bracket;
    const double extraInterest = IPMT(gmhRate, n / 2, n, -gmhLoan) - IPMT(stdRate, n / 2, n, -stdLoan);
    const double beforeTax = savings + out.StdPITI - out.GMHPITI;
    out.Net = beforeTax + extraInterest * taxRates[bracket];
    out.After7 = FV(gmhRate, 84, -out.Net);
    out.AfterYears = FV(gmhRate, yearsInHome * 12, -out.Net);
    out.After30 = FV(gmhRate, 360, -out.Net);
    out.PVBeforeTax = -PV(gmhRate, n, beforeTax);
    out.PVNet = -PV(gmhRate, n, out.Net);
    return out;
}

} // namespace Ledgrove::Bench
