#include "app/batch/InsightText.h"

#include <algorithm>
#include <string_view>

#include "base/Text.h"

namespace Ledgrove {

namespace {

constexpr std::size_t lineWidth = 100;

using Lines = std::vector<std::vector<std::string>>;

bool HasMark(const Sheet& sheet, CellMark mark) {
    return std::any_of(sheet.Rows.begin(), sheet.Rows.end(), [mark](const auto& row) {
        return std::any_of(row.begin(), row.end(),
                           [mark](const SheetCell& cell) { return cell.Mark == mark; });
    });
}

/// Breaks the sentence at blanks.
void AppendWrapped(std::string& out, std::string_view sentence) {
    std::size_t column = 0;
    while (!sentence.empty()) {
        const std::size_t end = std::min(sentence.find(' '), sentence.size());
        const std::size_t places = CharacterCount(sentence.substr(0, end));
        if (column > 0 && column + 1 + places > lineWidth) {
            out += '\n';
            column = 0;
        } else if (column > 0) {
            out += ' ';
            ++column;
        }
        out.append(sentence.substr(0, end));
        column += places;
        sentence.remove_prefix(std::min(end + 1, sentence.size()));
    }
    out += '\n';
}

std::string MarkedText(const SheetCell& cell, bool hasBest, bool hasCurrent, bool isFirst) {
    if (isFirst)
        return (hasCurrent ? (cell.Mark == CellMark::Current ? "> " : "  ") : "") + cell.Text;
    return cell.Text + (hasBest ? (cell.Mark == CellMark::Best ? "*" : " ") : "");
}

Lines LinesOf(const Sheet& sheet) {
    const bool hasBest = HasMark(sheet, CellMark::Best);
    const bool hasCurrent = HasMark(sheet, CellMark::Current);
    Lines lines{sheet.Heads};
    for (std::string& head : lines.front())
        head += hasBest && &head != &lines.front().front() ? " " : "";
    for (const auto& row : sheet.Rows) {
        auto& line = lines.emplace_back();
        for (const SheetCell& cell : row)
            line.push_back(MarkedText(cell, hasBest, hasCurrent, line.empty()));
    }
    return lines;
}

/// The first column and the columns of words stand on the left, the others on the right.
void AppendLines(std::string& out, const Lines& lines, const std::vector<std::size_t>& words) {
    const auto isLeft = [&words](std::size_t column) {
        return column == 0 || std::find(words.begin(), words.end(), column) != words.end();
    };
    std::vector<std::size_t> widths(lines.front().size());
    for (const auto& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i)
            widths[i] = std::max(widths[i], CharacterCount(line[i]));
    }
    for (const auto& line : lines) {
        std::string text;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string blanks(widths[i] - CharacterCount(line[i]), ' ');
            text += i == 0 ? "" : "  ";
            text += isLeft(i) ? line[i] + blanks : blanks + line[i];
        }
        text.erase(text.find_last_not_of(' ') + 1);
        out.append(text).append("\n");
    }
}

/// A sheet of one column holds sentences, which are too long for a table.
void AppendList(std::string& out, const Sheet& sheet) {
    for (const auto& row : sheet.Rows)
        AppendWrapped(out, row.front().Text);
}

} // namespace

void AppendSheetText(std::string& out, const Sheet& sheet) {
    if (sheet.Heads.size() == 1)
        return AppendList(out, sheet);
    AppendWrapped(out, sheet.Sentence);
    out += '\n';
    AppendLines(out, LinesOf(sheet), sheet.Words);
    if (HasMark(sheet, CellMark::Best))
        out += "* the best of its column\n";
    if (HasMark(sheet, CellMark::Current))
        out += "> chosen now\n";
}

} // namespace Ledgrove
