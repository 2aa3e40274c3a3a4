#include "reports/TableLanguage.h"

#include <algorithm>
#include <charconv>

namespace Ledgrove {

namespace {

/// Removes the text up to `separator` from the front and returns it in `piece`. False at the end of the text.
bool TakePiece(std::string_view& text, char separator, std::string_view& piece) {
    if (text.data() == nullptr)
        return false;
    const std::size_t end = text.find(separator);
    piece = text.substr(0, end);
    text = end == text.npos ? std::string_view() : text.substr(end + 1);
    return true;
}

TableColumn ReadColumn(std::string_view text) {
    TableColumn column;
    if (!text.empty() && std::string_view("<>^").find(text.front()) != std::string_view::npos) {
        column.Align = text.front() == '>'   ? CellAlign::Right
                       : text.front() == '^' ? CellAlign::Centre
                                             : CellAlign::Left;
        text.remove_prefix(1);
    }
    std::from_chars(text.data(), text.data() + text.size(), column.Width);
    constexpr Twips widest = 100 * TwipsPerInch; // keeps the sum of all columns within range
    column.Width = std::clamp(column.Width, 0, widest);
    return column;
}

// These replace separators inside a text until the cells are split; typed and read texts do not contain them.
constexpr char hiddenSemicolon = '\x1E';
constexpr char hiddenBar = '\x1F';

TableRow ReadRow(std::string_view text) {
    TableRow row;
    std::string_view piece;
    while (TakePiece(text, '|', piece)) {
        std::string& cell = row.emplace_back(piece);
        std::replace(cell.begin(), cell.end(), hiddenSemicolon, ';');
        std::replace(cell.begin(), cell.end(), hiddenBar, '|');
    }
    return row;
}

} // namespace

std::vector<TableColumn> ReadTableFormat(std::string_view format) {
    std::vector<TableColumn> columns;
    std::string_view row;
    std::string_view column;
    if (TakePiece(format, ';', row))
        while (TakePiece(row, '|', column))
            columns.push_back(ReadColumn(column));
    return columns;
}

std::vector<TableRow> ReadTableRows(std::string_view text) {
    std::vector<TableRow> rows;
    if (text.ends_with(';'))
        text.remove_suffix(1);
    else if (text.empty())
        return rows;
    std::string_view row;
    while (TakePiece(text, ';', row))
        rows.push_back(ReadRow(row));
    return rows;
}

std::string CellText(std::string_view text) {
    std::string cell(text);
    std::replace(cell.begin(), cell.end(), ';', hiddenSemicolon);
    std::replace(cell.begin(), cell.end(), '|', hiddenBar);
    return cell;
}

} // namespace Ledgrove
