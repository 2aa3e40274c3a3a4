#include "engine/NumberText.h"
#include "insight/Energy.h"
#include "insight/YearsWords.h"

#include <algorithm>

namespace Ledgrove {

namespace {

std::string GrowthNeeded(double growth) {
    constexpr double most = 0.10;
    return growth > most ? "more than 10 % a year"
                         : "at least " + Module1::FormatPicture(growth * 100, "0.00") + "% a year";
}

std::string SentenceOf(const EnergyGrowth& energy) {
    const std::string ahead = "for the buyer to be ahead after " + YearsText(energy.InHome) + ".";
    if (!energy.Needed)
        return "Not even utility bills that rise by 20% a year are enough " + ahead;
    if (*energy.Needed == 0)
        return "Utility bills need not rise " + ahead;
    return "Utility bills have to rise by " + GrowthNeeded(*energy.Needed) + " " + ahead;
}

/// What the growth in force leads to, if the table has no row of its rate otherwise.
std::string OwnSentence(const EnergyGrowth& energy) {
    if (!energy.Own)
        return {};
    const double ahead = (*energy.Own)[static_cast<std::size_t>(energy.InHome) - 1];
    return " At " + RateText(energy.By.UtilityGrowth) + " a year, as assumed now, the buyer is " +
           AheadText(ahead) + " after " + YearsText(energy.InHome) + ".";
}

/// The years in the home, and every fifth year.
std::vector<int> ShownYears(const EnergyGrowth& energy) {
    constexpr int apart = 5;
    std::vector<int> shown;
    for (int year = 1; year <= static_cast<int>(energy.Cumulative.front().size()); ++year) {
        if (year == energy.InHome || year % apart == 0)
            shown.push_back(year);
    }
    return shown;
}

std::vector<SheetCell> RowOf(double rate, const char* mark, const std::vector<double>& cumulative,
                             const std::vector<int>& shown) {
    std::vector<SheetCell> cells{{RateText(rate) + mark, rate * 100, CellUnit::Percent, CellMark::None}};
    for (const int year : shown)
        cells.push_back(DollarCell(cumulative[static_cast<std::size_t>(year) - 1]));
    return cells;
}

} // namespace

std::string NeededText(const EnergyGrowth& energy) {
    if (!energy.Needed)
        return "not even 20% a year is enough";
    return *energy.Needed == 0 ? "no growth is needed" : "needed: " + GrowthNeeded(*energy.Needed);
}

Sheet EnergySheet(const EnergyGrowth& energy) {
    const std::vector<int> shown = ShownYears(energy);
    Sheet sheet;
    sheet.Title = "Energy prices";
    sheet.Sentence = SentenceOf(energy) + OwnSentence(energy) +
                     " The table shows by how much the buyer is ahead at the end of a year.";
    sheet.Note = HomeGrowthText(energy.By.HomeGrowth);
    sheet.Heads.emplace_back("Bills Rise By");
    for (const int year : shown)
        sheet.Heads.push_back("Year " + std::to_string(year));
    for (std::size_t i = 0; i < EnergyRates.size(); ++i)
        sheet.Rows.push_back(RowOf(EnergyRates[i], "", energy.Cumulative[i], shown));
    if (energy.Own) {
        const double rate = energy.By.UtilityGrowth;
        const auto place = std::ranges::count_if(EnergyRates, [rate](double one) { return one < rate; });
        sheet.Rows.insert(sheet.Rows.begin() + place, RowOf(rate, " now", *energy.Own, shown));
    }
    return sheet;
}

} // namespace Ledgrove
