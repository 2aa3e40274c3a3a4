#pragma once

#include "engine/Session.h"
#include "settings/SettingsFile.h"
#include "settings/Windows1252.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The report header, the two additional features and the help file's name.
namespace Ledgrove::Module1 {

/// Trimmed; "Partner Name" if the key is missing.
Outcome<std::string> GetBuilderName(const SettingsFile& file);

/// Full path of the user's logo picture, trimmed; empty if the key is missing.
Outcome<std::string> GetLogoFile(const SettingsFile& file);

/// Index of the logo option (0 none, 1 generic house, 2 user's logo), rounded down. There is no default: a
/// missing key, or a text that is not a 16-bit number, is a fault.
Outcome<std::int16_t> GetLogoOption(const SettingsFile& file);

/// File name, trimmed; empty if the key is missing.
Outcome<std::string> GetHelpFile(const SettingsFile& file);

/// The texts with all their blanks; one blank for a missing key. A missing settings file is created empty. On
/// a fault the features get their defaults.
std::optional<SettingsFault> GetFeatures(const SettingsFile& file, FeatureTexts& features);

/// The first character of a builder name that the settings file cannot hold; nothing if it can hold them all.
/// Such a name lasts only for the run.
std::optional<UnencodableCharacter> UnkeepableCharacter(std::string_view builderName);

/// Reads builder name and logo file into the header. The header keeps its own logo file if the file gives
/// none, and its own builder name if the file cannot hold it.
std::optional<SettingsFault> LoadReportHeader(const SettingsFile& file, ReportHeader& header);

/// The texts that the options dialog saves: its two fields, and the builder name and logo file of the print
/// options dialog.
struct OptionsTexts {
    std::string Feature1;
    std::string Feature2;
    std::string BuilderName;
    std::string LogoFile;
};

/// Replaces or appends the features and always appends builder name and logo file, so each save adds two
/// lines to the file. The last line of a key counts. A builder name that the file cannot hold is left out.
std::optional<SettingsFault> WriteOptions(const SettingsFile& file, const OptionsTexts& texts);

/// The values that the print options dialog saves.
struct PrintOptionsTexts {
    std::string Feature1;
    std::string Feature2;
    std::string BuilderName;
    int LogoOption = 0; ///< index of the logo option
    std::string LogoFile;
};

/// Replaces or appends each key, except that the logo option is saved only if the file has a line for it. The
/// lines of the builder name stay as they are if the file cannot hold the new one.
std::optional<SettingsFault> WritePrintOptions(const SettingsFile& file, const PrintOptionsTexts& texts);

/// Every line of the key becomes "KEY=value"; if there is none, the line is appended. The key must not be
/// empty, because an empty key matches every line.
std::optional<SettingsFault> WriteSetting(const SettingsFile& file, std::string_view key,
                                          std::string_view value);

} // namespace Ledgrove::Module1
