#include "insight/Sheet.h"

#include <algorithm>
#include <utility>

#include "engine/NumberText.h"

namespace Ledgrove {

bool HasMark(const Sheet& sheet, CellMark mark) {
    return std::any_of(sheet.Rows.begin(), sheet.Rows.end(), [mark](const auto& row) {
        return std::any_of(row.begin(), row.end(),
                           [mark](const SheetCell& cell) { return cell.Mark == mark; });
    });
}

SheetCell TextCell(std::string text, CellMark mark) {
    return {std::move(text), std::nullopt, CellUnit::Text, mark};
}

SheetCell DollarCell(double amount, CellUnit unit) {
    return {DollarText(amount), amount, unit, amount < 0 ? CellMark::Bad : CellMark::None};
}

std::string DollarText(double amount) {
    return Module1::FormatPicture(amount, "$##,###,##0");
}

} // namespace Ledgrove
