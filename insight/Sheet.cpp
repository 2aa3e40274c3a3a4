#include "insight/Sheet.h"

#include <utility>

#include "engine/NumberText.h"

namespace Ledgrove {

SheetCell TextCell(std::string text, CellMark mark) {
    return {std::move(text), std::nullopt, CellUnit::Text, mark};
}

SheetCell DollarCell(double amount, CellUnit unit) {
    return {DollarText(amount), amount, unit, amount < 0 ? CellMark::Bad : CellMark::None};
}

std::string DollarText(double amount) {
    return Module1::FormatPicture(amount, "$##,###,##0");
}

std::string AmountText(double amount) {
    return amount < LeastShown ? "less than a dollar" : DollarText(amount);
}

} // namespace Ledgrove
