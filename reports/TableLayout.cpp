#include "reports/TableLayout.h"

#include "reports/TextWrap.h"

#include <algorithm>

namespace Ledgrove {

namespace {

/// The width that a right-aligned neighbour leaves free before its own text.
Twips FreeWidthOf(const TableColumn& column, std::string_view text, const TextStyle& style,
                  const TextMeasure& measure) {
    if (column.Align != CellAlign::Right)
        return text.empty() ? column.Width : 0;
    return std::max(0, column.Width - measure.Width(text, style) - 2 * CellPadding);
}

} // namespace

Twips TableWidth(const std::vector<TableColumn>& columns) {
    Twips width = 0;
    for (const TableColumn& column : columns)
        width += column.Width;
    return width;
}

RowLayout LayOutRow(const TableRow& row, const std::vector<TableColumn>& columns, const TextStyle& style,
                    const TextMeasure& measure) {
    RowLayout layout;
    Twips left = 0;
    for (std::size_t index = 0; index < columns.size(); ++index) {
        const TableColumn& column = columns[index];
        const std::string text = index < row.size() ? row[index] : "";
        CellLayout cell;
        cell.X = left + CellPadding;
        cell.TextWidth = std::max(column.Width - 2 * CellPadding, 1);
        cell.Align = column.Align;
        Twips room = cell.TextWidth;
        if (index == 0 && columns.size() > 1 && column.Align == CellAlign::Left)
            room += FreeWidthOf(columns[1], row.size() > 1 ? row[1] : "", style, measure);
        // A figure that is too wide begins in the free space of its left neighbour: broken, it would read as
        // two.
        if (index > 0 && column.Align == CellAlign::Right && text.find(' ') == std::string::npos) {
            const Twips missing = measure.Width(text, style) - cell.TextWidth;
            const Twips free = layout.Cells.back().Align == CellAlign::Left
                                   ? layout.Cells.back().TextWidth -
                                         measure.Width(index - 1 < row.size() ? row[index - 1] : "", style)
                                   : 0;
            if (missing > 0 && missing <= free) {
                cell.X -= missing;
                cell.TextWidth += missing;
                room = cell.TextWidth;
            }
        }
        const bool runsOver = measure.Width(text, style) <= room;
        cell.Lines = WrapText(text, runsOver ? room : cell.TextWidth, style, measure);
        layout.LineCount = std::max(layout.LineCount, cell.Lines.size());
        layout.Cells.push_back(std::move(cell));
        left += column.Width;
    }
    return layout;
}

} // namespace Ledgrove
