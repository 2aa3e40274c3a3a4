#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "engine/NumberText.h"
#include "insight/Diff.h"
#include "insight/ExplainWords.h"

namespace Ledgrove {

namespace {

constexpr std::pair<std::string_view, std::string_view> ownCaptions[] = {
    {"StdCase.Qualifies", "Buyer Qualifies?, Base Home"},
    {"GMHCase.Qualifies", "Buyer Qualifies?, GREENMARK Home"},
    {"Shown.Net", "Monthly Net"},
    {"Shown.PurchaseToday", "Purchase Today"}};

/// Whether the buyer qualifies is not an amount: a change from "*NO" to "YES" is 100 %.
bool IsYesOrNo(const DiffFigure& figure) {
    return figure.Figure.ends_with(".Qualifies");
}

SheetCell ValueCell(const DiffFigure& figure, double value) {
    if (IsYesOrNo(figure))
        return {Module1::FormatPicture(value * 100, "#0") + "%", value * 100, CellUnit::Percent};
    return {ValueText(value, CellUnit::Dollars), value, CellUnit::Dollars};
}

/// The label's text with a sign: a label of the Cash Flow tab shows a loss without one, under another
/// caption.
std::string SignedText(const std::string& text, double value) {
    constexpr double least = 0.5;
    return (value <= -least && !text.starts_with('-') ? "-" : "") + text;
}

/// What the label shows, and the stored amount for spreadsheets.
SheetCell ShownCell(const DiffFigure& figure, const std::string& text, double value) {
    if (IsYesOrNo(figure))
        return TextCell(text);
    return {SignedText(text, value), value, CellUnit::Dollars};
}

SheetCell ChangeCell(const DiffFigure& figure, double change) {
    // What rounds to $0.00 or 0% has no sign.
    constexpr double least = 0.005;
    SheetCell cell = ValueCell(figure, std::fabs(change) < least ? 0 : change);
    if (change >= least)
        cell.Text.insert(0, "+");
    return cell;
}

std::string Count(std::size_t number, const std::string& one, const std::string& more) {
    return std::to_string(number) + " " + (number == 1 ? one : more);
}

SheetCell InputCell(const DiffInput& input, const std::string& text) {
    if (input.Input == "chkDoTax0")
        return TextCell(text == "true" ? "included" : "not included");
    return TextCell(text.empty() ? "(empty)" : text);
}

std::size_t LargestPart(const std::vector<double>& parts) {
    const auto largest = std::max_element(parts.begin(), parts.end(),
                                          [](double a, double b) { return std::fabs(a) < std::fabs(b); });
    return static_cast<std::size_t>(largest - parts.begin());
}

std::string PartsSentence(const Diff& diff, const DiffFigure& figure) {
    std::string sentence =
        DiffCaption(figure.Figure) + " goes from " + TextInA(figure) + " to " + TextInB(figure) + ".";
    if (!figure.Parts)
        return sentence + " The parts of the change are unknown: some inputs of the one comparison cannot be "
                          "computed with those of the other.";
    const std::size_t largest = LargestPart(*figure.Parts);
    return sentence + " " + std::string(diff.Inputs[largest].Caption) +
           " contributes the most: " + ChangeCell(figure, (*figure.Parts)[largest]).Text + ".";
}

} // namespace

std::string DiffCaption(std::string_view figure) {
    const auto* const own = std::find_if(std::begin(ownCaptions), std::end(ownCaptions),
                                         [figure](const auto& row) { return row.first == figure; });
    return own == std::end(ownCaptions) ? CaptionOfFigure(figure) : std::string(own->second);
}

std::string TextInA(const DiffFigure& figure) {
    return ShownCell(figure, figure.TextA, figure.A).Text;
}

std::string TextInB(const DiffFigure& figure) {
    return ShownCell(figure, figure.TextB, figure.B).Text;
}

Sheet DiffInputsSheet(const Diff& diff, const DiffNames& names) {
    Sheet sheet;
    sheet.Title = "Inputs that differ";
    sheet.Sentence = diff.Inputs.empty() ? "Both comparisons have the same inputs."
                                         : Count(diff.Inputs.size(), "input differs", "inputs differ") + ".";
    sheet.Heads = {"Input", names.A, names.B};
    for (const DiffInput& input : diff.Inputs)
        sheet.Rows.push_back(
            {TextCell(std::string(input.Caption)), InputCell(input, input.A), InputCell(input, input.B)});
    return sheet;
}

Sheet DiffFiguresSheet(const Diff& diff, const DiffNames& names) {
    Sheet sheet;
    sheet.Title = "Figures that change";
    sheet.Sentence = diff.Figures.empty()
                         ? "No figure changes."
                         : Count(diff.Figures.size(), "figure changes", "figures change") + ".";
    sheet.Heads = {"Figure", names.A, names.B, "Change"};
    for (const DiffFigure& figure : diff.Figures)
        sheet.Rows.push_back({TextCell(DiffCaption(figure.Figure)), ShownCell(figure, figure.TextA, figure.A),
                              ShownCell(figure, figure.TextB, figure.B),
                              IsYesOrNo(figure) ? SheetCell() : ChangeCell(figure, figure.Change())});
    return sheet;
}

Sheet DiffPartsSheet(const Diff& diff, const DiffFigure& figure, const DiffNames& names) {
    Sheet sheet;
    sheet.Title = "Parts of the change";
    sheet.Sentence = PartsSentence(diff, figure);
    sheet.Heads = {"Input", names.A, names.B, "Change", "Total"};
    sheet.Rows.push_back({TextCell(names.InA), {}, {}, {}, ValueCell(figure, figure.A)});
    double total = figure.A;
    for (std::size_t at = 0; figure.Parts && at < diff.Inputs.size(); ++at) {
        const DiffInput& input = diff.Inputs[at];
        const double part = (*figure.Parts)[at];
        total += part;
        sheet.Rows.push_back(
            {TextCell(std::string(input.Caption), part == 0 ? CellMark::Idle : CellMark::None),
             InputCell(input, input.A), InputCell(input, input.B), ChangeCell(figure, part),
             ValueCell(figure, total)});
    }
    sheet.Rows.push_back(
        {TextCell(names.InB), {}, {}, ChangeCell(figure, figure.Change()), ValueCell(figure, figure.B)});
    return sheet;
}

} // namespace Ledgrove
