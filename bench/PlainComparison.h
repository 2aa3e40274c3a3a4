#pragma once

#include <cmath>

// The bare arithmetic of one comparison in double, without texts, records or fault handling: the floor that
// the program's own recalculation is measured against.
namespace Ledgrove::Bench {

struct PlainInput {
    double Income, Debt, PctDown, StdCost, GMHCost, StdUtil, GMHUtil, Rate;
};

struct PlainResult {
    double StdPITI, GMHPITI, Net, PVSavings, StdMaxLoan, GMHMaxLoan, After7, AfterYears, After30, PVNet,
        PVBeforeTax;
};

inline PlainResult ComparePlainly(const PlainInput& in) {
    constexpr double periods = 360;
    constexpr double highEnds[] = {57000, 133000, 243600, 435750, 544650, 1e30};
    constexpr double taxRates[] = {0.10, 0.12, 0.22, 0.24, 0.32, 0.35};
    const double r = in.Rate / 12;
    const double discount = std::pow(1 + r, -periods);
    const double annuity = (1 - discount) / r;

    const auto piti = [&](double cost, double loan) {
        const double pmi = in.PctDown < 0.05   ? 0.0087
                           : in.PctDown < 0.10 ? 0.0066
                           : in.PctDown < 0.15 ? 0.0046
                           : in.PctDown < 0.20 ? 0.0023
                                               : 0;
        return loan / annuity + cost * 0.0090 / 12 + cost * 0.0065 / 12 + loan * pmi / 12;
    };
    const double stdLoan = in.StdCost * (1 - in.PctDown);
    const double gmhLoan = in.GMHCost * (1 - in.PctDown);
    PlainResult out{};
    out.StdPITI = piti(in.StdCost, stdLoan);
    out.GMHPITI = piti(in.GMHCost, gmhLoan);

    const double utilitySavings = (in.StdUtil - in.GMHUtil) / 12;
    out.PVSavings = utilitySavings * annuity;
    const double middle = (1 - std::pow(1 + r, -(periods / 2 + 1))) / (1 - discount) * r;
    int bracket = 0;
    while (in.Income > highEnds[bracket])
        ++bracket;
    const double taxSavings = (gmhLoan - stdLoan) * middle * taxRates[bracket];
    const double beforeTax = utilitySavings + out.StdPITI - out.GMHPITI;
    out.Net = beforeTax + taxSavings;

    const double payment = std::fmin(in.Income * 0.31 / 12, in.Income * 0.43 / 12 - in.Debt);
    out.StdMaxLoan = (payment - (out.StdPITI - stdLoan / annuity)) * annuity;
    out.GMHMaxLoan = (payment - (out.GMHPITI - gmhLoan / annuity)) * annuity;
    out.After7 = out.Net * (std::pow(1 + r, 84) - 1) / r;
    out.AfterYears = out.Net * (std::pow(1 + r, 7 * 12.0) - 1) / r;
    out.After30 = out.Net * (std::pow(1 + r, 360) - 1) / r;
    out.PVBeforeTax = beforeTax * annuity;
    out.PVNet = out.Net * annuity;
    return out;
}

} // namespace Ledgrove::Bench
