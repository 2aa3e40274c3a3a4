#include "settings/SettingsText.h"

#include "base/Text.h"
#include "engine/NumberText.h"
#include "settings/AssumptionsFile.h"
#include "settings/HeaderSettings.h"
#include "settings/LineSyntax.h"
#include "settings/NotesFile.h"
#include "settings/ValueRules.h"
#include "settings/Windows1252.h"
#include "settings/YearSettingsFile.h"

#include <algorithm>
#include <array>
#include <variant>
#include <vector>

namespace Ledgrove {
namespace {

constexpr std::array listKeys = {Key::TaxCat, Key::LoanType, Key::HomeList};

constexpr std::array assumptionKeys = {Key::RealEstateTax, Key::Insurance,   Key::PVRate,   Key::PVTerm,
                                       Key::PVFlag,        Key::YearsInHome, Key::PMIMult1, Key::PMIMult2,
                                       Key::PMIMult3,      Key::PMIMult4};

constexpr std::array otherKeys = {Key::BuilderName, Key::LogoFile, Key::LogoOption,         Key::HelpFile,
                                  Key::Feature1,    Key::Feature2, Key::HomeSelectionDialog};

template <typename Keys>
bool Contains(const Keys& keys, std::string_view key) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

/// The first known key that `matches` accepts.
template <typename Predicate>
std::optional<std::string_view> FindKnownKey(Predicate matches) {
    const auto keys = KnownKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), matches);
    return found == keys.end() ? std::nullopt : std::optional(*found);
}

/// A known key that begins with this one and is longer. Every line that begins with a key belongs to it.
std::optional<std::string_view> LongerKey(std::string_view key) {
    return FindKnownKey(
        [&](std::string_view known) { return known.size() > key.size() && known.starts_with(key); });
}

std::string ListText(const FileLines& lines, std::string_view key) {
    std::string text;
    bool isFirst = true;
    for (const FileLine& line : lines) {
        if (!BelongsTo(line.Text, key))
            continue;
        if (!isFirst)
            text += '\n';
        isFirst = false;
        text += DecodeWindows1252(ValueOf(line.Text, key));
    }
    return text;
}

Outcome<std::string> AssumptionText(const SettingsFile& file, const FileLines& lines, std::string_view key) {
    AssumptionSet assumptions;
    const std::optional<std::size_t> end = Module1::ReadAssumptions(lines, assumptions);
    const std::optional<std::size_t> line = LastLineOf(lines, key);
    if (end && line && *line >= *end)
        return BadLine(file, lines, *end, "not a number; no assumption is read from that line on");
    if (key == Key::PVFlag)
        return std::string(assumptions.UsePVVars ? "TRUE" : "FALSE");
    if (key == Key::YearsInHome)
        return std::to_string(assumptions.YearsInHome);
    if (key == Key::PVRate && line &&
        !Module1::ReadNumber(Module1::StripPercent(ValueOf(lines[*line].Text, key))))
        return BadLine(file, lines, *line, "not a number; the rate counts as 0");
    // The record holds the rate as a fraction. Reading the line directly keeps every digit.
    const std::string value = line ? Module1::StripPercent(ValueOf(lines[*line].Text, key)) : "0";
    return Module1::ShortestText(ToSingle(value).value_or(0.0f));
}

Outcome<std::string> FeatureText(const SettingsFile& file, std::string FeatureTexts::*feature) {
    FeatureTexts features;
    if (const auto fault = Module1::GetFeatures(file, features))
        return *fault;
    return features.*feature;
}

Outcome<std::string> LogoOptionText(const SettingsFile& file) {
    const Outcome<std::int16_t> option = Module1::GetLogoOption(file);
    if (!option)
        return option.Fault();
    return std::to_string(*option);
}

Outcome<std::string> LastValue(const SettingsFile& file, const FileLines& lines, std::string_view key) {
    const SettingsFault missing{SettingsFault::Kind::MissingKey, file.Path(), {}, 0, std::string(key)};
    const auto encoded = EncodeWindows1252(key);
    const auto* bytes = std::get_if<std::string>(&encoded);
    if (key.empty() || bytes == nullptr)
        return missing;
    const std::optional<std::size_t> line = LastLineOf(lines, *bytes);
    if (!line)
        return missing;
    return DecodeWindows1252(ValueOf(lines[*line].Text, *bytes));
}

