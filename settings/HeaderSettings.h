#pragma once

#include "engine/Session.h"
#include "settings/SettingsFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The report header, the two additional features and the help file's name.
namespace Ledgrove::Module1 {

/// Without blanks at its ends; "Partner Name" where the key is missing.
Outcome<std::string> GetBuilderName(const SettingsFile& file);

/// Full path of the user's logo picture, without blanks at its ends; empty where the key is missing.
Outcome<std::string> GetLogoFile(const SettingsFile& file);

/// Index of the logo choice (0 none, 1 generic house, 2 user's logo), rounded down. A missing key and a text
/// that is no 16-bit number are faults: there is no default.
Outcome<std::int16_t> GetLogoOption(const SettingsFile& file);

/// File name, without blanks at its ends; empty where the key is missing.
Outcome<std::string> GetHelpFile(const SettingsFile& file);

/// The texts with all their blanks, one blank for a missing key. A missing settings file is created empty. On
/// a fault the features are the defaults.
std::optional<SettingsFault> GetFeatures(const SettingsFile& file, FeatureTexts& features);

/// Reads builder name and logo file into the header, which keeps its logo file where none is named.
std::optional<SettingsFault> LoadReportHeader(const SettingsFile& file, ReportHeader& header);

/// What the options dialog saves: its two fields, and builder name and logo file of the print options dialog.
struct OptionsTexts {
    std::string Feature1;
    std::string Feature2;
    std::string BuilderName;
    std::string LogoFile;
};

/// Replaces or appends the features and always appends builder name and logo file, so the file grows by two
/// lines at each save; the last line of a key is the one that counts.
std::optional<SettingsFault> WriteOptions(const SettingsFile& file, const OptionsTexts& texts);

/// What the print options dialog saves.
struct PrintOptionsTexts {
    std::string Feature1;
    std::string Feature2;
    std::string BuilderName;
    int LogoOption = 0; ///< selected index of the logo choice
    std::string LogoFile;
};

/// Replaces or appends each key, except that the logo choice is saved only where the file has a line for it.
std::optional<SettingsFault> WritePrintOptions(const SettingsFile& file, const PrintOptionsTexts& texts);

/// Every line of the key becomes "KEY=value"; without one, that line is appended. The key must not be empty,
/// which would belong to every line.
std::optional<SettingsFault> WriteSetting(const SettingsFile& file, std::string_view key,
                                          std::string_view value);

} // namespace Ledgrove::Module1
