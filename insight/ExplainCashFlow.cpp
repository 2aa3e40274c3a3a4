#include "insight/ExplainWriter.h"

// The cash flow of both homes together, and what the tabs compute when they show it.
namespace Ledgrove {

namespace {

using S = MainScreen;

void ExplainTaxSavings(ExplanationWriter& writer) {
    for (const HomeCode home : {HomeCode::Std, HomeCode::GMH}) {
        writer.TakeHome(home);
        writer.AddOwn("@MiddleInterest", "IPMT(@IntRate / 12, Term * 12 / 2, Term * 12, -@LoanAmount)",
                      "The interest in the middle of the term stands for every month");
    }
    const Results& record = writer.Of().Record();
    std::string expression = "(GMHCase.MiddleInterest - StdCase.MiddleInterest) * Scenario.MarginalTaxRate";
    std::string because;
    if (record.Decisions.StaysBeyondTerm) {
        expression += " * 0.75";
        because = std::to_string(record.Scenario.YearsInHome) +
                  " years in the home are more than the term: three quarters of the tax savings count";
    }
    writer.AddCashFlow(Figure::TaxSavings, expression, because);
    const ExplanationWriter::Labels labels{&S::lblTaxSavMo, &S::lbltaxsavmo2};
    if (writer.Of().Now().IncludeTaxes)
        writer.AddCashFlow(Figure::ShownTaxSavings, "Scenario.TaxSavings", "Taxes are included", labels);
    else
        writer.Add(Figure::ShownTaxSavings, "0", "Taxes are not included", labels);
}

/// The net with and without tax savings. Labels show the one or the other.
void ExplainNet(ExplanationWriter& writer) {
    constexpr std::string_view before = "Scenario.MortgageSavings + Scenario.UtilitySavings";
    constexpr std::string_view with = "Scenario.NetBeforeTax + Scenario.TaxSavings";
    const ExplanationWriter::Labels labels{&S::lblNetCashMoTx, &S::lblNetCashMo2};
    if (writer.Of().Now().IncludeTaxes) {
        writer.AddCashFlow(Figure::NetBeforeTax, before);
        writer.AddCashFlow(Figure::NetMonthlyCashFlow, with, "Taxes are included", labels);
    } else {
        writer.AddCashFlow(Figure::NetBeforeTax, before, "Taxes are not included", labels);
        writer.AddCashFlow(Figure::NetMonthlyCashFlow, with);
    }
}

void ExplainSavings(ExplanationWriter& writer) {
    constexpr std::string_view withTaxes =
        "Taxes count here even if they are not included in what the tabs show";
    writer.AddCashFlow(Figure::ExtraCashToday, "GMHCase.DownPayment - StdCase.DownPayment");
    writer.AddCashFlow(Figure::PriceDifference, "GMHCase.Cost - StdCase.Cost");
    const std::string because(writer.Of().Now().IncludeTaxes ? "" : withTaxes);
    writer.AddCashFlow(Figure::SavingsAfter7Years,
                       "FV(GMHCase.IntRate / 12, 7 * 12, -Scenario.NetMonthlyCashFlow)", because);
    writer.AddCashFlow(Figure::SavingsAfterYearsInHome,
                       "FV(GMHCase.IntRate / 12, YEARS_IN_HOME * 12, -Scenario.NetMonthlyCashFlow)", because,
                       {&S::lblExpYrPre});
    writer.AddCashFlow(Figure::SavingsAfter30Years,
                       "FV(GMHCase.IntRate / 12, 30 * 12, -Scenario.NetMonthlyCashFlow)", because,
                       {&S::lbl30YrPre});
}

void ExplainPurchase(ExplanationWriter& writer) {
    constexpr std::string_view before = "PV(GMHCase.IntRate / 12, Term * 12, -Scenario.NetBeforeTax)";
    constexpr std::string_view with = "PV(GMHCase.IntRate / 12, Term * 12, -Scenario.NetMonthlyCashFlow)";
    const ExplanationWriter::Labels labels{&S::lblExtrasTx};
    if (writer.Of().Now().IncludeTaxes) {
        writer.AddCashFlow(Figure::PVNetBeforeTax, before);
        writer.AddCashFlow(Figure::PVNetCashFlow, with, "Taxes are included", labels);
        writer.AddOwn("Shown.HouseValue", "Scenario.PVNetCashFlow + GMHCase.Cost", {}, {&S::lblHouseValueGM});
    } else {
        writer.AddCashFlow(Figure::PVNetBeforeTax, before, "Taxes are not included", labels);
        writer.AddCashFlow(Figure::PVNetCashFlow, with);
        writer.AddOwn("Shown.HouseValue", "Scenario.PVNetBeforeTax + GMHCase.Cost", {},
                      {&S::lblHouseValueGM});
    }
}

void ExplainShown(ExplanationWriter& writer) {
    writer.AddOwn("Shown.MortgageSavingsPerYear", "Scenario.MortgageSavings * 12", {}, {&S::lblAddMortYr});
    writer.AddOwn("Shown.UtilitySavingsPerYear", "Scenario.UtilitySavings * 12", {}, {&S::lblUtilSavYr});
    writer.AddOwn("Shown.TaxSavingsPerYear", "Scenario.ShownTaxSavings * 12", {}, {&S::lblTaxSavYr});
    writer.AddOwn("Shown.NetCashFlow",
                  "Scenario.ShownTaxSavings + Scenario.UtilitySavings + Scenario.MortgageSavings", {},
                  {&S::lblNetCashMo});
    writer.AddOwn("Shown.NetCashFlowPerYear", "Shown.NetCashFlow * 12", {}, {&S::lblNetCashYr});
    writer.AddOwn("Shown.NetMonthlyPayment", "GMHCase.PITIU - Scenario.ShownTaxSavings",
                  "The tax savings are subtracted, so that both payments differ by the net cash flow",
                  {&S::lblGMHPITIU});
}

} // namespace

void ExplainCashFlow(ExplanationWriter& writer) {
    writer.AddCashFlow(Figure::MortgageSavings, "StdCase.PITI - GMHCase.PITI", {}, {&S::lblAddMortMo});
    ExplainTaxSavings(writer);
    ExplainNet(writer);
    ExplainSavings(writer);
    ExplainPurchase(writer);
    ExplainShown(writer);
}

} // namespace Ledgrove
