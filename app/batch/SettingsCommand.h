#pragma once

#include <filesystem>
#include <string>

#include "settings/SettingsText.h"

// The commands of `ledgrove-cli settings`. Each writes its result to standard output or a message to standard
// error, and returns the exit status.
namespace Ledgrove {

/// Prints the value of a key as the program reads it; for a list key, all its lines.
int PrintSetting(const std::filesystem::path& folder, const std::string& key);

/// Replaces every line of the key; if there is none, appends one. A value that the program cannot use is
/// refused, and so is an unknown key unless it is accepted.
int ChangeSetting(const std::filesystem::path& folder, const std::string& key, const std::string& value,
                  UnknownKeys unknown = UnknownKeys::Refused);

/// Prints a sentence for each line of the settings file that the program cannot use.
int PrintSettingsCheck(const std::filesystem::path& folder);

/// The same on standard error, for the other commands, which go on with what is in force.
void WarnOfSettings(const std::filesystem::path& folder);

/// Prints the saved house scenarios as CSV with a heading row.
int PrintHouses(const std::filesystem::path& folder);

} // namespace Ledgrove
