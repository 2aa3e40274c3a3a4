#include "app/batch/CsvText.h"

#include <algorithm>

#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

bool LooksLikeFormula(std::string_view cell) {
    if (cell.empty())
        return false;
    // Many spreadsheets ignore leading blanks.
    const std::size_t first = std::min(cell.find_first_not_of(" \t\r\n"), cell.size() - 1);
    const bool startsLikeOne = cell.front() == '\t' || cell.front() == '\r' ||
                               std::string_view("=+-@").find(cell[first]) != std::string_view::npos;
    return startsLikeOne && !Module1::ReadNumber(cell);
}

/// Without quotes, readers drop leading and trailing blanks, as our own does.
bool NeedsQuotes(std::string_view cell, char separator) {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    const auto isMark = [separator](char c) { return c == separator || c == '"' || c == '\r' || c == '\n'; };
    return std::any_of(cell.begin(), cell.end(), isMark) ||
           (!cell.empty() && (isBlank(cell.front()) || isBlank(cell.back())));
}

} // namespace

std::string DefusedCell(std::string_view cell) {
    return LooksLikeFormula(cell) ? "'" + std::string(cell) : std::string(cell);
}

void AppendCsvCell(std::string& out, std::string_view cell, char separator) {
    if (LooksLikeFormula(cell)) {
        // With the apostrophe the cell is not a formula, so this recurses only once.
        return AppendCsvCell(out, DefusedCell(cell), separator);
    }
    if (!NeedsQuotes(cell, separator)) {
        out += cell;
        return;
    }
    out += '"';
    for (const char c : cell) {
        if (c == '"')
            out += '"';
        out += c;
    }
    out += '"';
}

} // namespace Ledgrove
