#include "insight/TaxCheck.h"

#include <algorithm>

#include "insight/YearsWords.h"

namespace Ledgrove {

namespace {

HomeTax TaxOf(const HomePlan& plan, const HomeFlow& firstYear, const YearSettings& settings, double rate) {
    const double loan = plan.Balances.front();
    const double deductible = loan > 0 ? std::min(1.0, settings.DebtCap / loan) : 1;
    HomeTax tax;
    tax.Interest = firstYear.Interest;
    tax.Itemized = tax.Interest * deductible + std::min(12 * plan.Tax + settings.StateTax, settings.SaltCap) +
                   settings.OtherDeductions;
    const double above = std::max(0.0, tax.Itemized - settings.StandardDeduction);
    tax.Benefit = above * rate;
    tax.Itemizes = above > 0;
    return tax;
}

/// The shipped amount is a couple's; whose another one is, only the user knows.
std::string DeductionText(const TaxCheck& tax) {
    const std::string amount = "the standard deduction of " + DollarText(tax.StandardDeduction);
    return tax.StandardDeduction == YearSettings().StandardDeduction
               ? amount + " for a couple filing jointly (tax year 2026)"
               : amount + " in the settings";
}

std::string ReasonText(const TaxCheck& tax) {
    const std::string deduction = DeductionText(tax);
    if (tax.Std.Itemizes && tax.GMH.Itemizes)
        return "The deductions of both homes exceed " + deduction + ", which saves " + RateText(tax.Rate) +
               " of what is above it";
    if (tax.GMH.Itemizes)
        return "Only the deductions of the GREENMARK home exceed " + deduction + ", which saves " +
               RateText(tax.Rate) + " of what is above it";
    if (tax.Std.Itemizes)
        return "Only the deductions of the base home exceed " + deduction + ", which saves " +
               RateText(tax.Rate) + " of what is above it";
    return "Neither home's deductions exceed " + deduction + ", so their interest saves no income tax";
}

std::string SentenceOf(const TaxCheck& tax) {
    const std::string real = DollarText(tax.Real);
    const std::string shown = DollarText(static_cast<double>(tax.Shown));
    return ReasonText(tax) + ": the tax line would really be " + real + " a month" +
           (real == shown ? ", as shown." : ", not the " + shown + " shown.");
}

} // namespace

TaxCheck ComputeTaxCheck(const Insight& insight, const YearByYear& years) {
    const YearSettings& settings = insight.By().Years;
    const FlowRow& first = years.Years.front();
    TaxCheck tax;
    tax.Shown = insight.Record().Scenario.ShownTaxSavings;
    tax.Rate = static_cast<double>(insight.Record().Scenario.MarginalTaxRate);
    tax.StandardDeduction = settings.StandardDeduction;
    tax.Std = TaxOf(years.Std, first.Std, settings, tax.Rate);
    tax.GMH = TaxOf(years.GMH, first.GMH, settings, tax.Rate);
    tax.Real = (tax.GMH.Benefit - tax.Std.Benefit) / 12;
    tax.Sentence = SentenceOf(tax);
    return tax;
}

Sheet TaxCheckSheet(const TaxCheck& tax) {
    Sheet sheet;
    sheet.Title = "Income tax";
    sheet.Sentence = tax.Sentence;
    sheet.Heads = {"First Year", "Base", "GREENMARK"};
    const auto add = [&sheet](const char* what, double base, double labelled) {
        sheet.Rows.push_back({TextCell(what), DollarCell(base), DollarCell(labelled)});
    };
    add("Interest", tax.Std.Interest, tax.GMH.Interest);
    add("Deductions, itemized", tax.Std.Itemized, tax.GMH.Itemized);
    add("Standard deduction", tax.StandardDeduction, tax.StandardDeduction);
    add("Income tax saved by itemizing", tax.Std.Benefit, tax.GMH.Benefit);
    return sheet;
}

} // namespace Ledgrove
