#pragma once

#include "settings/SettingsFile.h"

#include <optional>
#include <string>
#include <string_view>

// The settings file by key and text, for scripts.
namespace Ledgrove {

/// The key's value as its reader gives it, default and trimming included, UTF-8. Numbers are plain and in the
/// file's unit, so that they can be written back as they stand. A list key gives all its lines' values,
/// joined by line feeds; a key of no reader the value of its last line. Unlike some readers it never creates
/// a missing file.
Outcome<std::string> SettingText(const SettingsFile& file, std::string_view key);

/// Why WriteSetting must not be asked for this: a sentence for the user, empty where nothing speaks against
/// it.
std::optional<std::string> CheckSetRequest(std::string_view key, std::string_view value);

} // namespace Ledgrove
