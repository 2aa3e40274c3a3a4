#include <algorithm>
#include <array>
#include <utility>

#include "engine/NumberText.h"
#include "insight/Sensitivity.h"

namespace Ledgrove {

namespace {

struct InputName {
    std::string_view Name;
    const char* Caption;
    const char* InSentence;
};

constexpr std::array<InputName, 11> inputNames{
    {{"upgrade", "Price difference", "the price difference"},
     {"savings", "Yearly energy savings", "the yearly energy savings"},
     {"rates", "Both interest rates", "the interest rates"},
     {"down", "Down payment", "the down payment"},
     {"income", "Annual income", "the income"},
     {"debt", "Monthly debt", "the debt"},
     {"term", "Term", "the term"},
     {"yearsInHome", "Years in the home", "the years in the home"},
     {"propertyTax", "Property tax", "the property tax"},
     {"insurance", "Homeowner's insurance", "the homeowner's insurance"},
     {"pmi", "Mortgage insurance (PMI)", "the mortgage insurance"}}};

const InputName& NameOfInput(std::string_view input) {
    return *std::find_if(inputNames.begin(), inputNames.end(),
                         [input](const InputName& name) { return name.Name == input; });
}

/// An assumption as a percentage, or as years.
std::string NumberText(std::string_view input, double number) {
    if (input == "yearsInHome")
        return Module1::FormatPicture(number, "#0") + " years";
    return Module1::FormatPicture(input == "pmi" ? number * 100 : number, "#0.0##") + "%";
}

std::string ValueText(std::string_view input, const std::optional<SensitivitySide>& side) {
    if (!side)
        return "none";
    std::string text;
    for (const PutValue& value : side->Values)
        text += (text.empty() ? "" : ", ") + (value.IsText ? value.Text : NumberText(input, value.Number));
    return text;
}

SheetCell NetCell(const std::optional<SensitivitySide>& side) {
    return side ? DollarCell(static_cast<double>(side->ShownNet), CellUnit::DollarsPerMonth) : SheetCell();
}

SheetCell MarginCell(const std::optional<SensitivitySide>& side) {
    return side ? DollarCell(side->GMHMargin) : SheetCell();
}

/// "The income and the debt do not move it.", also with three or more; empty if every input moves it.
std::string IdleSentence(const Sensitivity& sensitivity) {
    std::vector<std::string> idle;
    for (const SensitivityRow& row : sensitivity.Rows) {
        if (row.NetMove == 0)
            idle.emplace_back(NameOfInput(row.Input).InSentence);
    }
    if (idle.empty())
        return {};
    std::string sentence;
    for (std::size_t i = 0; i < idle.size(); ++i)
        sentence += (i == 0 ? "" : (i + 1 == idle.size() ? " and " : ", ")) + idle[i];
    sentence.front() = 'T';
    return " " + sentence + (idle.size() > 1 || idle.front().ends_with('s') ? " do" : " does") +
           " not move it.";
}

std::string SentenceOf(const Insight& insight, const Sensitivity& sensitivity) {
    const SensitivityRow& first = sensitivity.Rows.front();
    if (first.NetMove == 0)
        return "None of these inputs moves the monthly net.";
    const auto netOf = [&](const std::optional<SensitivitySide>& side) {
        return DollarText(static_cast<double>(side ? side->ShownNet : insight.ShownNet(insight.Record())));
    };
    return std::string("The result depends most on ") + NameOfInput(first.Input).InSentence +
           ": the monthly net goes from " + netOf(first.Low) + " to " + netOf(first.High) + "." +
           IdleSentence(sensitivity);
}

} // namespace

Sheet SensitivitySheet(const Insight& insight, const Sensitivity& sensitivity) {
    Sheet sheet;
    sheet.Title = "What moves the result";
    sheet.Sentence = SentenceOf(insight, sensitivity);
    sheet.Heads = {"Input", "Lower", "Monthly Net", "Higher", "Monthly Net", "Room, Lower", "Room, Higher"};
    for (const SensitivityRow& row : sensitivity.Rows) {
        const CellMark mark = row.NetMove == 0 ? CellMark::Idle : CellMark::None;
        sheet.Rows.push_back({TextCell(NameOfInput(row.Input).Caption, mark),
                              TextCell(ValueText(row.Input, row.Low)), NetCell(row.Low),
                              TextCell(ValueText(row.Input, row.High)), NetCell(row.High),
                              MarginCell(row.Low), MarginCell(row.High)});
    }
    return sheet;
}

} // namespace Ledgrove
