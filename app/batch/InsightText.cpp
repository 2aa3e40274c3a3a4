#include "app/batch/InsightText.h"

#include <algorithm>
#include <string_view>

#include "base/Text.h"
#include "insight/SheetMarks.h"

namespace Ledgrove {

namespace {

constexpr std::size_t lineWidth = 100;
constexpr std::size_t wordsWidth = 36; ///< of a column of words in a table

using Lines = std::vector<std::vector<std::string>>;

/// The text in lines of at most `width` characters, broken at blanks.
std::vector<std::string> WrappedLines(std::string_view text, std::size_t width) {
    std::vector<std::string> lines(1);
    std::size_t column = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        const std::size_t places = CharacterCount(text.substr(0, end));
        if (column > 0 && column + 1 + places > width) {
            lines.emplace_back();
            column = 0;
        } else if (column > 0) {
            lines.back() += ' ';
            ++column;
        }
        lines.back().append(text.substr(0, end));
        column += places;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

void AppendWrapped(std::string& out, std::string_view sentence) {
    for (const std::string& line : WrappedLines(sentence, lineWidth))
        out.append(line).append("\n");
}

/// The cell with its sign, or with blanks in its place if the table has such signs.
std::string PaddedText(const SheetCell& cell, bool hasBest, bool hasCurrent, bool isFirst) {
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
            line.push_back(PaddedText(cell, hasBest, hasCurrent, line.empty()));
    }
    return lines;
}

/// Breaks the cells of the columns of words. What does not fit continues in lines of its own below.
Lines WithBrokenWords(const Lines& lines, const std::vector<std::size_t>& words) {
    Lines result;
    for (const auto& line : lines) {
        const std::size_t first = result.size();
        result.push_back(line);
        for (const std::size_t column : words) {
            const auto pieces = WrappedLines(line[column], wordsWidth);
            result.resize(std::max(result.size(), first + pieces.size()),
                          std::vector<std::string>(line.size()));
            for (std::size_t i = 0; i < pieces.size(); ++i)
                result[first + i][column] = pieces[i];
        }
    }
    return result;
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
    if (sheet.Rows.empty())
        return;
    out += '\n';
    AppendLines(out, WithBrokenWords(LinesOf(sheet), sheet.Words), sheet.Words);
    if (HasMark(sheet, CellMark::Best))
        out += "* the best of its column\n";
    if (HasMark(sheet, CellMark::Current))
        out += "> chosen now\n";
    if (!sheet.Note.empty())
        AppendWrapped(out += '\n', sheet.Note);
}

std::string SheetText(const Sheet& sheet) {
    std::string text;
    AppendSheetText(text, sheet);
    return text;
}

} // namespace Ledgrove
