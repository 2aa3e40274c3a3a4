#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Ledgrove {

/// The text that the settings file gets for this key: a number without blanks and percent sign; other values
/// as they are.
std::string StoredValue(std::string_view key, std::string_view value);

/// Why the program could not use this value of a known key, as a message for the user; empty if it can. The
/// readers' own conversions decide, within the range that makes sense for the key.
std::optional<std::string> CheckValue(std::string_view key, std::string_view value);

} // namespace Ledgrove
