#pragma once

#include <algorithm>
#include <string>

#include "insight/Sheet.h"

// The marks of a sheet's cells in signs and words, the same on screen and on paper: colour is never the only
// sign. Inline, because the window is a module of its own, without the library of the answers.
namespace Ledgrove {

/// Whether a cell of the table has this mark.
inline bool HasMark(const Sheet& sheet, CellMark mark) {
    return std::ranges::any_of(sheet.Rows, [mark](const auto& row) {
        return std::ranges::any_of(row, [mark](const SheetCell& cell) { return cell.Mark == mark; });
    });
}

/// The cell's text with the sign of its mark: "* " for the best of a column, "> " for what is chosen now.
inline std::string MarkedText(const SheetCell& cell) {
    switch (cell.Mark) {
    case CellMark::Best:
        return "* " + cell.Text;
    case CellMark::Current:
        return "> " + cell.Text;
    default:
        return cell.Text;
    }
}

/// What the signs and the italics of the sheet's cells mean; empty without them.
inline std::string LegendOf(const Sheet& sheet) {
    std::string legend;
    const auto add = [&](CellMark mark, const std::string& meaning) {
        if (HasMark(sheet, mark))
            legend += (legend.empty() ? "" : "     ") + meaning;
    };
    add(CellMark::Best, "* the best of its column");
    add(CellMark::Current, "> chosen now");
    add(CellMark::Idle, "in italics: " + std::string(sheet.IdleWords));
    return legend;
}

} // namespace Ledgrove
