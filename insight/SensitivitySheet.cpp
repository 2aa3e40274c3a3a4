#include <algorithm>
#include <array>
#include <utility>

#include "engine/NumberText.h"
#include "insight/AnswerWords.h"
#include "insight/Sensitivity.h"
#include "insight/YearsWords.h"

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
        return YearsText(static_cast<int>(number));
    return Module1::FormatPicture(input == "pmi" ? number * 100 : number, "#0.0##") + "%";
}

/// A price or a bill as its distance from the base home's, which is what the row is about.
std::string DistanceText(const Insight& insight, std::string_view input, const std::string& text) {
    const double put = Module1::ReadNumber(text).value_or(0);
    if (input == "upgrade")
        return DollarText(put - insight.Steps(Varied::StdPrice).Now());
    return DollarText(insight.Steps(Varied::StdBill).Now() - put);
}

/// What an empty field counts as.
std::string EmptyText(const Insight& insight, std::string_view input) {
    if (input == "rates")
        return "0.000%";
    return input == "down" && insight.Now().DownAsPercent ? "0.00%" : EmptyFieldText;
}

std::string ValueText(const Insight& insight, std::string_view input,
                      const std::optional<SensitivitySide>& side) {
    if (!side)
        return "none";
    if (input == "upgrade" || input == "savings")
        return DistanceText(insight, input, side->Values.front().Text);
    std::string text;
    for (const PutValue& value : side->Values) {
        const std::string one = value.IsText ? value.Text : NumberText(input, value.Number);
        text += (text.empty() ? "" : ", ") + (one.empty() ? EmptyText(insight, input) : one);
    }
    return text;
}

SheetCell NetCell(const std::optional<SensitivitySide>& side) {
    return side ? DollarCell(static_cast<double>(side->ShownNet), CellUnit::DollarsPerMonth) : SheetCell();
}

SheetCell MarginCell(const std::optional<SensitivitySide>& side) {
    return side ? DollarCell(side->GMHMargin) : SheetCell();
}

/// Whether the step is smaller than what the field can show, so that nothing was changed.
bool IsStepTooSmall(const SensitivityRow& row) {
    const auto sameTexts = [](const std::vector<PutValue>& low, const std::vector<PutValue>& high) {
        return std::equal(low.begin(), low.end(), high.begin(), high.end(), [](const auto& a, const auto& b) {
            return a.IsText && b.IsText && a.Text == b.Text;
        });
    };
    return row.Low && row.High && sameTexts(row.Low->Values, row.High->Values);
}

/// "the income, the debt and the term" of the inputs that do not move the net, and are or are not too small.
std::vector<std::string> IdleInputs(const Sensitivity& sensitivity, bool tooSmall) {
    std::vector<std::string> idle;
    for (const SensitivityRow& row : sensitivity.Rows) {
        if (row.NetMove == 0 && IsStepTooSmall(row) == tooSmall)
            idle.emplace_back(NameOfInput(row.Input).InSentence);
    }
    return idle;
}

/// "The income and the debt do not move it.", also with three or more; empty if every input moves it.
std::string IdleSentence(const Sensitivity& sensitivity) {
    std::string text;
    if (const auto idle = IdleInputs(sensitivity, false); !idle.empty()) {
        std::string names = Joined(idle);
        names.front() = 'T';
        text = " " + names + (idle.size() > 1 || idle.front().ends_with('s') ? " do" : " does") +
               " not move it.";
    }
    if (const auto small = IdleInputs(sensitivity, true); !small.empty())
        text += " For " + Joined(small) + ", the step is too small to show.";
    return text;
}

std::string SentenceOf(const Insight& insight, const Sensitivity& sensitivity) {
    const SensitivityRow& first = sensitivity.Rows.front();
    if (first.NetMove == 0)
        return "None of these inputs moves the monthly net.";
    const auto netOf = [&](const std::optional<SensitivitySide>& side) {
        return DollarText(static_cast<double>(side ? side->ShownNet : insight.ShownNet(insight.Record())));
    };
    const std::string name = NameOfInput(first.Input).InSentence;
    const std::string moves = netOf(first.Low) == netOf(first.High)
                                  ? "No input moves the monthly net by a dollar; " + name +
                                        (name.ends_with('s') ? " move" : " moves") + " it most."
                                  : "The result depends most on " + name + ": the monthly net goes from " +
                                        netOf(first.Low) + " to " + netOf(first.High) + ".";
    return moves + IdleSentence(sensitivity);
}

} // namespace

Sheet SensitivitySheet(const Insight& insight, const Sensitivity& sensitivity) {
    Sheet sheet;
    sheet.Title = "What moves the result";
    sheet.IdleWords = "does not move the monthly net";
    sheet.Sentence = SentenceOf(insight, sensitivity);
    sheet.Heads = {"Input", "Lower", "Monthly Net", "Higher", "Monthly Net", "Room, Lower", "Room, Higher"};
    for (const SensitivityRow& row : sensitivity.Rows) {
        const CellMark mark = row.NetMove == 0 ? CellMark::Idle : CellMark::None;
        sheet.Rows.push_back({TextCell(NameOfInput(row.Input).Caption, mark),
                              TextCell(ValueText(insight, row.Input, row.Low)), NetCell(row.Low),
                              TextCell(ValueText(insight, row.Input, row.High)), NetCell(row.High),
                              MarginCell(row.Low), MarginCell(row.High)});
    }
    return sheet;
}

} // namespace Ledgrove
