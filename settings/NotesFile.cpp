#include "settings/NotesFile.h"

#include "base/Text.h"
#include "engine/NumberText.h"
#include "settings/LineSyntax.h"
#include "settings/Windows1252.h"
#include "settings/YearSettingsFile.h"

#include <charconv>

namespace Ledgrove {
namespace {

using std::chrono::year_month_day;

struct NoteParts {
    std::string_view Value;
    std::string_view Date;
    std::string_view Source; ///< may hold "|"
};

std::optional<NoteParts> PartsOf(std::string_view note) {
    const std::size_t first = note.find('|');
    if (first == std::string_view::npos)
        return std::nullopt;
    const std::size_t second = note.find('|', first + 1);
    if (second == std::string_view::npos)
        return std::nullopt;
    return NoteParts{Trimmed(note.substr(0, first)), Trimmed(note.substr(first + 1, second - first - 1)),
                     Trimmed(note.substr(second + 1))};
}

std::optional<unsigned> DigitsIn(std::string_view text, std::size_t at, std::size_t count) {
    unsigned number = 0;
    const char* const begin = text.data() + at;
    if (text.size() < at + count || std::from_chars(begin, begin + count, number).ptr != begin + count)
        return std::nullopt;
    return number;
}

/// The last day that a date may mean: of a year its end, of a month its end.
std::optional<year_month_day> LastDayOf(std::string_view date) {
    constexpr std::size_t yearSize = 4, monthSize = 7, daySize = 10;
    const bool hasMonth = date.size() == monthSize || date.size() == daySize;
    const bool hasDay = date.size() == daySize;
    if ((date.size() != yearSize && !hasMonth) || (hasMonth && date[yearSize] != '-') ||
        (hasDay && date[monthSize] != '-'))
        return std::nullopt;
    const auto year = DigitsIn(date, 0, yearSize);
    const auto month = hasMonth ? DigitsIn(date, yearSize + 1, 2) : std::optional(12U);
    const auto day = hasDay ? DigitsIn(date, monthSize + 1, 2) : std::optional(1U);
    if (!year || !month || !day)
        return std::nullopt;
    const std::chrono::year_month in =
        std::chrono::year(static_cast<int>(*year)) / std::chrono::month(*month);
    const year_month_day last = hasDay ? in / std::chrono::day(*day) : year_month_day(in / std::chrono::last);
    return last.ok() ? std::optional(last) : std::nullopt;
}

bool IsOlder(std::string_view date, year_month_day today) {
    const auto last = LastDayOf(date);
    return last && *last + std::chrono::years(2) < today;
}

/// The values of all lines of the key, joined by ";"; of a key without lines the value in force, if it has
/// one.
std::string ValueNow(const FileLines& lines, const NotedKey& key) {
    if (key.Key != Key::TaxCat && key.Key != Key::LoanType) {
        if (const auto line = LastLineOf(lines, key.Key))
            return std::string(Trimmed(ValueOf(lines[*line].Text, key.Key)));
        const YearSetting* const setting = FindYearSetting(key.Key);
        return setting ? DefaultYearText(*setting) : "";
    }
    std::string joined;
    for (const FileLine& line : lines) {
        if (BelongsTo(line.Text, key.Key))
            joined.append(joined.empty() ? "" : ";").append(Trimmed(ValueOf(line.Text, key.Key)));
    }
    return joined;
}

/// The text up to the next separator, which is cut off with it.
std::string_view CutField(std::string_view& rest) {
    const std::size_t end = rest.find_first_of(",;");
    const std::string_view field = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end);
    return field;
}

bool IsSameField(std::string_view a, std::string_view b) {
    const auto one = Module1::ReadStrippedNumber(a);
    const auto other = Module1::ReadStrippedNumber(b);
    return one && other ? *one == *other : Trimmed(a) == Trimmed(b);
}

/// Whether both hold the same, field by field; numbers may be written in different ways, "0.9" and "0.90%".
bool IsSameValue(std::string_view a, std::string_view b) {
    while (true) {
        if (!IsSameField(CutField(a), CutField(b)))
            return false;
        if (a.empty() || b.empty())
            return a.empty() && b.empty();
        if (a.front() != b.front())
            return false;
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
}

AssumptionNote ReadNoteOf(const FileLines& lines, const NotedKey& key, year_month_day today) {
    AssumptionNote note;
    const std::string value = ValueNow(lines, key);
    note.Key = key.Key;
    note.Value = DecodeWindows1252(value);
    const auto line = LastLineOf(lines, key.Note);
    note.IsNoted = line && IsNote(ValueOf(lines[*line].Text, key.Note));
    if (!note.IsNoted)
        return note;
    const NoteParts parts = *PartsOf(ValueOf(lines[*line].Text, key.Note));
    note.Date = std::string(parts.Date);
    note.Source = DecodeWindows1252(parts.Source);
    note.IsOwn = !IsSameValue(value, parts.Value);
    note.IsOld = !note.IsOwn && IsOlder(parts.Date, today);
    return note;
}

} // namespace

std::vector<AssumptionNote> ReadAllNotes(const FileLines& lines, std::chrono::year_month_day today) {
    std::vector<AssumptionNote> notes;
    for (const NotedKey& key : NotedKeys)
        notes.push_back(ReadNoteOf(lines, key, today));
    return notes;
}

std::vector<AssumptionNote> ReadNotes(const FileLines& lines, std::chrono::year_month_day today) {
    std::vector<AssumptionNote> notes = ReadAllNotes(lines, today);
    std::erase_if(notes, [](const AssumptionNote& note) { return !note.IsNoted; });
    return notes;
}

bool IsNote(std::string_view value) {
    const auto parts = PartsOf(value);
    return parts && (parts->Date.empty() || LastDayOf(parts->Date));
}

} // namespace Ledgrove
