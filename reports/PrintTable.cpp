#include "reports/PrintDocument.h"

#include "base/Text.h"
#include "reports/TableLayout.h"

#include <algorithm>

// The tables of the print document.
namespace Ledgrove {

namespace {

constexpr int framed = 4;
constexpr Twips rowPadding = 12; ///< above and below the lines of a row
constexpr Twips frameThickness = 10;
constexpr PrintColour frameColour = 0x808080;
constexpr PrintColour ruleColour = 0xD8D8D8;

} // namespace

bool PrintDocument::AddTable(std::string_view format, std::string_view header, std::string_view body,
                             std::optional<PrintColour> headerShade) {
    if (m_state != State::Open)
        return false;
    m_openLine.clear();
    CurrentX = Geometry.MarginLeft;
    TableShape table{ReadTableFormat(format), 0};
    table.Width = TableWidth(table.Columns);
    std::optional<PrintColour> shade = headerShade;
    for (const TableRow& row : ReadTableRows(header)) {
        AddTableRow(table, row, shade);
        shade.reset();
    }
    for (const TableRow& row : ReadTableRows(body))
        AddTableRow(table, row, std::nullopt);
    CloseFrame(table);
    return true;
}

/// The number of lines of a row, from `firstLine` on, that fit above the bottom margin. At least one on a new
/// page, so that a row higher than a page continues on the next ones.
std::size_t PrintDocument::LinesThatFit(const RowLayout& row, std::size_t firstLine) const {
    const Twips lineHeight = std::max(m_measure.LineHeight(CurrentStyle()), 1);
    const auto left = static_cast<Twips>(row.LineCount - firstLine);
    const Twips fitting = std::max((BottomLimit() - CurrentY - 2 * rowPadding) / lineHeight, 0);
    if (fitting >= left)
        return static_cast<std::size_t>(left);
    const bool freshPage = CurrentY <= Geometry.MarginTop;
    return freshPage ? static_cast<std::size_t>(std::max(fitting, 1)) : 0;
}

void PrintDocument::AddTableRow(const TableShape& table, const TableRow& row,
                                std::optional<PrintColour> shade) {
    const RowLayout layout = LayOutRow(row, table.Columns, CurrentStyle(), m_measure);
    const Twips lineHeight = m_measure.LineHeight(CurrentStyle());
    for (std::size_t line = 0; line < layout.LineCount;) {
        const std::size_t count = LinesThatFit(layout, line);
        if (count == 0) {
            CloseFrame(table);
            NewPage();
            continue;
        }
        const Twips height = static_cast<Twips>(count) * lineHeight + 2 * rowPadding;
        if (shade)
            CurrentPage().push_back(FilledRectangle{
                {Geometry.MarginLeft, CurrentY, Geometry.MarginLeft + table.Width, CurrentY + height},
                *shade});
        RuleRow(table, height);
        PlaceRowLines(layout, line, count);
        CurrentY += height;
        line += count;
    }
}

void PrintDocument::PlaceRowLines(const RowLayout& row, std::size_t firstLine, std::size_t lineCount) {
    const TextStyle style = CurrentStyle();
    const Twips lineHeight = m_measure.LineHeight(style);
    for (const CellLayout& cell : row.Cells) {
        Twips top = CurrentY + rowPadding;
        for (std::size_t line = firstLine; line < std::min(firstLine + lineCount, cell.Lines.size());
             ++line) {
            const std::string& text = cell.Lines[line];
            const Twips width = m_measure.Width(text, style);
            const Twips free = cell.TextWidth - width;
            const Twips indent = cell.Align == CellAlign::Left    ? 0
                                 : cell.Align == CellAlign::Right ? free
                                                                  : free / 2;
            if (!IsBlank(text))
                CurrentPage().push_back(TextRun{Geometry.MarginLeft + cell.X + indent, top,
                                                top + m_measure.Ascent(style), width, text, style});
            top += lineHeight;
        }
    }
}

/// Draws the rule above a row and the row's part of the frame's sides.
void PrintDocument::RuleRow(const TableShape& table, Twips height) {
    if (TableBorder != framed)
        return;
    const Twips left = Geometry.MarginLeft;
    const Twips right = left + table.Width;
    const Twips bottom = CurrentY + height;
    PrintPage& page = CurrentPage();
    page.push_back(
        RuledLine{{left, CurrentY, right, CurrentY}, frameThickness, m_frameOpen ? ruleColour : frameColour});
    page.push_back(RuledLine{{left, CurrentY, left, bottom}, frameThickness, frameColour});
    page.push_back(RuledLine{{right, CurrentY, right, bottom}, frameThickness, frameColour});
    m_frameOpen = true;
}

void PrintDocument::CloseFrame(const TableShape& table) {
    if (!m_frameOpen)
        return;
    CurrentPage().push_back(
        RuledLine{{Geometry.MarginLeft, CurrentY, Geometry.MarginLeft + table.Width, CurrentY},
                  frameThickness,
                  frameColour});
    m_frameOpen = false;
}

} // namespace Ledgrove
