#pragma once

#include <filesystem>
#include <string>

// The commands of `ledgrove-cli settings`. Each writes its result to standard output or a message to standard
// error, and returns the exit status.
namespace Ledgrove {

/// Prints the value of a key as the program reads it; for a list key, all its lines.
int PrintSetting(const std::filesystem::path& folder, const std::string& key);

/// Replaces every line of the key; if there is none, appends one.
int ChangeSetting(const std::filesystem::path& folder, const std::string& key, const std::string& value);

/// Prints the saved house scenarios as CSV with a heading row.
int PrintHouses(const std::filesystem::path& folder);

} // namespace Ledgrove
