#include "app/files/SheetCsv.h"

#include "app/batch/CsvText.h"
#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

std::string CellOf(const SheetCell& cell) {
    const bool isAmount = cell.Unit == CellUnit::Dollars || cell.Unit == CellUnit::DollarsPerMonth;
    return cell.Number && isAmount ? Module1::FormatPicture(*cell.Number, "0.00") : cell.Text;
}

} // namespace

std::string SheetCsv(const Sheet& sheet) {
    std::string out;
    const auto append = [&out](const auto& cells, const auto& text) {
        for (const auto& cell : cells) {
            AppendCsvCell(out, text(cell));
            out += &cell == &cells.back() ? '\n' : ',';
        }
    };
    append(sheet.Heads, [](const std::string& head) { return head; });
    for (const auto& row : sheet.Rows)
        append(row, CellOf);
    return out;
}

} // namespace Ledgrove
