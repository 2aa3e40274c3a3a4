#include "reports/SheetTable.h"

#include "insight/SheetMarks.h"
#include "reports/SectionParts.h"
#include "reports/TableLayout.h"

#include <algorithm>
#include <numeric>

namespace Ledgrove {

namespace {

constexpr Twips usualWidth = 7560; ///< of the report's tables
constexpr int largestFont = 9;
constexpr int smallestFont = 7;
constexpr Twips spare = 30; ///< widths are rounded several times on their way to the page

using Columns = std::vector<std::size_t>;

struct FittedTable {
    int FontSize = largestFont;
    std::vector<Columns> Parts;
    std::vector<std::vector<Twips>> Widths; ///< of the columns of each part
};

Twips WidestWord(const PrintDocument& document, std::string_view text) {
    Twips widest = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        widest = std::max(widest, document.WidthOf(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return widest;
}

ColumnNeed NeedOf(PrintDocument& document, const Sheet& sheet, std::size_t column) {
    document.FontBold = true;
    ColumnNeed need{document.WidthOf(sheet.Heads[column]), WidestWord(document, sheet.Heads[column])};
    document.FontBold = false;
    for (const auto& row : sheet.Rows) {
        if (column >= row.size())
            continue;
        const std::string text = MarkedText(row[column]);
        const Twips width = document.WidthOf(text);
        need.Natural = std::max(need.Natural, width);
        need.Least =
            std::max(need.Least, MayBreak(sheet, column, row[column]) ? WidestWord(document, text) : width);
    }
    const Twips around = 2 * CellPadding + spare;
    return {need.Natural + around, need.Least + around};
}

std::vector<ColumnNeed> NeedsOf(PrintDocument& document, const Sheet& sheet) {
    std::vector<ColumnNeed> needs;
    for (std::size_t column = 0; column < sheet.Heads.size(); ++column)
        needs.push_back(NeedOf(document, sheet, column));
    return needs;
}

std::vector<ColumnNeed> Chosen(const std::vector<ColumnNeed>& needs, const Columns& columns) {
    std::vector<ColumnNeed> chosen;
    for (const std::size_t column : columns)
        chosen.push_back(needs[column]);
    return chosen;
}

/// In one table if a font is small enough, else in parts with the largest font.
FittedTable Fit(PrintDocument& document, const Sheet& sheet) {
    const Twips room = document.LineWidth();
    FittedTable table;
    for (int size = largestFont; size >= smallestFont; --size) {
        document.FontSize = size;
        if (auto widths = FitColumns(NeedsOf(document, sheet), room, usualWidth)) {
            Columns all(sheet.Heads.size());
            std::iota(all.begin(), all.end(), std::size_t{0});
            return {size, {std::move(all)}, {std::move(*widths)}};
        }
    }
    document.FontSize = largestFont;
    const auto needs = NeedsOf(document, sheet);
    table.Parts = SplitColumns(needs, room);
    for (const Columns& part : table.Parts) {
        const auto own = Chosen(needs, part);
        std::vector<Twips> least;
        for (const ColumnNeed& need : own)
            least.push_back(need.Least);
        table.Widths.push_back(FitColumns(own, room, usualWidth).value_or(least));
    }
    return table;
}

std::string FormatOf(const Sheet& sheet, const Columns& columns, const std::vector<Twips>& widths) {
    std::string format;
    for (std::size_t at = 0; at < columns.size(); ++at)
        format += (at == 0 ? "" : "|") + std::string(IsWords(sheet, columns[at]) ? "<" : ">") +
                  std::to_string(widths[at]);
    return format + ";";
}

/// The cells of these columns as a row of the table language.
template <typename TextAt>
std::string RowOf(const Columns& columns, const TextAt& textAt) {
    std::string row;
    for (const std::size_t column : columns)
        row += (column == columns.front() ? "" : "|") + CellText(textAt(column));
    return row + ";";
}

bool IsIdle(const std::vector<SheetCell>& row) {
    return !row.empty() && row.front().Mark == CellMark::Idle;
}

/// Neighbouring rows of the same font are written together, so that the rules between them are alike.
void WriteRows(PrintDocument& document, const Sheet& sheet, const Columns& columns,
               const std::string& format) {
    for (std::size_t first = 0; first < sheet.Rows.size();) {
        const bool idle = IsIdle(sheet.Rows[first]);
        std::string rows;
        for (; first < sheet.Rows.size() && IsIdle(sheet.Rows[first]) == idle; ++first) {
            const auto& row = sheet.Rows[first];
            rows += RowOf(columns, [&row](std::size_t column) {
                return column < row.size() ? MarkedText(row[column]) : std::string();
            });
        }
        document.FontItalic = idle;
        document.AddTable(format, "", rows);
        document.FontItalic = false;
    }
}

void WritePart(PrintDocument& document, const Sheet& sheet, const Columns& columns,
               const std::vector<Twips>& widths) {
    const std::string bar = "^" + std::to_string(std::accumulate(widths.begin(), widths.end(), 0)) + ";";
    const std::string format = FormatOf(sheet, columns, widths);
    document.BeginTable();
    document.FontBold = true;
    document.AddTable(bar, CellText(sheet.Title), "", PrintGrey);
    document.AddTable(format, RowOf(columns, [&](std::size_t column) { return sheet.Heads[column]; }), "");
    document.FontBold = false;
    WriteRows(document, sheet, columns, format);
    if (const std::string legend = LegendOf(sheet); !legend.empty())
        modPrint::WriteNote(document, legend);
    document.EndTable();
    document.Paragraph("");
}

} // namespace

std::optional<std::vector<Twips>> FitColumns(const std::vector<ColumnNeed>& needs, Twips room, Twips usual) {
    Twips natural = 0;
    Twips least = 0;
    for (const ColumnNeed& need : needs) {
        natural += need.Natural;
        least += need.Least;
    }
    if (least > room || needs.empty())
        return std::nullopt;
    std::vector<Twips> widths;
    if (natural <= room) {
        for (const ColumnNeed& need : needs)
            widths.push_back(need.Natural);
        widths.front() += std::max(0, std::min(usual, room) - natural);
        return widths;
    }
    const double share = static_cast<double>(room - least) / (natural - least);
    for (const ColumnNeed& need : needs)
        widths.push_back(need.Least + static_cast<Twips>((need.Natural - need.Least) * share));
    return widths;
}

std::vector<std::vector<std::size_t>> SplitColumns(const std::vector<ColumnNeed>& needs, Twips room) {
    std::vector<Columns> parts;
    Twips width = 0;
    for (std::size_t column = 1; column < needs.size(); ++column) {
        if (parts.empty() || width + needs[column].Least > room) {
            parts.push_back({0});
            width = needs.front().Least;
        }
        parts.back().push_back(column);
        width += needs[column].Least;
    }
    return parts;
}

void WriteSheetTable(PrintDocument& document, const Sheet& sheet) {
    modPrint::BeginSectionBody(document);
    const FittedTable table = Fit(document, sheet);
    for (std::size_t part = 0; part < table.Parts.size(); ++part) {
        document.FontSize = table.FontSize;
        WritePart(document, sheet, table.Parts[part], table.Widths[part]);
    }
}

} // namespace Ledgrove
