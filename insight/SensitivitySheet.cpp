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
};

constexpr std::array<InputName, 11> inputNames{{{"upgrade", "Price difference"},
                                                {"savings", "Yearly energy savings"},
                                                {"rates", "Both interest rates"},
                                                {"down", "Down payment"},
                                                {"income", "Annual income"},
                                                {"debt", "Monthly debt"},
                                                {"term", "Term"},
                                                {"yearsInHome", "Years in the home"},
                                                {"propertyTax", "Property tax"},
                                                {"insurance", "Homeowner's insurance"},
                                                {"pmi", "Mortgage insurance (PMI)"}}};

const char* CaptionOf(std::string_view input) {
    return std::find_if(inputNames.begin(), inputNames.end(),
                        [input](const InputName& name) { return name.Name == input; })
        ->Caption;
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

std::string SentenceOf(const Insight& insight, const Sensitivity& sensitivity) {
    const SensitivityRow& first = sensitivity.Rows.front();
    if (first.NetMove == 0)
        return "None of these inputs moves the monthly net.";
    const auto netOf = [&](const std::optional<SensitivitySide>& side) {
        return DollarText(static_cast<double>(side ? side->ShownNet : insight.ShownNet(insight.Record())));
    };
    std::string sentence = std::string(CaptionOf(first.Input)) + " moves the result most: from " +
                           netOf(first.Low) + " to " + netOf(first.High) + " a month.";
    const auto idle = std::count_if(sensitivity.Rows.begin(), sensitivity.Rows.end(),
                                    [](const SensitivityRow& row) { return row.NetMove == 0; });
    if (idle > 0)
        sentence += " The inputs at the end, which show the same net twice, do not move it at all.";
    return sentence;
}

} // namespace

Sheet SensitivitySheet(const Insight& insight, const Sensitivity& sensitivity) {
    Sheet sheet;
    sheet.Title = "What moves the result";
    sheet.Sentence = SentenceOf(insight, sensitivity);
    sheet.Heads = {"Input", "Lower", "Monthly Net", "Higher", "Monthly Net", "Room, Lower", "Room, Higher"};
    for (const SensitivityRow& row : sensitivity.Rows)
        sheet.Rows.push_back(
            {TextCell(CaptionOf(row.Input), row.NetMove == 0 ? CellMark::Idle : CellMark::None),
             TextCell(ValueText(row.Input, row.Low)), NetCell(row.Low),
             TextCell(ValueText(row.Input, row.High)), NetCell(row.High), MarginCell(row.Low),
             MarginCell(row.High)});
    return sheet;
}

} // namespace Ledgrove
