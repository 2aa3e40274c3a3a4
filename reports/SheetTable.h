#pragma once

#include "insight/Sheet.h"
#include "reports/PrintDocument.h"

#include <optional>
#include <vector>

namespace Ledgrove {

/// The width that a column needs, in twips.
struct ColumnNeed {
    Twips Natural = 0; ///< for its cells on one line each
    Twips Least = 0;   ///< below it, words or figures would break
};

/// Widths that fill at most `room`: all columns get their least width, and those that need more share the
/// rest. If there is room to spare, the first column gets what the table lacks to `usual`. Empty if not even
/// the least widths fit.
std::optional<std::vector<Twips>> FitColumns(const std::vector<ColumnNeed>& needs, Twips room, Twips usual);

/// The columns of each part of a table that is too wide: every part begins with the first column and holds
/// as many others, in their order, as fit, but at least one.
std::vector<std::vector<std::size_t>> SplitColumns(const std::vector<ColumnNeed>& needs, Twips room);

/// Writes the sheet's table below its title bar in the report's style, with what its signs mean. A wide table
/// gets a smaller font, and if that is not enough, its columns go into several tables.
void WriteSheetTable(PrintDocument& document, const Sheet& sheet);

} // namespace Ledgrove
