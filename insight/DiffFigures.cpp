#include "insight/DiffFigures.h"

#include <array>

namespace Ledgrove {

namespace {

using S = MainScreen;
using R = Results;

double Number(float amount) {
    return static_cast<double>(amount);
}

double Net(const Scenario& scenario, bool withTaxes) {
    return Number(withTaxes ? scenario.NetMonthlyCashFlow : scenario.NetBeforeTax);
}

double PurchaseToday(const Scenario& scenario, bool withTaxes) {
    return Number(withTaxes ? scenario.PVNetCashFlow : scenario.PVNetBeforeTax);
}

/// The net of the Cash Flow tab, which adds its parts.
double NetCashFlow(const Scenario& scenario) {
    return Number(scenario.ShownTaxSavings) + Number(scenario.UtilitySavings) +
           Number(scenario.MortgageSavings);
}

// clang-format off
constexpr std::array table{
    LabelFigure{&S::lblStdPITI, "StdCase.PITI", "", "", [](const R& r, bool) { return Number(r.StdCase.PITI); }},
    LabelFigure{&S::lblStdMortPayment, "StdCase.MortPayment", "", "", [](const R& r, bool) { return Number(r.StdCase.MortPayment); }},
    LabelFigure{&S::lblStdUtilMo, "StdCase.UtilMonthly", "", "", [](const R& r, bool) { return Number(r.StdCase.UtilMonthly); }},
    LabelFigure{&S::lblStdDown, "StdCase.DownPayment", "", "", [](const R& r, bool) { return Number(r.StdCase.DownPayment); }},
    LabelFigure{&S::lblStdMortgage, "StdCase.LoanAmount", "", "", [](const R& r, bool) { return Number(r.StdCase.LoanAmount); }},
    LabelFigure{&S::lblStdInc, "StdCase.MaxPayment", "", "", [](const R& r, bool) { return Number(r.StdCase.MaxPayment); }},
    LabelFigure{&S::lblStdMaxHome, "StdCase.MaxLoan", "", "", [](const R& r, bool) { return Number(r.StdCase.MaxLoan); }},
    LabelFigure{&S::lblStdQual, "StdCase.Qualifies", "", "", [](const R& r, bool) { return r.StdQualifies ? 1.0 : 0.0; }},
    LabelFigure{&S::lblGMHPITI, "GMHCase.PITI", "", "", [](const R& r, bool) { return Number(r.GMHCase.PITI); }},
    LabelFigure{&S::lblGMHMortPayment, "GMHCase.MortPayment", "", "", [](const R& r, bool) { return Number(r.GMHCase.MortPayment); }},
    LabelFigure{&S::lblGMHUtilMo, "GMHCase.UtilMonthly", "", "", [](const R& r, bool) { return Number(r.GMHCase.UtilMonthly); }},
    LabelFigure{&S::lblgmhDown, "GMHCase.DownPayment", "", "", [](const R& r, bool) { return Number(r.GMHCase.DownPayment); }},
    LabelFigure{&S::lblgmhMortgage, "GMHCase.LoanAmount", "", "", [](const R& r, bool) { return Number(r.GMHCase.LoanAmount); }},
    LabelFigure{&S::lblGMHInc, "GMHCase.MaxPayment", "", "", [](const R& r, bool) { return Number(r.GMHCase.MaxPayment); }},
    LabelFigure{&S::lblGMHMaxHome, "GMHCase.MaxLoan", "", "", [](const R& r, bool) { return Number(r.GMHCase.MaxLoan); }},
    LabelFigure{&S::lblGMHQual, "GMHCase.Qualifies", "", "", [](const R& r, bool) { return r.GMHQualifies ? 1.0 : 0.0; }},
    LabelFigure{&S::lblAddMortMo, "Scenario.MortgageSavings", "", "", [](const R& r, bool) { return Number(r.Scenario.MortgageSavings); }},
    LabelFigure{&S::lblAddMortYr, "Shown.MortgageSavingsPerYear", "", "", [](const R& r, bool) { return Number(r.Scenario.MortgageSavings) * 12; }},
    LabelFigure{&S::lblUtilSavMo, "Scenario.UtilitySavings", "", "", [](const R& r, bool) { return Number(r.Scenario.UtilitySavings); }},
    LabelFigure{&S::lblUtilSavYr, "Shown.UtilitySavingsPerYear", "", "", [](const R& r, bool) { return Number(r.Scenario.UtilitySavings) * 12; }},
    LabelFigure{&S::lblTaxSavMo, "Scenario.ShownTaxSavings", "", "", [](const R& r, bool) { return Number(r.Scenario.ShownTaxSavings); }},
    LabelFigure{&S::lblTaxSavYr, "Shown.TaxSavingsPerYear", "", "", [](const R& r, bool) { return Number(r.Scenario.ShownTaxSavings) * 12; }},
    LabelFigure{&S::lblNetCashMo, "Shown.NetCashFlow", "", "", [](const R& r, bool) { return NetCashFlow(r.Scenario); }},
    LabelFigure{&S::lblNetCashYr, "Shown.NetCashFlowPerYear", "", "", [](const R& r, bool) { return NetCashFlow(r.Scenario) * 12; }},
    LabelFigure{&S::lblStdPITIU, "StdCase.PITIU", "", "", [](const R& r, bool) { return Number(r.StdCase.PITIU); }},
    LabelFigure{&S::lblGMHPITIU, "Shown.NetMonthlyPayment", "", "", [](const R& r, bool) { return Number(r.GMHCase.PITIU) - Number(r.Scenario.ShownTaxSavings); }},
    LabelFigure{&S::lblNetCashMoTx, "Scenario.NetBeforeTax", "Scenario.NetMonthlyCashFlow", "Shown.Net", [](const R& r, bool taxes) { return Net(r.Scenario, taxes); }},
    LabelFigure{&S::lblExtrasTx, "Scenario.PVNetBeforeTax", "Scenario.PVNetCashFlow", "Shown.PurchaseToday", [](const R& r, bool taxes) { return PurchaseToday(r.Scenario, taxes); }},
    LabelFigure{&S::lblHouseValueGM, "Shown.HouseValue", "", "", [](const R& r, bool taxes) { return PurchaseToday(r.Scenario, taxes) + Number(r.GMHCase.Cost); }},
    LabelFigure{&S::lblExpYrPre, "Scenario.SavingsAfterYearsInHome", "", "", [](const R& r, bool) { return Number(r.Scenario.SavingsAfterYearsInHome); }},
    LabelFigure{&S::lbl30YrPre, "Scenario.SavingsAfter30Years", "", "", [](const R& r, bool) { return Number(r.Scenario.SavingsAfter30Years); }},
    LabelFigure{&S::lblPVofSavings, "GMHCase.PVSavings", "", "", [](const R& r, bool) { return Number(r.GMHCase.PVSavings); }},
};
// clang-format on

} // namespace

std::span<const LabelFigure> LabelFigures() {
    return table;
}

std::string_view NameOf(const LabelFigure& figure, bool taxesA, bool taxesB) {
    if (taxesA != taxesB && !figure.Either.empty())
        return figure.Either;
    return taxesA && !figure.WithTaxes.empty() ? figure.WithTaxes : figure.Name;
}

} // namespace Ledgrove
