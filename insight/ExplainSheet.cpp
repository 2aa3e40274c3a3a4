#include <algorithm>

#include "insight/Explain.h"
#include "insight/ExplainWords.h"

namespace Ledgrove {

namespace {

using Rows = std::vector<const ExplainedFigure*>;

/// Adds the figure after everything that it is computed from.
void AddChain(const Explanation& explanation, std::string_view name, Rows& rows) {
    const ExplainedFigure* const figure = explanation.Find(name);
    if (!figure || std::find(rows.begin(), rows.end(), figure) != rows.end())
        return;
    for (const std::string& used : figure->Values)
        AddChain(explanation, used, rows);
    rows.push_back(figure);
}

/// "[4]", the number of a row.
std::string RowNumber(const Rows& rows, std::string_view name) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [name](const ExplainedFigure* row) { return row->Figure == name; });
    return "[" + std::to_string(found - rows.begin() + 1) + "]";
}

std::string FormulaOf(const Rows& rows, const ExplainedFigure& figure) {
    if (figure.IsLeaf())
        return figure.From;
    return Phrase(Expression(figure.Expression).Whole(), [&](std::string_view name) {
        return InWordsFor(figure.Figure, name) + " " + RowNumber(rows, name);
    });
}

SheetCell ValueCell(const ExplainedFigure& figure) {
    const double shown = figure.Unit == CellUnit::Percent ? figure.Value * 100 : figure.Value;
    return {ValueText(figure.Value, figure.Unit), shown, figure.Unit,
            figure.Value < 0 ? CellMark::Bad : CellMark::None};
}

Sheet SheetOf(const Rows& rows) {
    Sheet sheet;
    sheet.Title = "Explanation";
    sheet.Heads = {"No.", "Figure", "Formula", "With Numbers", "Value", "Why"};
    sheet.Words = {1, 2, 3, 5};
    for (const ExplainedFigure* const row : rows) {
        const std::string number = RowNumber(rows, row->Figure);
        sheet.Rows.push_back({TextCell(number), TextCell(row->Caption), TextCell(FormulaOf(rows, *row)),
                              TextCell(row->WithNumbers), ValueCell(*row), TextCell(row->Because)});
    }
    return sheet;
}

} // namespace

const ExplainedFigure* Explanation::Find(std::string_view figure) const {
    const auto found = std::find_if(Figures.begin(), Figures.end(),
                                    [figure](const ExplainedFigure& one) { return one.Figure == figure; });
    return found == Figures.end() ? nullptr : &*found;
}

const ExplainedFigure* Explanation::FigureOfLabel(std::string_view label) const {
    const auto found = std::find_if(Figures.begin(), Figures.end(), [label](const ExplainedFigure& one) {
        return std::find(one.Labels.begin(), one.Labels.end(), label) != one.Labels.end();
    });
    return found == Figures.end() ? nullptr : &*found;
}

Sheet ExplainSheet(const Explanation& explanation, std::string_view figure) {
    Rows rows;
    AddChain(explanation, figure, rows);
    Sheet sheet = SheetOf(rows);
    if (!rows.empty())
        sheet.Sentence = rows.back()->Caption + ": " + ValueText(rows.back()->Value, rows.back()->Unit) +
                         ", from what was typed and assumed. Each number in brackets is a row of the table.";
    return sheet;
}

Sheet ExplainSheet(const Explanation& explanation) {
    Rows rows;
    for (const ExplainedFigure& figure : explanation.Figures)
        rows.push_back(&figure);
    Sheet sheet = SheetOf(rows);
    sheet.Sentence = "Every figure, from what was typed and assumed. Each number in brackets is a row of the "
                     "table.";
    return sheet;
}

} // namespace Ledgrove
