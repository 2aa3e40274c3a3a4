#include "insight/TaxCheck.h"

#include <algorithm>
#include <cmath>

#include "insight/YearsWords.h"

namespace Ledgrove {

bool DiffersFromShown(const TaxCheck& tax) {
    constexpr double rightWithin = 0.5;
    return std::fabs(tax.Real - static_cast<double>(tax.Shown)) > rightWithin;
}

namespace {

double InterestOfFirstYear(const HomePlan& plan) {
    double interest = 0;
    for (int month = 1; month <= 12; ++month)
        interest += MonthOf(plan, month, 1, 1).Interest;
    return interest;
}

HomeTax TaxOf(const HomePlan& plan, const YearSettings& settings, double rate) {
    const double loan = plan.Balances.front();
    const double deductible = loan > 0 ? std::min(1.0, settings.DebtCap / loan) : 1;
    HomeTax tax;
    tax.Interest = InterestOfFirstYear(plan);
    tax.Itemized = tax.Interest * deductible + std::min(12 * plan.Tax + settings.StateTax, settings.SaltCap) +
                   settings.OtherDeductions;
    const double above = std::max(0.0, tax.Itemized - settings.StandardDeduction);
    tax.Benefit = above * rate;
    tax.Itemizes = above > 0;
    return tax;
}

/// Whose any other amount is, only the user knows.
std::string DeductionText(const TaxCheck& tax) {
    const double deduction = tax.By.StandardDeduction;
    const std::string amount = "the standard deduction of " + DollarText(deduction);
    for (const FilingStatus& status : FilingStatuses)
        if (status.Deduction == deduction)
            return amount + " for " + std::string(status.Whose) + " (tax year 2026)";
    return amount + " in the settings";
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

std::string AssumedText(const YearSettings& settings) {
    return "This assumes " + DollarText(settings.StateTax) + " of state income tax and " +
           DollarText(settings.OtherDeductions) + " of other deductions a year. At most " +
           DollarText(settings.SaltCap) +
           " of state and local taxes can be deducted, and the interest on at most " +
           DollarText(settings.DebtCap) + " of a loan.";
}

std::string SentenceOf(const TaxCheck& tax) {
    const std::string real = DollarText(tax.Real);
    const std::string shown = DollarText(static_cast<double>(tax.Shown));
    const std::string line = ReasonText(tax) + ": the tax line would really be " + real + " a month";
    if (!tax.IsIncluded)
        return line + "; the tabs leave it out, because income tax is not included.";
    if (real != shown)
        return line + ", not the " + shown + " shown.";
    return line + (DiffersFromShown(tax) ? ", nearly as shown." : ", as shown.");
}

} // namespace

TaxCheck CheckTaxLine(const Insight& insight, const HomePlan& std, const HomePlan& gmh) {
    TaxCheck tax;
    tax.By = insight.By().Years;
    tax.IsIncluded = insight.Now().IncludeTaxes;
    tax.Shown = insight.Record().Scenario.ShownTaxSavings;
    tax.Rate = static_cast<double>(insight.Record().Scenario.MarginalTaxRate);
    tax.Std = TaxOf(std, tax.By, tax.Rate);
    tax.GMH = TaxOf(gmh, tax.By, tax.Rate);
    tax.Real = (tax.GMH.Benefit - tax.Std.Benefit) / 12;
    tax.Sentence = SentenceOf(tax);
    return tax;
}

TaxCheck ComputeTaxCheck(const Insight& insight, const YearByYear& years) {
    return CheckTaxLine(insight, years.Std, years.GMH);
}

Sheet TaxCheckSheet(const TaxCheck& tax) {
    Sheet sheet;
    sheet.Title = "Income tax";
    sheet.Sentence = tax.Sentence;
    sheet.Note = AssumedText(tax.By);
    sheet.Heads = {"First Year", "Base", "GREENMARK"};
    const auto add = [&sheet](const char* what, double base, double labelled) {
        sheet.Rows.push_back({TextCell(what), DollarCell(base), DollarCell(labelled)});
    };
    add("Interest", tax.Std.Interest, tax.GMH.Interest);
    add("Deductions, itemized", tax.Std.Itemized, tax.GMH.Itemized);
    add("Standard deduction", tax.By.StandardDeduction, tax.By.StandardDeduction);
    add("Income tax saved by itemizing", tax.Std.Benefit, tax.GMH.Benefit);
    return sheet;
}

} // namespace Ledgrove
