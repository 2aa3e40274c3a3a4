#pragma once

#include "reports/PrintItems.h"

#include <string>
#include <string_view>
#include <vector>

namespace Ledgrove {

enum class CellAlign { Left, Right, Centre };

struct TableColumn {
    CellAlign Align = CellAlign::Left;
    Twips Width = 0;
};

/// Columns separated by "|", ended by ";" or the end of the text: an optional mark (">" right, "<" left, "^"
/// centred) and the width. A width that is no number or less than nothing is 0; none is above 100 inches.
std::vector<TableColumn> ReadTableFormat(std::string_view format);

using TableRow = std::vector<std::string>;

/// Rows separated by ";", cells by "|". One ";" at the end closes the last row; a second one adds an empty
/// row. Empty text has no rows.
std::vector<TableRow> ReadTableRows(std::string_view text);

/// `text` as the text of one cell, whatever it holds: its own "|" and ";" separate nothing.
std::string CellText(std::string_view text);

} // namespace Ledgrove
