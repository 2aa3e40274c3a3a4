#include "app/batch/CsvColumns.h"

#include <algorithm>
#include <array>
#include <csv.h>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "app/batch/CsvResults.h"
#include "base/Text.h"
#include "ui/InputWords.h"

namespace Ledgrove {

namespace {

struct Alias {
    std::string_view Name;
    Input Which;
};

/// The headings of `ledgrove-cli settings houses`.
constexpr Alias houseColumns[] = {{"StdCost", Input::ecStdHome},
                                  {"StdUtil", Input::ecStdUtil},
                                  {"GMHCost", Input::ecGMHHome},
                                  {"GMHUtil", Input::ecGMHUtil}};

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The text in small letters without blanks.
std::string Folded(std::string_view text) {
    std::string folded;
    for (const char c : text)
        if (c != ' ' && c != '\t')
            folded += Lower(c);
    return folded;
}

std::optional<Input> InputOf(std::string_view heading) {
    if (const auto input = InputNamed(heading))
        return input;
    for (const Alias& alias : houseColumns)
        if (alias.Name == heading)
            return alias.Which;
    const std::string folded = Folded(heading);
    for (const NamedInput& input : InputTable)
        if (folded == Folded(InputWords(input.Name)))
            return input.Which;
    return std::nullopt;
}

/// Whether `a` and `b` are the same, or one letter too many, too few or different makes one of the other.
bool AreNearlySame(std::string_view a, std::string_view b) {
    if (a.size() < b.size())
        std::swap(a, b);
    if (a.size() - b.size() > 1)
        return false;
    const auto same =
        static_cast<std::size_t>(std::mismatch(b.begin(), b.end(), a.begin()).first - b.begin());
    if (same == b.size())
        return true;
    return a.substr(same + 1) == b.substr(a.size() == b.size() ? same + 1 : same);
}

/// The name of the input that is probably meant; empty if there is none.
std::string_view MeantInput(std::string_view heading) {
    const std::string folded = Folded(heading);
    for (const NamedInput& input : InputTable)
        if (AreNearlySame(folded, Folded(input.Name)))
            return input.Name;
    return {};
}

CsvColumn ColumnOf(const std::string& heading) {
    if (const auto input = InputOf(heading))
        return {heading, CsvColumn::Kind::Input, *input};
    return {heading, IsResultColumn(heading) ? CsvColumn::Kind::Result : CsvColumn::Kind::Carried, {}};
}

std::string Places(std::size_t first, std::size_t second) {
    return "columns " + std::to_string(first + 1) + " and " + std::to_string(second + 1);
}

/// Why two of the columns exclude each other; empty if none do.
std::string ConflictIn(const std::vector<CsvColumn>& columns) {
    std::unordered_map<std::string_view, std::size_t> headings;
    std::array<std::optional<std::size_t>, std::size(InputTable)> inputs;
    for (std::size_t at = 0; at < columns.size(); ++at) {
        const CsvColumn& column = columns[at];
        if (column.Heading.empty())
            continue;
        const auto [same, isNew] = headings.emplace(column.Heading, at);
        if (!isNew)
            return "The heading " + Quoted(column.Heading) + " stands twice, in " + Places(same->second, at) +
                   ". Rename one of them.";
        if (column.Is != CsvColumn::Kind::Input)
            continue;
        auto& place = inputs[static_cast<std::size_t>(column.Which)];
        if (place)
            return "The headings " + Quoted(columns[*place].Heading) + " and " + Quoted(column.Heading) +
                   ", in " + Places(*place, at) + ", both mean " + std::string(NameOf(column.Which)) +
                   ". Keep one of them.";
        place = at;
    }
    return {};
}

/// A warning about a heading that is probably meant differently; empty for none.
std::string WarningOf(const CsvColumn& column, bool hasFigures) {
    if (column.Is == CsvColumn::Kind::Result && !hasFigures)
        return "The column " + Quoted(column.Heading) +
               " has the name of a result, which takes its place in the output.";
    if (column.Is != CsvColumn::Kind::Carried)
        return {};
    const std::string_view meant = MeantInput(column.Heading);
    return meant.empty()
               ? std::string()
               : "The column " + Quoted(column.Heading) + " is not an input and is only written again. If " +
                     Quoted(meant) + " is meant, correct the heading.";
}

std::size_t CountInputs(std::string_view line, char separator, std::size_t& columns) {
    struct Count {
        std::size_t Columns = 0;
        std::size_t Inputs = 0;
    } count;
    const auto takeCell = [](void* text, std::size_t size, void* data) {
        auto& counted = *static_cast<Count*>(data);
        ++counted.Columns;
        counted.Inputs += InputOf({static_cast<const char*>(text), size}) ? 1 : 0;
    };
    csv_parser parser;
    csv_init(&parser, 0);
    csv_set_delim(&parser, static_cast<unsigned char>(separator));
    csv_parse(&parser, line.data(), line.size(), takeCell, nullptr, &count);
    csv_fini(&parser, takeCell, nullptr, &count);
    csv_free(&parser);
    columns = count.Columns;
    return count.Inputs;
}

} // namespace

CsvHeading ReadCsvHeading(const std::vector<std::string>& cells) {
    CsvHeading heading;
    for (const std::string& cell : cells)
        heading.Columns.push_back(ColumnOf(cell));
    auto& columns = heading.Columns;
    for (auto last = columns.rbegin(); last != columns.rend() && last->Heading.empty(); ++last)
        last->Is = CsvColumn::Kind::Nothing;
    heading.Refusal = ConflictIn(columns);
    if (std::none_of(columns.begin(), columns.end(),
                     [](const CsvColumn& column) { return column.Is == CsvColumn::Kind::Input; }))
        heading.Refusal = "No heading is an input. The first row must name the columns, such as " +
                          Quoted("ecStdHome") + " or " + Quoted(InputWords("ecStdHome")) + ".";
    // An earlier run's output has the figures too.
    const bool hasFigures = std::any_of(columns.begin(), columns.end(), [](const CsvColumn& column) {
        return column.Is == CsvColumn::Kind::Result && column.Heading.find('.') != std::string::npos;
    });
    for (const CsvColumn& column : columns)
        if (std::string warning = WarningOf(column, hasFigures); !warning.empty())
            heading.Warnings.push_back(std::move(warning));
    return heading;
}

char SeparatorOf(std::string_view firstLine) {
    char best = ',';
    std::size_t mostInputs = 0;
    std::size_t mostColumns = 0;
    for (const char separator : {',', ';', '\t'}) {
        std::size_t columns = 0;
        const std::size_t inputs = CountInputs(firstLine, separator, columns);
        if (inputs > mostInputs || (inputs == mostInputs && columns > mostColumns)) {
            best = separator;
            mostInputs = inputs;
            mostColumns = columns;
        }
    }
    return best;
}

} // namespace Ledgrove