std::optional<std::string> CheckText(std::string_view what, std::string_view text) {
    if (text.find_first_of("\r\n") != std::string_view::npos)
        return "The " + std::string(what) +
               " contains a line break. A setting is one line; remove the break.";
    const auto encoded = EncodeWindows1252(text);
    if (const auto* character = std::get_if<UnencodableCharacter>(&encoded))
        return "The " + std::string(what) + " contains " + character->Name +
               ", which the settings file's character set (Windows-1252) does not have. Use another "
               "character.";
    return std::nullopt;
}

} // namespace

std::vector<std::string_view> KnownKeys() {
    std::vector<std::string_view> keys(listKeys.begin(), listKeys.end());
    keys.insert(keys.end(), assumptionKeys.begin(), assumptionKeys.end());
    for (const YearSetting& setting : YearSettingTable)
        keys.push_back(setting.Key);
    keys.insert(keys.end(), otherKeys.begin(), otherKeys.end());
    for (const NotedKey& key : NotedKeys)
        keys.push_back(key.Note);
    return keys;
}

Outcome<std::string> SettingText(const SettingsFile& file, std::string_view key) {
    // Reads the file first, so that no reader below creates a missing file.
    const Outcome<FileLines> lines = file.ReadLines();
    if (!lines)
        return lines.Fault();
    if (key == Key::BuilderName)
        return Module1::GetBuilderName(file);
    if (key == Key::LogoFile)
        return Module1::GetLogoFile(file);
    if (key == Key::LogoOption)
        return LogoOptionText(file);
    if (key == Key::HelpFile)
        return Module1::GetHelpFile(file);
    if (key == Key::Feature1)
        return FeatureText(file, &FeatureTexts::Feature1);
    if (key == Key::Feature2)
        return FeatureText(file, &FeatureTexts::Feature2);
    if (Contains(assumptionKeys, key))
        return AssumptionText(file, *lines, key);
    if (const YearSetting* const setting = FindYearSetting(key))
        return Module1::YearSettingText(file, *lines, *setting);
    if (Contains(listKeys, key))
        return ListText(*lines, key);
    return LastValue(file, *lines, key);
}

std::optional<std::string> CheckGetRequest(std::string_view key) {
    if (const auto longer = LongerKey(key))
        return "The key " + Quoted(key) + " is only the beginning of " + Quoted(*longer) +
               ". Give the whole key.";
    return std::nullopt;
}

std::optional<std::string> CheckSetRequest(std::string_view key, std::string_view value,
                                           UnknownKeys unknown) {
    if (key.empty())
        return "The key is empty. Give the name of the setting to change, for example BUILDERNAME.";
    if (auto refusal = CheckText("key", key))
        return refusal;
    if (key.find('=') != std::string_view::npos)
        return "The key " + Quoted(key) +
               " contains \"=\", which ends a key. Give the key and its value separately.";
    if (Contains(listKeys, key))
        return "The key " + Quoted(key) +
               " has one line for each item of a list, so setting it would make all the lines the same. "
               "Change the list in the Ledgrove window or in the file.";
    if (const auto longer = LongerKey(key))
        return "The key " + Quoted(key) + " is only the beginning of " + Quoted(*longer) +
               ", whose lines it would overwrite. Give the whole key.";
    const auto shorter = FindKnownKey(
        [&](std::string_view known) { return known.size() < key.size() && key.starts_with(known); });
    if (shorter)
        return "The key " + Quoted(key) + " begins with " + Quoted(*shorter) +
               ", so its line would be read as that setting. Use another name.";
    const bool isKnown = FindKnownKey([&](std::string_view known) { return known == key; }).has_value();
    if (!isKnown && unknown == UnknownKeys::Refused)
        return "The key " + Quoted(key) +
               " is not a setting of Ledgrove. Check the spelling (keys are upper case), or add --force to "
               "write it all the same.";
    if (auto refusal = CheckText("value", value))
        return refusal;
    return CheckValue(key, value);
}

} // namespace Ledgrove
