#include <algorithm>
#include <iterator>

#include "engine/NumberText.h"
#include "engine/Rounding.h"
#include "insight/ExplainWords.h"
#include "insight/ExplainWriter.h"
#include "settings/LineSyntax.h"

// The ends of every chain: what a person typed, chose or assumed.
namespace Ledgrove {

namespace {

struct TypedLeaf {
    Figure Id;
    std::string_view Control;
    Field MainScreen::*Member;
};

constexpr TypedLeaf typedLeaves[] = {
    {Figure::AnnualIncome, "ecIncome", &MainScreen::ecIncome},
    {Figure::MonthlyDebt, "ecMonthlyDebt", &MainScreen::ecMonthlyDebt},
    {Figure::PctDown, "ecPctDown", &MainScreen::ecPctDown},
    {Figure::FixedDown, "ecFixedDown", &MainScreen::ecFixedDown},
    {Figure::StdCost, "ecStdHome", &MainScreen::ecStdHome},
    {Figure::GMHCost, "ecGMHHome", &MainScreen::ecGMHHome},
    {Figure::StdUtilAnnual, "ecStdUtil", &MainScreen::ecStdUtil},
    {Figure::GMHUtilAnnual, "ecGMHUtil", &MainScreen::ecGMHUtil},
    {Figure::StdIntRate, "ecStdRate", &MainScreen::ecStdRate},
    {Figure::GMHIntRate, "ecGMHRate", &MainScreen::ecGMHRate},
};

struct AssumedLeaf {
    std::string_view Key;
    double (*Value)(const AssumptionSet& assumptions);
};

constexpr AssumedLeaf assumedLeaves[] = {
    // The rules compute with the percentages as they were typed.
    {Key::RealEstateTax,
     [](const AssumptionSet& a) { return static_cast<double>(Module1::AsTyped(a.RealEstateTaxPct)); }},
    {Key::Insurance,
     [](const AssumptionSet& a) { return static_cast<double>(Module1::AsTyped(a.InsurancePct)); }},
    {Key::PVRate, [](const AssumptionSet& a) { return static_cast<double>(a.PVRate); }},
    {Key::PVTerm, [](const AssumptionSet& a) { return static_cast<double>(a.PVTerm); }},
    {Key::YearsInHome, [](const AssumptionSet& a) { return static_cast<double>(a.YearsInHome); }},
    {Key::PMIMult1, [](const AssumptionSet& a) { return static_cast<double>(a.PMIMult1); }},
    {Key::PMIMult2, [](const AssumptionSet& a) { return static_cast<double>(a.PMIMult2); }},
    {Key::PMIMult3, [](const AssumptionSet& a) { return static_cast<double>(a.PMIMult3); }},
    {Key::PMIMult4, [](const AssumptionSet& a) { return static_cast<double>(a.PMIMult4); }},
};

ExplainedFigure NewLeaf(std::string_view name, double value) {
    ExplainedFigure leaf;
    leaf.Figure = name;
    leaf.Caption = CaptionOfFigure(name);
    leaf.Value = value;
    leaf.Unit = WordsOf(name).Unit;
    leaf.Text = ValueText(value, leaf.Unit);
    return leaf;
}

ExplainedFigure TypedLeafOf(const Insight& insight, const TypedLeaf& row) {
    const FigureEntry& entry = EntryOf(row.Id);
    ExplainedFigure leaf = NewLeaf(entry.FullName, static_cast<double>(entry.Value(insight.Record())));
    const std::string& typed = (insight.Screen().*row.Member).Text;
    if (!typed.empty())
        leaf.Text = typed;
    leaf.From = CaptionOfInput(row.Control);
    leaf.Place.Control = row.Control;
    return leaf;
}

ExplainedFigure TermLeaf(const Insight& insight) {
    ExplainedFigure leaf = NewLeaf("Term", insight.Now().TermYears);
    leaf.Place.Control = "cboMortTerm";
    leaf.From = CaptionOfInput(leaf.Place.Control);
    return leaf;
}

std::string BracketWords(const TaxBracket& bracket) {
    std::string words;
    if (bracket.LowEnd > 0)
        words = " above " + Module1::MoneyText(bracket.LowEnd);
    if (bracket.HighEnd != -1)
        words += " up to " + Module1::MoneyText(bracket.HighEnd);
    return "annual income" + words;
}

ExplainedFigure TaxRateLeaf(const Insight& insight) {
    const Results& record = insight.Record();
    ExplainedFigure leaf =
        NewLeaf("Scenario.MarginalTaxRate", static_cast<double>(record.Scenario.MarginalTaxRate));
    leaf.Place.Key = Key::TaxCat;
    const auto index = record.Decisions.TaxBracket;
    const std::string income = Module1::MoneyText(record.Scenario.AnnualIncome);
    if (index) {
        const std::string number = std::to_string(*index + 1);
        leaf.From =
            std::string(Key::TaxCat) + " " + number + ", " + BracketWords(insight.By().TaxBrackets[*index]);
        leaf.Because = "An income of " + income + " falls into tax bracket " + number;
    } else {
        leaf.From = std::string(Key::TaxCat) + ", no bracket";
        leaf.Because = "No tax bracket holds an income of " + income;
    }
    return leaf;
}

/// A ratio of a loan type, or of a home without one.
ExplainedFigure RatioLeaf(std::string_view name, double value, const LoanType* loanType, std::size_t number) {
    ExplainedFigure leaf = NewLeaf(name, value);
    leaf.Place.Key = Key::LoanType;
    leaf.From = std::string(Key::LoanType);
    leaf.From += loanType ? " " + std::to_string(number) + ", " + loanType->Name : ", no loan type";
    return leaf;
}

ExplainedFigure HomeRatioLeaf(const Insight& insight, const FigureEntry& entry) {
    const auto option =
        entry.Record == FigureRecord::GMHCase ? insight.Now().GMH.Option : insight.Now().Std.Option;
    const LoanType* const loanType = Module1::FindLoanType(insight.By().LoanTypes, option);
    return RatioLeaf(entry.FullName, static_cast<double>(entry.Value(insight.Record())), loanType,
                     option ? static_cast<std::size_t>(CodeOf(*option)) : 0);
}

/// "LOANTYPE4.FrontRatio"
ExplainedFigure LoanTypeLeaf(const Insight& insight, std::string_view name) {
    const auto number = static_cast<std::size_t>(name[Key::LoanType.size()] - '0');
    const LoanType& loanType = insight.By().LoanTypes[number - 1];
    const float ratio = name.ends_with("FrontRatio") ? loanType.FrontRatio : loanType.BackRatio;
    ExplainedFigure leaf = RatioLeaf(name, static_cast<double>(ratio), &loanType, number);
    leaf.Caption += ", " + loanType.Name;
    return leaf;
}

const FigureEntry& EntryNamed(std::string_view name) {
    return *std::find_if(FigureTable().begin(), FigureTable().end(),
                         [name](const FigureEntry& entry) { return entry.FullName == name; });
}

} // namespace

ExplainedFigure LeafOf(const Insight& insight, std::string_view name) {
    if (name == "Term")
        return TermLeaf(insight);
    if (name == "Scenario.MarginalTaxRate")
        return TaxRateLeaf(insight);
    if (name.starts_with(Key::LoanType))
        return LoanTypeLeaf(insight, name);
    const auto* const assumed = std::find_if(std::begin(assumedLeaves), std::end(assumedLeaves),
                                             [name](const AssumedLeaf& row) { return row.Key == name; });
    if (assumed != std::end(assumedLeaves)) {
        ExplainedFigure leaf = NewLeaf(name, assumed->Value(insight.By().Assumptions));
        leaf.From = leaf.Place.Key = assumed->Key;
        return leaf;
    }
    const FigureEntry& entry = EntryNamed(name);
    const auto* const typed = std::find_if(std::begin(typedLeaves), std::end(typedLeaves),
                                           [&entry](const TypedLeaf& row) { return row.Id == entry.Id; });
    return typed != std::end(typedLeaves) ? TypedLeafOf(insight, *typed) : HomeRatioLeaf(insight, entry);
}

} // namespace Ledgrove
