#include "insight/Exit.h"
#include "insight/YearsWords.h"

namespace Ledgrove {

namespace {

std::string MoreOrLess(double amount) {
    return DollarText(amount < 0 ? -amount : amount) + (amount < 0 ? " less" : " more");
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
    if (cell.Mark == CellMark::Bad)
        cell.Text = "would have to bring " + DollarText(-amount);
    return cell;
}

} // namespace

std::string SaleSentence(const SaleByYear& exit) {
    const SaleYear& end = exit.AtEnd;
    return "If the home is sold after " + YearsText(end.Year) + ", the GREENMARK home leaves " +
           MoreOrLess(end.Difference()) + " from the sale; with what it costs and saves " +
           "until then, the buyer has " + MoreOrLess(end.Total()) + " than with the base home.";
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
