#include <algorithm>

#include "engine/NumberText.h"
#include "insight/AnswerWords.h"
#include "insight/Range.h"

namespace Ledgrove {

namespace {

std::string Number(std::size_t number) {
    return Module1::FormatPicture(static_cast<double>(number), "#,##0");
}

std::string Count(std::size_t number, const std::string& one, const std::string& more) {
    return Number(number) + " " + (number == 1 ? one : more);
}

template <typename Condition>
std::size_t RowsWith(const Range& range, Condition condition) {
    return static_cast<std::size_t>(
        std::count_if(range.Rows.begin(), range.Rows.end(),
                      [&](const RangeRow& row) { return row.Missing.empty() && condition(row); }));
}

/// For how many rows the buyer qualifies, and how many pay.
std::string CountsSentence(const Range& range, std::size_t known, const std::string& what) {
    const std::size_t qualify = RowsWith(range, [](const RangeRow& row) { return row.GMH.Qualifies; });
    const std::size_t pay = RowsWith(range, [](const RangeRow& row) { return row.ShownNet >= 0; });
    if (known == 1)
        return std::string("The buyer ") + (qualify == 1 ? "qualifies" : "does not qualify") +
               " for the GREENMARK home, which " + (pay == 1 ? "pays" : "does not pay") +
               " for itself each month.";
    const std::string all = Number(known) + " " + what;
    const std::string first = qualify == 0       ? "none of the " + all
                              : qualify == known ? "all " + all
                                                 : Number(qualify) + " of the " + all;
    const std::string second = pay == 0       ? "none of them pays for itself"
                               : pay == 1     ? "one of them pays for itself"
                               : pay == known ? "all of them pay for themselves"
                                              : Number(pay) + " of them pay for themselves";
    return "The buyer qualifies for " + first + "; " + second + " each month.";
}

std::string SentenceOf(const Range& range) {
    if (range.Houses == 0)
        return "No houses are saved. Add some in the window (\"House Scenarios\").";
    const std::size_t rows = range.Rows.size();
    const std::size_t known = RowsWith(range, [](const RangeRow&) { return true; });
    std::string sentence = Count(range.Houses, "saved house", "saved houses");
    if (rows > range.Houses)
        sentence += ", each with " + std::to_string(rows / range.Houses) + " pairs of mortgage options";
    sentence += ".";
    if (known > 0)
        sentence += " " + CountsSentence(range, known, rows > range.Houses ? "rows" : "GREENMARK homes");
    if (known < rows)
        sentence += " " + Count(rows - known, "row has", "rows have") + " no figures.";
    return sentence;
}

SheetCell QualifiesCell(const RangeRow& row) {
    if (!row.Missing.empty())
        return TextCell(row.Missing);
    const CellMark mark = row.GMH.Qualifies ? CellMark::None : CellMark::Bad;
    if (row.Std.Qualifies)
        return TextCell(row.GMH.Qualifies ? "both homes" : "the base home only", mark);
    return TextCell(row.GMH.Qualifies ? "the GREENMARK home only" : "neither home", mark);
}

/// Entering the amounts comes before the name, because other amounts make the house "Custom".
std::vector<EntryText> EntriesOf(const RangeRow& row) {
    const auto dollars = [](float amount) { return Module1::FormatPicture(amount, "$###,##0"); };
    return {{"ecStdHome", dollars(row.Std.Price)},
            {"ecStdUtil", dollars(row.Std.Bill)},
            {"ecGMHHome", dollars(row.GMH.Price)},
            {"ecGMHUtil", dollars(row.GMH.Bill)},
            {"lblHomeName", row.House},
            {"cboStdMortOption", std::string(row.Base)},
            {"cboGMHMortOption", std::string(row.Labelled)}};
}

SheetCell PriceCell(const RangeRow& row) {
    SheetCell cell = AnswerCell(row.Price, "unknown");
    cell.Entries.clear(); // the row proposes its house
    return cell;
}

std::vector<SheetCell> CellsOf(const RangeRow& row, bool limits) {
    const auto dollars = [](float amount, CellUnit unit = CellUnit::Dollars) {
        return DollarCell(static_cast<double>(amount), unit);
    };
    const bool known = row.Missing.empty();
    std::vector<SheetCell> cells{TextCell(row.House),
                                 TextCell(std::string(row.Base) + " / " + std::string(row.Labelled)),
                                 QualifiesCell(row), dollars(row.Std.Price), dollars(row.GMH.Price)};
    cells.front().Entries = EntriesOf(row);
    const auto add = [&cells, known](SheetCell cell) {
        cells.push_back(known ? std::move(cell) : SheetCell());
    };
    add(dollars(row.Std.PITIU, CellUnit::DollarsPerMonth));
    add(dollars(row.GMH.PITIU, CellUnit::DollarsPerMonth));
    add(dollars(row.ShownNet, CellUnit::DollarsPerMonth));
    add(DollarCell(row.GMH.Margin));
    if (limits)
        add(PriceCell(row));
    return cells;
}

} // namespace

Sheet RangeSheet(const Range& range) {
    Sheet sheet;
    sheet.Title = "House range";
    sheet.Sentence = SentenceOf(range);
    sheet.Heads = {"House", "Base / GREENMARK", "Qualifies For", "Base Price",
                   "Price", "Base Cost",        "Cost",          "Net",
                   "Room"};
    sheet.Words = {1, 2};
    // The heads are short, so that a row fits on a line.
    if (!range.Rows.empty())
        sheet.Note =
            std::string(
                "Price, cost and room are those of the GREENMARK home, \"Base\" those of the base home; "
                "costs and net are a month's. ") +
            (range.WithTaxes ? "The net includes the tax savings." : "Income tax is not included.");
    if (range.HasLimits)
        sheet.Heads.emplace_back("Pays Up To");
    for (const RangeRow& row : range.Rows)
        sheet.Rows.push_back(CellsOf(row, range.HasLimits));
    return sheet;
}

} // namespace Ledgrove
