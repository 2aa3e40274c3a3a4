#include <array>
#include <utility>

#include "insight/Years.h"
#include "insight/YearsWords.h"

namespace Ledgrove {

namespace {

std::string AheadSentence(const YearByYear& years) {
    const std::string stay = YearsText(years.InHome);
    if (!years.Ahead)
        return "With the GREENMARK home, the buyer is not ahead within " + stay + ".";
    const double amount = years.Years[static_cast<std::size_t>(years.InHome) - 1].Cumulative;
    const std::string by = AheadText(amount) + " after " + stay + ".";
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
    // Worth $0: the buyer neither gains nor loses, which needs no sentence.
    if (!years.NPV || IsEven(*years.NPV))
        return {};
    const bool isPaid = years.ExtraCash > 0;
    if (*years.NPV < 0)
        return " In today's money, the buyer loses " + AmountText(-*years.NPV) + " in " +
               YearsText(years.InHome) + (isPaid ? ", with the extra down payment." : ".");
    if (years.ExtraCash < 0)
        return " With " + AmountText(-years.ExtraCash) +
               " less down payment, what the GREENMARK home costs and saves in " + YearsText(years.InHome) +
               " is worth " + AmountText(*years.NPV) + " today.";
    return " The savings of " + YearsText(years.InHome) + (isPaid ? ", less the extra down payment," : "") +
           " are worth " + AmountText(*years.NPV) + " today.";
}

/// Whether PMI runs before this month and not in it, although the loan still runs.
bool EndsPMI(const HomePlan& plan, int month) {
    return plan.PMIEnd == month && month > 1 && month <= plan.Periods();
}

/// The months in which PMI ends, as one event if both homes share the month.
void AddPMIEnds(const YearByYear& years, int month, std::vector<YearsEvent>& events) {
    const bool std = EndsPMI(years.Std, month);
    const bool gmh = EndsPMI(years.GMH, month);
    if (!std && !gmh)
        return;
    const std::string what = std && gmh ? "no PMI " : std ? "base: no PMI " : "GREENMARK: no PMI ";
    events.push_back({month, what + FromMonthText(month)});
}

/// The events of a row in its last column.
std::string EventsText(const YearByYear& years, int first, int last) {
    std::string text;
    // What holds from today on stands in the first row.
    for (const YearsEvent& event : EventsBetween(years, first == 1 ? 0 : first, last))
        text += (text.empty() ? "" : "; ") + event.Text;
    return text;
}

/// A figure of one home in a column of its own.
struct FlowFigure {
    const char* Head;
    double HomeFlow::*Member;
};

constexpr std::array<FlowFigure, 9> flowFigures{{{"Cost", &HomeFlow::Cost},
                                                 {"Interest", &HomeFlow::Interest},
                                                 {"Principal", &HomeFlow::Principal},
                                                 {"Balance", &HomeFlow::Balance},
                                                 {"PMI", &HomeFlow::PMI},
                                                 {"Property Tax", &HomeFlow::Tax},
                                                 {"Insurance", &HomeFlow::Insurance},
                                                 {"Utilities", &HomeFlow::Utilities},
                                                 {"Tax Effect", &HomeFlow::TaxEffect}}};

/// The rows of a table while it is being filled.
class FlowTable {
public:
    FlowTable(const char* numbers, FlowColumns columns)
        : m_columns(columns) {
        if (columns == FlowColumns::Main) {
            m_sheet.Heads = {numbers,    "Base Cost", "Interest", "PMI",    "Balance",  "GREENMARK Cost",
                             "Interest", "PMI",       "Balance",  "Saving", "Ahead By", "What Changes"};
            m_sheet.Words = {m_sheet.Heads.size() - 1};
            return;
        }
        m_sheet.Heads = {numbers, "Saving", "Ahead By", "What Changes"};
        m_sheet.Words = {m_sheet.Heads.size() - 1};
        for (const char* const home : {"Base ", "GREENMARK "})
            for (const FlowFigure& figure : flowFigures)
                m_sheet.Heads.push_back(home + std::string(figure.Head));
    }

    void Append(const FlowRow& row, std::string events) {
        const CellMark mark = events.empty() ? CellMark::None : CellMark::Turn;
        auto& cells = m_sheet.Rows.emplace_back();
        cells.push_back({std::to_string(row.Number), static_cast<double>(row.Number), CellUnit::Text, mark});
        if (m_columns == FlowColumns::Main)
            AppendMain(row, cells);
        cells.push_back(DollarCell(row.Saving));
        cells.push_back(DollarCell(row.Cumulative));
        cells.push_back(TextCell(std::move(events), mark));
        if (m_columns == FlowColumns::All)
            AppendAll(row, cells);
    }

    Sheet& Filled() { return m_sheet; }

private:
    static void AppendMain(const FlowRow& row, std::vector<SheetCell>& cells) {
        for (const HomeFlow* const home : {&row.Std, &row.GMH})
            for (const double amount : {home->Cost, home->Interest, home->PMI, home->Balance})
                cells.push_back(DollarCell(amount));
    }

    static void AppendAll(const FlowRow& row, std::vector<SheetCell>& cells) {
        for (const HomeFlow* const home : {&row.Std, &row.GMH})
            for (const FlowFigure& figure : flowFigures)
                cells.push_back(DollarCell(home->*figure.Member));
    }

    FlowColumns m_columns;
    Sheet m_sheet;
};

std::string NoteOf(const YearByYear& years) {
    return years.Sentence + " " + GrowthText(years.By) +
           (years.IRRWithSale ? " " + SaleText(years.By, "The return with the sale") : "");
}

} // namespace

std::vector<YearsEvent> EventsBetween(const YearByYear& years, int first, int last) {
    std::vector<YearsEvent> events;
    for (int month = first; month <= last; ++month) {
        AddPMIEnds(years, month, events);
        if (years.Ahead == month)
            events.push_back({month, "ahead " + FromMonthText(month)});
    }
    return events;
}

Sheet YearsSheet(const YearByYear& years, FlowColumns columns) {
    FlowTable table("Year", columns);
    for (const FlowRow& row : years.Years)
        table.Append(row, EventsText(years, 12 * row.Number - 11, 12 * row.Number));
    Sheet sheet = std::move(table.Filled());
    sheet.Title = "Year by year";
    sheet.Sentence = AheadSentence(years) + ReturnSentence(years) + WorthSentence(years);
    sheet.Note = NoteOf(years);
    return sheet;
}

Sheet YearMonthsSheet(const YearByYear& years, int year, FlowColumns columns) {
    FlowTable table("Month", columns);
    for (const FlowRow& row : MonthsOf(years, year))
        table.Append(row, EventsText(years, row.Number, row.Number));
    Sheet sheet = std::move(table.Filled());
    sheet.Title = "Month by month";
    sheet.Sentence = "Year " + std::to_string(year) + ", month by month.";
    sheet.Note = NoteOf(years);
    return sheet;
}

} // namespace Ledgrove
