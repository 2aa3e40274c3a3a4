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

/// Reads columns separated by "|" and ended by ";" or the end of the text: an optional mark (">" right, "<"
/// left, "^" centred) and the width. A width that is not a number, or is negative, is 0; the maximum is 100
/// inches.
std::vector<TableColumn> ReadTableFormat(std::string_view format);

using TableRow = std::vector<std::string>;

/// Reads rows separated by ";" and cells separated by "|". One final ";" ends the last row; a second one adds
/// an empty row. An empty text has no rows.
std::vector<TableRow> ReadTableRows(std::string_view text);

/// `text` as the text of one cell: any "|" and ";" in it do not separate cells or rows.
std::string CellText(std::string_view text);

} // namespace Ledgrove
