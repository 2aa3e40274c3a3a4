#include "insight/ExplainWords.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

constexpr auto dollars = CellUnit::Dollars;
constexpr auto monthly = CellUnit::DollarsPerMonth;
constexpr auto percent = CellUnit::Percent;
constexpr auto years = CellUnit::Years;
constexpr auto number = CellUnit::Text;

// clang-format off
constexpr FigureWords words[] = {
    {"Cost", "Sticker Price", "price", dollars},
    {"DownPayment", "Down Payment", "down payment", dollars},
    {"LoanAmount", "Mortgage Amount", "mortgage amount", dollars},
    {"UtilAnnual", "Annual Utility Cost", "annual utility cost", dollars},
    {"UtilMonthly", "Monthly Utility Bills", "utility bills", monthly},
    {"IntRate", "Interest Rate", "interest rate", percent},
    {"MortPayment", "Mortgage Payment (P+I)", "principal and interest", monthly},
    {"InsMonthly", "Home Owner's Insurance per Month", "insurance", monthly},
    {"TaxMonthly", "Real Estate Taxes per Month", "taxes", monthly},
    {"PMIMonthly", "PMI per Month", "PMI", monthly},
    {"PITI", "Mortgage Payment", "mortgage payment", monthly},
    {"StdCase.PITIU", "Net Monthly Payment", "mortgage payment and utility bills", monthly},
    {"PITIU", "Mortgage Payment and Utility Bills", "mortgage payment and utility bills", monthly},
    {"TIPMonthly", "Taxes, Insurance and PMI", "taxes, insurance and PMI", monthly},
    {"IncomeNeeded", "Income Needed", "income needed", dollars},
    {"IncomeByRatios", "Income That the Ratios Require", "income that the ratios require", dollars},
    {"IncomeRounding", "Rounding of the Income to Whole Dollars", "rounding to whole dollars", dollars},
    {"RatioPayment", "Payment That the Ratios Allow", "payment that the ratios allow", monthly},
    {"MaxPayment", "Maximum Payment", "maximum payment", monthly},
    {"MaxLoan", "Maximum Loan Value", "maximum loan", dollars},
    {"MaxHome", "Maximum Home Price", "maximum price", dollars},
    {"Margin", "Buyer Qualifies?", "room for a larger loan", dollars},
    {"PVSavings", "PV of Savings", "present value of the savings", dollars},
    {"FrontRatio", "Front-End Ratio", "front-end ratio", percent},
    {"BackRatio", "Back-End Ratio", "back-end ratio", percent},
    {"MiddleInterest", "Interest in the Middle of the Term", "interest in the middle of the term", monthly},
    {"Scenario.AnnualIncome", "Annual Income", "annual income", dollars},
    {"Scenario.MonthlyDebt", "Monthly Debt", "monthly debt", monthly},
    {"Scenario.PctDown", "% Down", "% down", percent},
    {"Scenario.FixedDown", "Fixed Down Payment", "fixed down payment", dollars},
    {"Scenario.MarginalTaxRate", "Income Tax Rate", "income tax rate", percent},
    {"Scenario.CostDifference", "Price Difference", "price difference", dollars},
    {"Scenario.PriceDifference", "Value of the Upgrade", "value of the upgrade", dollars},
    {"Scenario.EEMAllowance", "Energy Allowance", "energy allowance", dollars},
    {"Scenario.MortgageSavings", "Mortgage Savings", "mortgage savings", monthly},
    {"Scenario.UtilitySavings", "Utility Savings", "utility savings", monthly},
    {"Scenario.TaxSavings", "Tax Savings, Computed", "computed tax savings", monthly},
    {"Scenario.ShownTaxSavings", "Tax Savings", "tax savings", monthly},
    {"Scenario.NetBeforeTax", "Net Monthly Cash Flow before Tax Savings", "net before tax savings", monthly},
    {"Scenario.NetMonthlyCashFlow", "Net Monthly Cash Flow with Tax Savings", "net with tax savings", monthly},
    {"Scenario.ExtraCashToday", "Extra Down Payment", "extra down payment", dollars},
    {"Scenario.PVNetBeforeTax", "Purchase Today, before Tax Savings", "purchase today", dollars},
    {"Scenario.PVNetCashFlow", "Purchase Today, with Tax Savings", "purchase today", dollars},
    {"Scenario.SavingsAfter7Years", "Expected Savings after 7 Years", "expected savings", dollars},
    {"Scenario.SavingsAfterYearsInHome", "Expected Savings after the Years in the Home", "expected savings", dollars},
    {"Scenario.SavingsAfter30Years", "Expected Savings after 30 Years", "expected savings", dollars},
    {"Shown.MortgageSavingsPerYear", "Mortgage Savings, Yearly", "yearly mortgage savings", dollars},
    {"Shown.UtilitySavingsPerYear", "Utility Savings, Yearly", "yearly utility savings", dollars},
    {"Shown.TaxSavingsPerYear", "Tax Savings, Yearly", "yearly tax savings", dollars},
    {"Shown.NetCashFlow", "Net Monthly Cash Flow", "net monthly cash flow", monthly},
    {"Shown.NetCashFlowPerYear", "Net Cash Flow, Yearly", "net yearly cash flow", dollars},
    {"Shown.NetMonthlyPayment", "Net Monthly Payment, GREENMARK Home", "net monthly payment", monthly},
    {"Shown.HouseValue", "House Value, GREENMARK Home", "house value", dollars},
    {"Term", "Term", "term", years},
    {"ASSUMPTION1", "Real Estate Taxes, of House Value a Year", "real estate tax rate", percent},
    {"ASSUMPTION2", "Home Owner's Insurance, of House Value a Year", "insurance rate", percent},
    {"PVSAVINGS_RATE", "Rate for the PV of Savings", "rate for the PV of savings", percent},
    {"PVSAVINGS_TERM", "Term for the PV of Savings", "term for the PV of savings", years},
    {"YEARS_IN_HOME", "Anticipated Years in Home", "years in the home", years},
    {"PMI_MULT1", "PMI Multiplier, Less Than 5% Down", "PMI multiplier", number},
    {"PMI_MULT2", "PMI Multiplier, Less Than 10% Down", "PMI multiplier", number},
    {"PMI_MULT3", "PMI Multiplier, Less Than 15% Down", "PMI multiplier", number},
    {"PMI_MULT4", "PMI Multiplier, Less Than 20% Down", "PMI multiplier", number},
};

