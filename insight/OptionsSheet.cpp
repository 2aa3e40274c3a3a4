#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "insight/AnswerWords.h"
#include "insight/Options.h"

namespace Ledgrove {

namespace {

SheetCell Best(SheetCell cell, const OptionAnswer& row, BestIn column) {
    if (std::find(row.Best.begin(), row.Best.end(), column) != row.Best.end())
        cell.Mark = CellMark::Best;
    return cell;
}

std::vector<SheetCell> FigureCells(const OptionAnswer& row) {
    const auto dollars = [](float amount, CellUnit unit = CellUnit::Dollars) {
        return DollarCell(static_cast<double>(amount), unit);
    };
    const HomeCase& home = row.GMH.Figures;
    const auto income = row.GMH.IncomeToQualify;
    return {TextCell(row.GMH.Qualifies ? "YES" : "NO", row.GMH.Qualifies ? CellMark::None : CellMark::Bad),
            Best(income ? DollarCell(static_cast<double>(*income)) : TextCell("none"), row, BestIn::Income),
            Best(dollars(home.DownPayment), row, BestIn::Cash),
            dollars(home.LoanAmount),
            Best(dollars(home.PITIU, CellUnit::DollarsPerMonth), row, BestIn::Payment),
            Best(dollars(row.ShownNet, CellUnit::DollarsPerMonth), row, BestIn::Net),
            Best(DollarCell(row.GMH.Margin), row, BestIn::Room),
            row.LoanGain ? DollarCell(*row.LoanGain) : SheetCell()};
}

constexpr std::array<std::string_view, BestNames.size()> bestWords{
    "the lowest monthly cost", "the least cash down", "the most room", "the most left each month",
    "the least income needed"};

std::string PairOf(const OptionAnswer& row) {
    return std::string(row.Base) + " / " + std::string(row.Labelled);
}

/// What the row is the best of. Where nobody qualifies, the most room is what is missing least,
/// and where nothing is left, the best net is the smallest loss.
std::string WordsOfBest(const OptionAnswer& row) {
    std::vector<std::string> words;
    for (const BestIn column : row.Best) {
        if (column == BestIn::Room && row.GMH.Margin < 0)
            words.emplace_back("the smallest shortfall");
        else if (column == BestIn::Net && row.ShownNet < 0)
            words.emplace_back("the smallest monthly loss");
        else
            words.emplace_back(bestWords[static_cast<std::size_t>(column)]);
    }
    return Joined(words);
}

/// "FHA / FHA EEM has the least cash down and the least income needed."; rows that are the best of the same
/// columns share a sentence. Empty if no row is the best of a column.
std::string BestSentences(const OptionTable& options) {
    std::vector<std::pair<std::string, std::vector<std::string>>>
        sentences; ///< what, and the pairs that have it
    for (const OptionAnswer& row : options.Rows) {
        if (row.Best.empty())
            continue;
        const std::string words = WordsOfBest(row);
        const auto same = std::find_if(sentences.begin(), sentences.end(),
                                       [&words](const auto& sentence) { return sentence.first == words; });
        if (same == sentences.end())
            sentences.push_back({words, {PairOf(row)}});
        else
            same->second.push_back(PairOf(row));
    }
    std::string text;
    for (const auto& [words, pairs] : sentences)
        text += Joined(pairs) + (pairs.size() == 1 ? " has " : " have ") + words + ". ";
    return text;
}

} // namespace

Sheet OptionsSheet(const OptionTable& options) {
    Sheet sheet;
    sheet.Title = "Mortgage options";
    sheet.Sentence =
        BestSentences(options) + options.Sentence +
        " \"Larger Loan\" is how much more an option allows than the plain option of its group, by "
        "its ratios and the energy savings together.";
    sheet.Heads = {"Base / GREENMARK", "Qualifies",   "Income", "Down Payment", "Mortgage",
                   "Monthly Cost",     "Monthly Net", "Room",   "Larger Loan"};
    for (const OptionAnswer& row : options.Rows) {
        const bool isCurrent = &row - options.Rows.data() == options.Current;
        std::vector<SheetCell> cells{TextCell(PairOf(row), isCurrent ? CellMark::Current : CellMark::None)};
        if (!isCurrent)
            cells.front().Entries = {{"cboStdMortOption", std::string(row.Base)},
                                     {"cboGMHMortOption", std::string(row.Labelled)}};
        if (row.Missing.empty()) {
            auto figures = FigureCells(row);
            std::move(figures.begin(), figures.end(), std::back_inserter(cells));
        } else {
            cells.push_back(TextCell(row.Missing));
            cells.resize(sheet.Heads.size());
        }
        sheet.Rows.push_back(std::move(cells));
    }
    return sheet;
}

} // namespace Ledgrove
