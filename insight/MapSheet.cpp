#include "insight/Map.h"

#include <utility>

namespace Ledgrove {

namespace {

/// Every fifth step of the scales is enough to read.
constexpr std::size_t shownStep = 5;

} // namespace

Sheet MapSheet(const NetMap& map) {
    Sheet sheet;
    sheet.Title = "Price difference and savings";
    sheet.Sentence = "What is left each month for each price difference and yearly energy saving. Now the "
                     "difference is " +
                     DollarText(map.PriceNow) + " and the saving " + DollarText(map.SavingsNow) +
                     " a year, which leaves " + DollarText(static_cast<double>(map.NetNow)) + " a month.";
    // The largest saving has the lowest bill.
    if (!map.Net.back().front())
        sheet.Sentence += " What stays empty would need a utility bill below $0.";
    sheet.Heads.emplace_back("Saving");
    for (std::size_t column = 0; column < MapSize; column += shownStep)
        sheet.Heads.push_back(DollarText(map.Price[column]));
    for (std::size_t row = 0; row < MapSize; row += shownStep) {
        std::vector<SheetCell> cells{DollarCell(map.Savings[row])};
        for (std::size_t column = 0; column < MapSize; column += shownStep) {
            const auto& net = map.Net[row][column];
            cells.push_back(net ? DollarCell(static_cast<double>(*net), CellUnit::DollarsPerMonth)
                                : SheetCell());
        }
        sheet.Rows.push_back(std::move(cells));
    }
    return sheet;
}

} // namespace Ledgrove
