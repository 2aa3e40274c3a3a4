#include "insight/Exit.h"
#include "insight/YearsWords.h"

namespace Ledgrove {

namespace {

/// "$12 more from the sale than the base home", or "as much" where it would show $0.
std::string Compared(double amount, const std::string& where, const std::string& whom) {
    const std::string size = DollarText(amount < 0 ? -amount : amount);
    if (size == "$0")
        return "as much" + where + " as " + whom;
    return size + (amount < 0 ? " less" : " more") + where + " than " + whom;
}

std::string ShareSentence(const SaleByYear& exit) {
    if (!exit.Share)
        return " Not even all of the price difference is enough for the buyer not to lose.";
    if (*exit.Share == 0)
        return " The buyer does not lose even if it keeps none of it.";
    return " The buyer does not lose if it keeps at least " + RateText(*exit.Share) + " of it.";
}

SheetCell ProceedsCell(double amount) {
    SheetCell cell = DollarCell(amount);
    if (const std::string missing = DollarText(-amount); cell.Mark == CellMark::Bad && missing != "$0")
        cell.Text = "would have to bring " + missing;
    return cell;
}

} // namespace

std::string SaleSentence(const SaleByYear& exit) {
    const SaleYear& end = exit.AtEnd;
    return "If the home is sold after " + YearsText(end.Year) + ", the GREENMARK home leaves " +
           Compared(end.Difference(), " from the sale", "the base home") +
           "; with what it costs and saves until then, the buyer has " +
           Compared(end.Total(), "", "with the base home") + ".";
}

Sheet ExitSheet(const Insight& insight, const SaleByYear& exit) {
    Sheet sheet;
    sheet.Title = "If the home is sold";
    sheet.Sentence = SaleSentence(exit) + " " + SaleText(insight.By().Years);
    if (insight.Record().Scenario.PriceDifference > 0)
        sheet.Sentence += ShareSentence(exit);
    sheet.Note = GrowthText(insight.By().Years);
    sheet.Heads = {"After Year", "Base Proceeds", "GREENMARK Proceeds", "Difference", "Saved", "Total"};
    for (const SaleYear& year : exit.Years) {
        sheet.Rows.push_back(
            {{std::to_string(year.Year), static_cast<double>(year.Year), CellUnit::Text, CellMark::None},
             ProceedsCell(year.Std),
             ProceedsCell(year.GMH),
             DollarCell(year.Difference()),
             DollarCell(year.Cumulative),
             DollarCell(year.Total())});
    }
    return sheet;
}

} // namespace Ledgrove
