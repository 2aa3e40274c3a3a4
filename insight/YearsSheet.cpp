#include <utility>

#include "insight/Years.h"
#include "insight/YearsWords.h"

namespace Ledgrove {

namespace {

std::string AheadSentence(const YearByYear& years) {
    const std::string stay = YearsText(years.InHome);
    if (!years.Ahead)
        return "With the GREENMARK home, the buyer is not ahead within " + stay + ".";
    const std::string by = "ahead by " +
                           DollarText(years.Years[static_cast<std::size_t>(years.InHome) - 1].Cumulative) +
                           " after " + stay + ".";
    if (*years.Ahead == 0)
        return "With the GREENMARK home, the buyer is never behind, and " + by;
    return "With the GREENMARK home, the buyer is ahead " + FromMonthText(*years.Ahead) + " on, and " + by;
}

std::string ReturnSentence(const YearByYear& years) {
    std::string sentence;
    if (years.IRROnExtraCash)
        sentence = " Its savings return " + ReturnText(*years.IRROnExtraCash) + ".";
    if (years.IRRWithSale)
        sentence += " With the sale of the home after " + YearsText(years.InHome) + ", the return is " +
                    ReturnText(*years.IRRWithSale) + ".";
    return sentence;
}

std::string WorthSentence(const YearByYear& years) {
    if (!years.NPV)
        return {};
    return " The savings of " + YearsText(years.InHome) +
           (years.ExtraCash > 0 ? ", less the extra down payment," : "") + " are worth " +
           DollarText(*years.NPV) + " today.";
}

/// Whether PMI runs before this month and not in it, although the loan still runs.
bool EndsPMI(const HomePlan& plan, int month) {
    return plan.PMIEnd == month && month > 1 && month <= plan.Periods();
}

void AppendEvent(std::string& events, const std::string& event) {
    events += (events.empty() ? "" : "; ") + event;
}

/// What changes in the months from `first` to `last`.
std::string EventsBetween(const YearByYear& years, int first, int last) {
    std::string events;
    for (int month = first; month <= last; ++month) {
        const bool std = EndsPMI(years.Std, month);
        const bool gmh = EndsPMI(years.GMH, month);
        const std::string from = " " + FromMonthText(month);
        if (std || gmh)
            AppendEvent(events,
                        std && gmh ? "no PMI" + from : (std ? "base: no PMI" : "GREENMARK: no PMI") + from);
        if (years.Ahead == month || (years.Ahead == 0 && month == 1))
            AppendEvent(events, "ahead " + FromMonthText(*years.Ahead));
    }
    return events;
}

Sheet EmptySheet(const char* numbers) {
    Sheet sheet;
    sheet.Heads = {numbers,    "Base Cost", "Interest", "PMI",    "Balance",  "GREENMARK Cost",
                   "Interest", "PMI",       "Balance",  "Saving", "Ahead By", "What Changes"};
    return sheet;
}

void AppendRow(Sheet& sheet, const FlowRow& row, std::string events) {
    std::vector<SheetCell> cells{
        {std::to_string(row.Number), static_cast<double>(row.Number), CellUnit::Text, CellMark::None}};
    for (const HomeFlow* const home : {&row.Std, &row.GMH}) {
        for (const double amount : {home->Cost, home->Interest, home->PMI, home->Balance})
            cells.push_back(DollarCell(amount));
    }
    cells.push_back(DollarCell(row.Saving));
    cells.push_back(DollarCell(row.Cumulative));
    cells.push_back(TextCell(std::move(events)));
    sheet.Rows.push_back(std::move(cells));
}

} // namespace

Sheet YearsSheet(const YearByYear& years) {
    Sheet sheet = EmptySheet("Year");
    sheet.Title = "Year by year";
    sheet.Sentence =
        AheadSentence(years) + ReturnSentence(years) + WorthSentence(years) + " " + years.Sentence;
    for (const FlowRow& row : years.Years)
        AppendRow(sheet, row, EventsBetween(years, 12 * row.Number - 11, 12 * row.Number));
    return sheet;
}

Sheet YearMonthsSheet(const YearByYear& years, int year) {
    Sheet sheet = EmptySheet("Month");
    sheet.Title = "Month by month";
    sheet.Sentence = "Year " + std::to_string(year) + ", month by month.";
    for (const FlowRow& row : MonthsOf(years, year))
        AppendRow(sheet, row, EventsBetween(years, row.Number, row.Number));
    return sheet;
}

} // namespace Ledgrove
