#pragma once

#include "settings/SettingsFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Access to the settings file by key and text, for scripts.
namespace Ledgrove {

/// Every key that the program reads: the lists, the assumptions, the others, and the notes on the
/// assumptions.
std::vector<std::string_view> KnownKeys();

/// The key's value as the program reads it, trimmed and with its default, in UTF-8. Numbers are plain and in
/// the file's unit, so they can be written back unchanged. A list key gives the values of all its lines,
/// joined by line feeds; an unknown key gives the value of its last line. Unlike some readers, this never
/// creates a missing file.
Outcome<std::string> SettingText(const SettingsFile& file, std::string_view key);

/// The reason why a script must not read this key, as a message for the user; empty if it may.
std::optional<std::string> CheckGetRequest(std::string_view key);

enum class UnknownKeys { Refused, Accepted };

/// The reason why WriteSetting must not get this key and value, as a message for the user; empty if they are
/// valid. A value that the readers cannot use is refused.
std::optional<std::string> CheckSetRequest(std::string_view key, std::string_view value,
                                           UnknownKeys unknown = UnknownKeys::Refused);

} // namespace Ledgrove
