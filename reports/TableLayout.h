#pragma once

#include "reports/TableLanguage.h"

#include <vector>

namespace Ledgrove {

/// The lines of one cell, wrapped to its width.
struct CellLayout {
    Twips X = 0;         ///< left edge of its text area, measured from the table's left edge
    Twips TextWidth = 0; ///< of that area
    CellAlign Align = CellAlign::Left;
    std::vector<std::string> Lines;
};

struct RowLayout {
    std::vector<CellLayout> Cells;
    std::size_t LineCount = 1; ///< of the cell with the most lines
};

/// The space kept free on each side of a cell's text.
inline constexpr Twips CellPadding = 60;

Twips TableWidth(const std::vector<TableColumn>& columns);

/// Wraps a row's cells inside their columns. Cells beyond the last column are omitted, and missing cells are
/// empty. A first cell that is too wide for its column uses the free space of its neighbour instead of
/// breaking the line.
RowLayout LayOutRow(const TableRow& row, const std::vector<TableColumn>& columns, const TextStyle& style,
                    const TextMeasure& measure);

} // namespace Ledgrove
