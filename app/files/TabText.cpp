#include "app/files/TabText.h"

#include <algorithm>

#include "app/batch/CsvText.h"
#include "base/Text.h"
#include "ui/MainScreenRules.h"
#include "ui/ResultSheets.h"

namespace Ledgrove {

namespace {

constexpr std::size_t columnGap = 3;

TabTable WelcomeContent() {
    TabTable table;
    int number = 1;
    for (const std::string_view step : Module1::WelcomeSteps())
        table.Sentences.push_back(std::to_string(number++) + ". " + std::string(step));
    table.Sentences.emplace_back(Module1::WelcomePrintStep());
    return table;
}

/// The visible rows of one or more sheets with the same heads.
TabTable SheetContent(const MainScreen& screen, std::initializer_list<SheetKind> kinds) {
    TabTable table;
    for (const SheetKind kind : kinds) {
        const ResultSheet& sheet = SheetOf(kind);
        table.Heads.assign(sheet.Heads.begin(), sheet.Heads.end());
        for (const SheetRow& row : sheet.Rows) {
            if (IsShown(row, screen))
                table.Rows.push_back(
                    {CaptionOf(row, screen),
                     {std::string(CellOf(row.First, screen)), std::string(CellOf(row.Second, screen))}});
        }
    }
    return table;
}

TabTable MoreHomeContent(const MainScreen& s) {
    TabTable table = SheetContent(s, {SheetKind::HouseValues});
    table.Sentences = {"A Monthly Net Cash Flow of " + s.lblNetCashMoTx.Text + " more per month means " +
                           s.lblExtrasTx.Text + " more today",
                       "For the same monthly cost, consider these options!", s.lblfeature1.Text,
                       s.lblfeature2.Text};
    return table;
}

TabTable SummaryContent(const MainScreen& s) {
    TabTable table = SheetContent(s, {SheetKind::SummaryHomes, SheetKind::SummarySavings});
    table.Sentences.emplace_back(Module1::SummaryFootnote());
    if (s.lblPVNote.Visible)
        table.Sentences.push_back(s.lblPVNote.Text);
    return table;
}

std::string Blanks(std::size_t width, const std::string& text) {
    const std::size_t places = CharacterCount(text);
    return std::string(width > places ? width - places : 0, ' ');
}

struct Widths {
    std::size_t Caption = 0;
    std::vector<std::size_t> Columns;
};

Widths MeasureColumns(const TabTable& table) {
    Widths widths;
    for (const std::string& head : table.Heads)
        widths.Columns.push_back(CharacterCount(head));
    for (const TabRow& row : table.Rows) {
        widths.Caption = std::max(widths.Caption, CharacterCount(row.Caption));
        for (std::size_t i = 0; i < row.Cells.size(); ++i)
            widths.Columns[i] = std::max(widths.Columns[i], CharacterCount(row.Cells[i]));
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
        return SheetContent(screen, {SheetKind::CashFlow});
    case 2:
        return MoreHomeContent(screen);
    case 3:
        return SheetContent(screen, {SheetKind::Affordability});
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
