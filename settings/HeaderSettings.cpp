#include "settings/HeaderSettings.h"

#include "base/Text.h"
#include "settings/LineSyntax.h"
#include "settings/Rewrite.h"

namespace Ledgrove::Module1 {
namespace {

Outcome<std::string> GetTrimmedText(const SettingsFile& file, std::string_view key,
                                    std::string_view whenMissing) {
    const Outcome<FileLines> lines = file.ReadLines();
    if (!lines)
        return lines.Fault();
    const std::optional<std::size_t> line = LastLineOf(*lines, key);
    if (!line)
        return std::string(whenMissing);
    return DecodeWindows1252(Trimmed(ValueOf((*lines)[*line].Text, key)));
}

} // namespace

Outcome<std::string> GetBuilderName(const SettingsFile& file) {
    return GetTrimmedText(file, Key::BuilderName, "Partner Name");
}

Outcome<std::string> GetLogoFile(const SettingsFile& file) {
    return GetTrimmedText(file, Key::LogoFile, "");
}

Outcome<std::int16_t> GetLogoOption(const SettingsFile& file) {
    const Outcome<FileLines> lines = file.ReadLines();
    if (!lines)
        return lines.Fault();
    const std::optional<std::size_t> line = LastLineOf(*lines, Key::LogoOption);
    if (!line)
        return SettingsFault{
            SettingsFault::Kind::MissingKey, file.Path(), {}, 0, std::string(Key::LogoOption)};
    const auto option = ToIntegerDown(Trimmed(ValueOf((*lines)[*line].Text, Key::LogoOption)));
    if (!option)
        return BadLine(file, *lines, *line, "the value is not a whole number");
    return *option;
}

Outcome<std::string> GetHelpFile(const SettingsFile& file) {
    return GetTrimmedText(file, Key::HelpFile, "");
}

std::optional<UnencodableCharacter> UnkeepableCharacter(std::string_view builderName) {
    const auto encoded = EncodeWindows1252(builderName);
    if (const auto* character = std::get_if<UnencodableCharacter>(&encoded))
        return *character;
    return std::nullopt;
}

std::optional<SettingsFault> LoadReportHeader(const SettingsFile& file, ReportHeader& header) {
    const auto logoFile = GetLogoFile(file);
    if (!logoFile)
        return logoFile.Fault();
    if (!logoFile->empty())
        header.LogoFile = *logoFile;
    const auto builderName = GetBuilderName(file);
    if (!builderName)
        return builderName.Fault();
    if (!UnkeepableCharacter(header.BuilderName))
        header.BuilderName = *builderName;
    return std::nullopt;
}

std::optional<SettingsFault> GetFeatures(const SettingsFile& file, FeatureTexts& features) {
    features = FeatureTexts{};
    const Outcome<FileLines> lines = file.ReadLines(SettingsFile::WhenMissing::CreateEmpty);
    if (!lines)
        return lines.Fault();
    if (const auto line = LastLineOf(*lines, Key::Feature1))
        features.Feature1 = DecodeWindows1252(ValueOf((*lines)[*line].Text, Key::Feature1));
    if (const auto line = LastLineOf(*lines, Key::Feature2))
        features.Feature2 = DecodeWindows1252(ValueOf((*lines)[*line].Text, Key::Feature2));
    return std::nullopt;
}

std::optional<SettingsFault> WriteOptions(const SettingsFile& file, const OptionsTexts& texts) {
    RewritePlan plan;
    plan.Rules = {ReplaceOrAppend(Key::Feature1, texts.Feature1),
                  ReplaceOrAppend(Key::Feature2, texts.Feature2)};
    if (!UnkeepableCharacter(texts.BuilderName))
        plan.AppendedAlways.push_back(SettingLine(Key::BuilderName, texts.BuilderName));
    plan.AppendedAlways.push_back(SettingLine(Key::LogoFile, texts.LogoFile));
    return Rewrite(file, plan);
}

std::optional<SettingsFault> WritePrintOptions(const SettingsFile& file, const PrintOptionsTexts& texts) {
    RewritePlan plan;
    plan.Rules = {ReplaceOrAppend(Key::Feature1, texts.Feature1),
                  ReplaceOrAppend(Key::Feature2, texts.Feature2)};
    if (!UnkeepableCharacter(texts.BuilderName))
        plan.Rules.push_back(ReplaceOrAppend(Key::BuilderName, texts.BuilderName));
    plan.Rules.push_back(ReplaceOnly(Key::LogoOption, std::to_string(texts.LogoOption)));
    plan.Rules.push_back(ReplaceOrAppend(Key::LogoFile, texts.LogoFile));
    return Rewrite(file, plan);
}

std::optional<SettingsFault> WriteSetting(const SettingsFile& file, std::string_view key,
                                          std::string_view value) {
    RewritePlan plan;
    plan.Rules = {ReplaceOrAppend(key, value)};
    return Rewrite(file, plan);
}

} // namespace Ledgrove::Module1