constexpr std::pair<std::string_view, std::string_view> inputs[] = {
    {"ecIncome", "Annual Income"},
    {"ecMonthlyDebt", "Monthly Debt"},
    {"ecPctDown", "% Down, Down Payment"},
    {"ecFixedDown", "or Fixed $, Down Payment"},
    {"ecStdHome", "Sticker Price, Base Home"},
    {"ecGMHHome", "Sticker Price, GREENMARK Home"},
    {"ecStdUtil", "Annual Utility Cost, Base Home"},
    {"ecGMHUtil", "Annual Utility Cost, GREENMARK Home"},
    {"ecStdRate", "Interest Rate, Base Home"},
    {"ecGMHRate", "Interest Rate, GREENMARK Home"},
    {"cboMortTerm", "Term, Base Home"},
};
// clang-format on

constexpr std::string_view baseRecord = "StdCase.";
constexpr std::string_view labelledRecord = "GMHCase.";

/// "StdCase." or "GMHCase." or nothing.
std::string_view HomeRecordOf(std::string_view figure) {
    for (const std::string_view record : {baseRecord, labelledRecord}) {
        if (figure.starts_with(record))
            return record;
    }
    return {};
}

bool IsPair(const ExpressionPart& part) {
    return part.Kind == ExpressionKind::Sum || part.Kind == ExpressionKind::Difference ||
           part.Kind == ExpressionKind::Product || part.Kind == ExpressionKind::Quotient;
}

bool IsSum(const ExpressionPart& part) {
    return part.Kind == ExpressionKind::Sum || part.Kind == ExpressionKind::Difference;
}

/// Writes an expression in words.
class Wording {
public:
    explicit Wording(const std::function<std::string(std::string_view)>& textOf)
        : m_textOf(textOf) {}

    std::string Of(const ExpressionPart& part) const {
        switch (part.Kind) {
        case ExpressionKind::Number:
            return part.Text;
        case ExpressionKind::Name:
            return m_textOf(part.Text);
        case ExpressionKind::Negative:
            return "-" + Operand(part.Parts[0], true);
        case ExpressionKind::Sum:
            return Operand(part.Parts[0], false) + " + " + Operand(part.Parts[1], false);
        case ExpressionKind::Difference:
            return Operand(part.Parts[0], false) + " - " + Operand(part.Parts[1], true);
        case ExpressionKind::Product:
            return Factor(part.Parts[0]) + " × " + Factor(part.Parts[1]);
        case ExpressionKind::Quotient:
            return Factor(part.Parts[0]) + " ÷ " + Operand(part.Parts[1], true);
        case ExpressionKind::Call:
            return Called(part.Text, part.Parts);
        }
        return {};
    }

private:
    std::string Enclosed(const ExpressionPart& part, bool enclose) const {
        return enclose ? "(" + Of(part) + ")" : Of(part);
    }

