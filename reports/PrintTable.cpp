#include "reports/PrintDocument.h"

#include "base/Text.h"
#include "reports/TableLayout.h"

#include <algorithm>
#include <iterator>
#include <utility>

// The tables of the print document.
namespace Ledgrove {

namespace {

constexpr int framed = 4;
constexpr Twips rowPadding = 12; ///< above and below the lines of a row
constexpr Twips frameThickness = 10;
constexpr PrintColour frameColour = 0x808080;
constexpr PrintColour ruleColour = 0xD8D8D8;

using Kind = TableBand::Kind;

bool HasText(const TableRow& row) {
    return std::any_of(row.begin(), row.end(), [](const std::string& cell) { return !IsBlank(cell); });
}

TextRun PlacedAt(TextRun run, Twips left, Twips top) {
    run.X += left;
    run.Y += top;
    run.Baseline += top;
    return run;
}

/// The text's left edge inside its cell.
Twips Indent(const CellLayout& cell, Twips width) {
    const Twips free = cell.TextWidth - width;
    return cell.X + (cell.Align == CellAlign::Left ? 0 : cell.Align == CellAlign::Right ? free : free / 2);
}

/// Adds the texts of `second`, which is printed over `first`, in the order of the columns.
void Overprint(TableBand& first, TableBand& second) {
    first.Height = std::max(first.Height, second.Height);
    if (first.Is == Kind::Blank)
        first.Is = second.Is;
    std::move(second.Texts.begin(), second.Texts.end(), std::back_inserter(first.Texts));
    std::stable_sort(first.Texts.begin(), first.Texts.end(),
                     [](const BandText& a, const BandText& b) { return a.Column < b.Column; });
}

} // namespace

bool PrintDocument::AddTable(std::string_view format, std::string_view header, std::string_view body,
                             std::optional<PrintColour> headerShade) {
    if (m_state != State::Open)
        return false;
    const bool alone = !m_table;
    if (alone)
        BeginTable();
    auto bands = LayOutTable(format, header, body, headerShade);
    const bool isOver = m_table->LastFirst < m_table->Bands.size() && CurrentY == m_table->LastTop;
    isOver ? ShareBands(std::move(bands)) : AppendBands(std::move(bands));
    return !alone || EndTable();
}

bool PrintDocument::BeginTable() {
    if (m_state != State::Open)
        return false;
    m_openLine.clear();
    CurrentX = Geometry.MarginLeft;
    m_table.emplace().Top = CurrentY;
    return true;
}

bool PrintDocument::AllowBreak() {
    if (!m_table)
        return false;
    m_table->BreakNext = true;
    return true;
}

bool PrintDocument::EndTable() {
    if (!m_table)
        return false;
    const OpenTable table = std::move(*m_table);
    m_table.reset();
    CurrentY = table.Top;
    const auto pages = BreakTable(table.Bands, {Room(), PageRoom(), KeepTables});
    for (const BandsOfPage& page : pages) {
        if (&page != &pages.front())
            NewPage();
        PlacePage(table.Bands, page);
    }
    return true;
}

void PrintDocument::PlacePage(const std::vector<TableBand>& bands, const BandsOfPage& page) {
    // The empty rows at the end are not part of the frame.
    std::size_t end = page.size();
    while (end > 0 && bands[page[end - 1]].Is == Kind::Blank)
        --end;
    for (std::size_t at = 0; at < end; ++at)
        PlaceBand(bands[page[at]], at == 0 ? nullptr : &bands[page[at - 1]],
                  at + 1 == end ? nullptr : &bands[page[at + 1]]);
    for (; end < page.size(); ++end)
        CurrentY += bands[page[end]].Height;
}

std::vector<TableBand> PrintDocument::LayOutTable(std::string_view format, std::string_view header,
                                                  std::string_view body,
                                                  std::optional<PrintColour> headerShade) const {
    const auto columns = ReadTableFormat(format);
    TableBand like;
    like.Is = headerShade ? Kind::Title : Kind::Heading;
    like.Width = TableWidth(columns);
    like.Framed = TableBorder == framed;
    like.BeginsPart = true;
    like.Shade = headerShade;
    std::vector<TableBand> bands;
    for (const TableRow& row : ReadTableRows(header)) {
        AddBands(row, columns, like, bands);
        like.BeginsPart = false;
        like.Shade.reset();
    }
    like.Is = Kind::Row;
    for (const TableRow& row : ReadTableRows(body)) {
        AddBands(row, columns, like, bands);
        like.BeginsPart = false;
    }
    return bands;
}

/// Lays out one row. If it is higher than half a page, each of its lines is a band, so that it fills the
/// pages.
void PrintDocument::AddBands(const TableRow& row, const std::vector<TableColumn>& columns, TableBand like,
                             std::vector<TableBand>& bands) const {
    const TextStyle style = CurrentStyle();
    const Twips lineHeight = std::max(m_measure.LineHeight(style), 1);
    const RowLayout layout = LayOutRow(row, columns, style, m_measure);
    const bool isTall = layout.LineCount > static_cast<std::size_t>(std::max(PageRoom() / 2 / lineHeight, 1));
    if (!HasText(row) && !like.Shade)
        like.Is = Kind::Blank;
    for (std::size_t first = 0; first < layout.LineCount;) {
        const std::size_t count = isTall ? 1 : layout.LineCount;
        const Twips paddingAbove = first == 0 ? rowPadding : 0;
        const Twips paddingBelow = first + count == layout.LineCount ? rowPadding : 0;
        TableBand band = like;
        band.Height = paddingAbove + static_cast<Twips>(count) * lineHeight + paddingBelow;
        for (std::size_t column = 0; column < layout.Cells.size(); ++column) {
            const CellLayout& cell = layout.Cells[column];
            Twips top = paddingAbove;
            for (std::size_t line = first; line < std::min(first + count, cell.Lines.size()); ++line) {
                const std::string& text = cell.Lines[line];
                const Twips width = m_measure.Width(text, style);
                if (!IsBlank(text))
                    band.Texts.push_back(
                        {column,
                         {Indent(cell, width), top, top + m_measure.Ascent(style), width, text, style}});
                top += lineHeight;
            }
        }
        bands.push_back(std::move(band));
        like.BeginsPart = false;
        like.Is = Kind::More;
        first += count;
    }
}

void PrintDocument::AppendBands(std::vector<TableBand> bands) {
    OpenTable& table = *m_table;
    if (bands.empty())
        return;
    bands.front().MayBreak = std::exchange(table.BreakNext, false);
    table.LastTop = CurrentY;
    table.LastFirst = table.Bands.size();
    for (const TableBand& band : bands)
        CurrentY += band.Height;
    std::move(bands.begin(), bands.end(), std::back_inserter(table.Bands));
}

void PrintDocument::ShareBands(std::vector<TableBand> bands) {
    OpenTable& table = *m_table;
    table.Bands.reserve(table.LastFirst + bands.size());
    for (std::size_t at = 0; at < bands.size(); ++at) {
        const std::size_t place = table.LastFirst + at;
        if (place < table.Bands.size())
            Overprint(table.Bands[place], bands[at]);
        else
            table.Bands.push_back(std::move(bands[at]));
    }
    CurrentY = table.LastTop;
    for (std::size_t place = table.LastFirst; place < table.Bands.size(); ++place)
        CurrentY += table.Bands[place].Height;
}

/// Puts a row at CurrentY, between the rows that are above and below it on the page.
void PrintDocument::PlaceBand(const TableBand& band, const TableBand* above, const TableBand* below) {
    const Twips left = Geometry.MarginLeft;
    const Twips right = left + band.Width;
    const Twips bottom = CurrentY + band.Height;
    PrintPage& page = CurrentPage();
    if (band.Shade)
        page.push_back(FilledRectangle{{left, CurrentY, right, bottom}, *band.Shade});
    const bool isGap = band.Is == Kind::Blank; // has sides, but no rules
    if (band.Framed) {
        const bool framedAbove = above && above->Framed;
        const bool continues =
            framedAbove && band.Is == Kind::More && (above->Is == Kind::Row || above->Is == Kind::More);
        if (!isGap && !continues && !(framedAbove && above->Is == Kind::Blank))
            page.push_back(RuledLine{{left, CurrentY, right, CurrentY},
                                     frameThickness,
                                     framedAbove && !band.BeginsPart ? ruleColour : frameColour});
        page.push_back(RuledLine{{left, CurrentY, left, bottom}, frameThickness, frameColour});
        page.push_back(RuledLine{{right, CurrentY, right, bottom}, frameThickness, frameColour});
        if (!isGap && (!below || !below->Framed))
            page.push_back(RuledLine{{left, bottom, right, bottom}, frameThickness, frameColour});
    }
    for (const BandText& text : band.Texts)
        page.push_back(PlacedAt(text.Run, left, CurrentY));
    if (!isGap)
        Covers(bottom);
    CurrentY = bottom;
}

} // namespace Ledgrove
