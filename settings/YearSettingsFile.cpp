#include "settings/YearSettingsFile.h"

#include "base/Text.h"
#include "engine/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Ledgrove {

namespace {

/// The shortest plain text of a number, which reads back as the same number.
std::string PlainNumber(double number) {
    std::array<char, 400> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed).ptr;
    return {text.data(), end};
}

/// With cents only if there are any.
std::string DollarsText(double amount) {
    const bool isWhole = amount == std::floor(amount);
    return Module1::FormatPicture(amount, isWhole ? "$#,###,###,##0" : "$#,###,###,##0.00");
}

} // namespace

const YearSetting* FindYearSetting(std::string_view key) {
    const auto* const found = std::find_if(YearSettingTable.begin(), YearSettingTable.end(),
                                           [key](const YearSetting& setting) { return setting.Key == key; });
    return found == YearSettingTable.end() ? nullptr : found;
}

std::optional<double> ReadYearValue(const YearSetting& setting, std::string_view value) {
    std::string_view text = Trimmed(value);
    if (setting.IsPercent()) {
        if (text.find(',') != std::string_view::npos)
            return std::nullopt;
        if (text.ends_with('%'))
            text.remove_suffix(1);
    }
    const std::optional<double> number = Module1::ReadNumber(text);
    if (!number || !(*number >= setting.Least && *number <= setting.Most))
        return std::nullopt;
    return number;
}

std::string DefaultYearText(const YearSetting& setting) {
    return PlainNumber(YearSettings().*setting.Value * setting.Divisor);
}

std::string ShownYearValue(const YearSetting& setting, const YearSettings& settings) {
    const double number = settings.*setting.Value * setting.Divisor;
    if (setting.IsPercent())
        return Module1::FormatPicture(number, "0.00######") + '%';
    return DollarsText(number);
}

std::string WantedYearValue(const YearSetting& setting) {
    if (setting.IsPercent())
        return "a percentage from " + PlainNumber(setting.Least) + " to " + PlainNumber(setting.Most);
    return "an amount from " + DollarsText(setting.Least) + " to " + DollarsText(setting.Most);
}

} // namespace Ledgrove

namespace Ledgrove::Module1 {

namespace {

/// The number of the key's last line; empty without a line that can be used.
std::optional<double> NumberIn(const FileLines& lines, const YearSetting& setting) {
    const auto line = LastLineOf(lines, setting.Key);
    return line ? ReadYearValue(setting, ValueOf(lines[*line].Text, setting.Key)) : std::nullopt;
}

std::string WithoutSigns(std::string text) {
    std::erase_if(text, [](char c) { return c == '%' || c == '$' || c == ','; });
    return text;
}

} // namespace

YearSettings ReadYearSettings(const FileLines& lines) {
    YearSettings settings;
    for (const YearSetting& setting : YearSettingTable) {
        if (const auto number = NumberIn(lines, setting))
            settings.*setting.Value = *number / setting.Divisor;
    }
    return settings;
}

std::optional<SettingsFault> LoadYearSettings(const SettingsFile& file, YearSettings& settings) {
    const Outcome<FileLines> lines = file.ReadLines();
    if (!lines)
        return lines.Fault();
    settings = ReadYearSettings(*lines);
    return std::nullopt;
}

std::optional<SettingsFault> WriteYearSettings(SettingsDraft& draft,
                                               std::span<const YearSettingEntry> texts) {
    RewritePlan plan;
    for (const YearSettingEntry& text : texts)
        plan.Rules.push_back(ReplaceOrAppend(text.Setting->Key, WithoutSigns(text.Text)));
    return draft.Apply(std::move(plan));
}

Outcome<std::string> YearSettingText(const SettingsFile& file, const FileLines& lines,
                                     const YearSetting& setting) {
    const auto line = LastLineOf(lines, setting.Key);
    if (!line)
        return DefaultYearText(setting);
    if (const auto number = NumberIn(lines, setting))
        return PlainNumber(*number);
    return BadLine(file, lines, *line,
                   "not " + WantedYearValue(setting) + "; " + DefaultYearText(setting) + " is in force");
}

} // namespace Ledgrove::Module1