    /// `pairsToo`: a sum or a product needs parentheses.
    std::string Operand(const ExpressionPart& part, bool pairsToo) const {
        return Enclosed(part, part.Kind == ExpressionKind::Call || (pairsToo && IsPair(part)));
    }

    std::string Factor(const ExpressionPart& part) const { return Operand(part, IsSum(part)); }

    /// The functions take what is paid as a negative amount.
    std::string Paid(const ExpressionPart& part) const {
        if (part.Kind == ExpressionKind::Negative)
            return Enclosed(part.Parts[0], IsSum(part.Parts[0]));
        return "-" + Operand(part, true);
    }

    std::string Called(std::string_view name, const std::vector<ExpressionPart>& parts) const {
        if (name == "min" || name == "max")
            return SmallerOrLarger(name, parts);
        const std::string months = Of(parts[name == "IPMT" ? 2 : 1]) + " months";
        const std::string rate = " at " + Of(parts[0]) + " a month";
        if (name == "PMT")
            return "payment on " + Paid(parts[2]) + " over " + months + rate;
        if (name == "IPMT")
            return "interest in month " + Of(parts[1]) + " on " + Paid(parts[3]) + " over " + months + rate;
        if (name == "PV")
            return "present value of " + Paid(parts[2]) + " a month over " + months + rate;
        return "value of " + Paid(parts[2]) + " a month after " + months + rate;
    }

    std::string SmallerOrLarger(std::string_view name, const std::vector<ExpressionPart>& parts) const {
        std::string text = name == "min" ? "the smaller of " : "the larger of ";
        for (const ExpressionPart& part : parts) {
            if (&part != &parts.front())
                text += " and ";
            text += Operand(part, false);
        }
        return text;
    }

    const std::function<std::string(std::string_view)>& m_textOf;
};

} // namespace

FigureWords WordsOf(std::string_view figure) {
    std::string_view own = figure.substr(HomeRecordOf(figure).size());
    // The ratios of another loan type than the home's own: "LOANTYPE4.FrontRatio".
    if (own.starts_with("LOANTYPE"))
        own.remove_prefix(std::min(own.find('.') + 1, own.size()));
    // A row with the whole name comes before the one for both homes.
    const auto* const found =
        std::find_if(std::begin(words), std::end(words), [own, figure](const FigureWords& row) {
            return row.Figure == own || row.Figure == figure;
        });
    return found == std::end(words) ? FigureWords{own, own, own, number} : *found;
}

std::string CaptionOfFigure(std::string_view figure) {
    std::string caption(WordsOf(figure).Caption);
    const std::string_view record = HomeRecordOf(figure);
    if (!record.empty())
        caption += record == baseRecord ? ", Base Home" : ", GREENMARK Home";
    return caption;
}

std::string InWordsFor(std::string_view reader, std::string_view figure) {
    std::string text(WordsOf(figure).InWords);
    const std::string_view record = HomeRecordOf(figure);
    if (!record.empty() && record != HomeRecordOf(reader))
        text += record == baseRecord ? " of the base home" : " of the GREENMARK home";
    return text;
}

std::string_view CaptionOfInput(std::string_view control) {
    const auto* const found = std::find_if(std::begin(inputs), std::end(inputs),
                                           [control](const auto& row) { return row.first == control; });
    return found == std::end(inputs) ? std::string_view() : found->second;
}

std::string NumberText(double value, CellUnit unit) {
    switch (unit) {
    case CellUnit::Dollars:
    case CellUnit::DollarsPerMonth:
        return Module1::FormatPicture(value, "#,##0.00");
    case CellUnit::Percent:
        return Module1::PlainText(static_cast<float>(value * 100)) + "%";
    case CellUnit::Years:
    case CellUnit::Text:
        break;
    }
    return Module1::PlainText(static_cast<float>(value));
}

std::string ValueText(double value, CellUnit unit) {
    switch (unit) {
    case CellUnit::Dollars:
    case CellUnit::DollarsPerMonth:
        return Module1::FormatPicture(value, "$##,###,##0.00");
    case CellUnit::Years:
        return NumberText(value, unit) + (value == 1 ? " year" : " years");
    case CellUnit::Percent:
    case CellUnit::Text:
        break;
    }
    return NumberText(value, unit);
}

std::string PercentText(double fraction, double edge) {
    std::string text;
    for (const std::string_view picture : {"0.00", "0.0000", "0.000000"}) {
        text = Module1::FormatPicture(fraction * 100, picture);
        if (fraction >= edge || text != Module1::FormatPicture(edge * 100, picture))
            break;
    }
    return text + " %";
}

std::string Phrase(const ExpressionPart& part, const std::function<std::string(std::string_view)>& textOf) {
    return Wording(textOf).Of(part);
}

} // namespace Ledgrove
