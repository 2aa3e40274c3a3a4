#include "settings/TaxScheduleFile.h"

#include "base/Text.h"
#include "engine/NumberText.h"
#include "settings/LineSyntax.h"
#include "settings/Rewrite.h"

#include <string_view>
#include <vector>

namespace Ledgrove::Module1 {
namespace {

/// Stores the next field of the line; false if its text is not a number. A missing field is skipped.
bool StoreNext(FieldSplitter& fields, float& target) {
    const std::optional<std::string_view> text = fields.Next();
    if (!text)
        return true;
    const std::optional<float> number = ToSingle(*text);
    if (!number)
        return false;
    target = *number;
    return true;
}

constexpr float openHighEnd = -1;

std::string TaxCatLine(float highEnd, std::string_view rate) {
    return SettingLine(Key::TaxCat, ShortestText(highEnd) + ',' + StripPercent(rate));
}

} // namespace

std::optional<SettingsFault> LoadTaxCats(const SettingsFile& file, TaxSchedule& schedule) {
    const Outcome<FileLines> lines = file.ReadLines(SettingsFile::WhenMissing::CreateEmpty);
    if (!lines)
        return lines.Fault();
    ReadTaxCats(*lines, schedule);
    return std::nullopt;
}

void ReadTaxCats(const FileLines& lines, TaxSchedule& schedule) {
    TaxSchedule read;
    for (const FileLine& line : lines) {
        if (!BelongsTo(line.Text, Key::TaxCat))
            continue;
        const float lowEnd = read.empty() ? -1.0f : read.back().HighEnd;
        TaxBracket& bracket = read.emplace_back();
        bracket.LowEnd = lowEnd;
        FieldSplitter fields(ValueOf(line.Text, Key::TaxCat));
        if (!StoreNext(fields, bracket.HighEnd) || !StoreNext(fields, bracket.Rate))
            break;
    }
    if (!read.empty())
        schedule = std::move(read);
}

std::optional<SettingsFault> WriteTaxCatsToFile(SettingsDraft& draft, const TaxRows& rows,
                                                const TaxSchedule& loaded) {
    RewriteRule rule{std::string(Key::TaxCat), RewriteRule::Match::ReplaceInTurn, {}, {}};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool isLast = i + 1 == (loaded.empty() ? rows.size() : loaded.size());
        const bool isHidden = isLast && Trimmed(rows[i].HighEnd).empty();
        const float hidden = loaded.empty() ? openHighEnd : loaded.back().HighEnd;
        const float highEnd = isHidden ? hidden : ParseFieldValue(rows[i].HighEnd, 1);
        rule.NewLines.push_back(TaxCatLine(highEnd, rows[i].Rate));
    }
    rule.AppendedWhenUnseen = rule.NewLines;
    RewritePlan plan;
    plan.Rules = {std::move(rule)};
    return draft.Apply(std::move(plan));
}

} // namespace Ledgrove::Module1
