#pragma once

#include <filesystem>
#include <string>

// The verbs of `ledgrove-cli settings`. Each writes its result to standard output, or a sentence to standard
// error, and gives the exit status.
namespace Ledgrove {

/// The key's value as its reader gives it; all lines of a list key.
int PrintSetting(const std::filesystem::path& folder, const std::string& key);

/// Replaces every line of the key, or appends one.
int ChangeSetting(const std::filesystem::path& folder, const std::string& key, const std::string& value);

/// The saved house scenarios as CSV with a heading row.
int PrintHouses(const std::filesystem::path& folder);

} // namespace Ledgrove
