#include "app/files/TabText.h"

#include <algorithm>

#include "app/batch/CsvCompare.h"
#include "ui/MainScreenRules.h"

namespace Ledgrove {

namespace {

const std::vector<std::string> bothHomes{"Base Home", "GREENMARK Home"};
constexpr std::size_t columnGap = 3;

TabTable WelcomeContent() {
    TabTable table;
    int number = 1;
    for (const std::string_view step : Module1::WelcomeSteps())
        table.Sentences.push_back(std::to_string(number++) + ". " + std::string(step));
    table.Sentences.emplace_back(Module1::WelcomePrintStep());
    return table;
}

TabTable CashFlowContent(const MainScreen& s) {
    return {{"Monthly", "Yearly"},
            {{s.lbladditionalmortgagetext.Text, {s.lblAddMortMo.Text, s.lblAddMortYr.Text}},
             {s.lblutilitysavingstext.Text, {s.lblUtilSavMo.Text, s.lblUtilSavYr.Text}},
             {s.lbltaxsavingstext.Text, {s.lblTaxSavMo.Text, s.lblTaxSavYr.Text}},
             {s.lblnetcashflowtext.Text, {s.lblNetCashMo.Text, s.lblNetCashYr.Text}}},
            {}};
}

TabTable MoreHomeContent(const MainScreen& s) {
    return {bothHomes,
            {{"Monthly Housing Cost", {s.lblMonthlyHCStd.Text, s.lblMonthlyHCGM.Text}},
             {"House Value", {s.lblHouseValueStd.Text, s.lblHouseValueGM.Text}}},
            {"A Monthly Net Cash Flow of " + s.lblNetCashMoTx.Text + " more per month means " +
                 s.lblExtrasTx.Text + " more today",
             "For the same monthly cost, consider these options!", s.lblfeature1.Text, s.lblfeature2.Text}};
}

TabTable AffordabilityContent(const MainScreen& s) {
    return {bothHomes,
            {{"Mortgage Amount", {s.lblStdMort.Text, s.lblGMHMort.Text}},
             {"Down Payment", {s.lblstddown2.Text, s.lblgmhdown2.Text}},
             {"Mortgage Payment", {s.lblStdMortPayment.Text, s.lblGMHMortPayment.Text}},
             {"Maximum Loan Value", {s.lblStdMaxHome.Text, s.lblGMHMaxHome.Text}},
             {"Maximum Payment", {s.lblStdInc.Text, s.lblGMHInc.Text}},
             {"Buyer Qualifies?", {s.lblStdQual.Text, s.lblGMHQual.Text}}},
            {}};
}

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

TabTable SummaryContent(const MainScreen& s) {
    TabTable table{bothHomes,
                   {{"Sticker Price", {s.lblStdHome.Text, s.lblGMHHome.Text}},
                    {"Down Payment", {s.lblStdDown.Text, s.lblgmhDown.Text}},
                    {"Mortgage Amount", {s.lblStdMortgage.Text, s.lblgmhMortgage.Text}},
                    {"Mortgage Payment", {s.lblStdPITI.Text, s.lblGMHPITI.Text}},
                    {"Monthly Utility Bills", {s.lblStdUtilMo.Text, s.lblGMHUtilMo.Text}}},
                   {std::string(Module1::SummaryFootnote())}};
    if (s.lbltaxsavmo2.Visible)
        table.Rows.push_back({s.lblTaxSavmo2Text.Text, {"", s.lbltaxsavmo2.Text}});
    const std::string years = Trimmed(s.lblYrsIn.Text);
    // "Expected Savings After:" stands before the first of the two times alone.
    const std::string after = years.substr(0, years.find(':') + 1);
    table.Rows.insert(table.Rows.end(), {{"Net Monthly Payment", {s.lblStdPITIU.Text, s.lblGMHPITIU.Text}},
                                         {"Net Monthly Cash Flow", {"", s.lblNetCashMo2.Text}},
                                         {years, {"", s.lblExpYrPre.Text}},
                                         {after + "   " + s.lblTerm.Text, {"", s.lbl30YrPre.Text}},
                                         {s.lblPV.Text, {"", s.lblPVofSavings.Text}}});
    if (s.lblPVNote.Visible)
        table.Sentences.push_back(s.lblPVNote.Text);
    return table;
}

/// Bytes that begin a character: how many places the text takes.
std::size_t PlacesOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string Blanks(std::size_t width, const std::string& text) {
    const std::size_t places = PlacesOf(text);
    return std::string(width > places ? width - places : 0, ' ');
}

struct Widths {
    std::size_t Caption = 0;
    std::vector<std::size_t> Columns;
};

Widths MeasureColumns(const TabTable& table) {
    Widths widths;
    for (const std::string& head : table.Heads)
        widths.Columns.push_back(PlacesOf(head));
    for (const TabRow& row : table.Rows) {
        widths.Caption = std::max(widths.Caption, PlacesOf(row.Caption));
        for (std::size_t i = 0; i < row.Cells.size(); ++i)
            widths.Columns[i] = std::max(widths.Columns[i], PlacesOf(row.Cells[i]));
    }
    return widths;
}

void AppendAligned(std::string& out, const TabRow& row, const Widths& widths) {
    out += row.Caption + Blanks(widths.Caption, row.Caption);
    for (std::size_t i = 0; i < row.Cells.size(); ++i)
        out += std::string(columnGap, ' ') + Blanks(widths.Columns[i], row.Cells[i]) + row.Cells[i];
    out += '\n';
}

std::string AsCell(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    return DefusedCell(text);
}

void AppendCells(std::string& out, const TabRow& row) {
    out += AsCell(row.Caption);
    for (const std::string& cell : row.Cells)
        out += '\t' + AsCell(cell);
    out += '\n';
}

void AppendSentences(std::string& out, const TabTable& table, std::string (*shown)(std::string)) {
    for (const std::string& sentence : table.Sentences) {
        if (!sentence.empty())
            out += shown(sentence) + '\n';
    }
}

} // namespace

TabTable TabContent(const MainScreen& screen, int tab) {
    switch (tab) {
    case 1:
        return CashFlowContent(screen);
    case 2:
        return MoreHomeContent(screen);
    case 3:
        return AffordabilityContent(screen);
    case 4:
        return SummaryContent(screen);
    default:
        return WelcomeContent();
    }
}

std::string AlignedText(const TabTable& table) {
    std::string out;
    const Widths widths = MeasureColumns(table);
    if (!table.Heads.empty())
        AppendAligned(out, {"", table.Heads}, widths);
    for (const TabRow& row : table.Rows)
        AppendAligned(out, row, widths);
    if (!out.empty() && !table.Sentences.empty())
        out += '\n';
    AppendSentences(out, table, [](std::string sentence) { return sentence; });
    return out;
}

std::string SpreadsheetText(const TabTable& table) {
    std::string out;
    if (!table.Heads.empty())
        AppendCells(out, {"", table.Heads});
    for (const TabRow& row : table.Rows)
        AppendCells(out, row);
    AppendSentences(out, table, AsCell);
    return out;
}

} // namespace Ledgrove
