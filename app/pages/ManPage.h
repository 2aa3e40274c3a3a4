#pragma once

#include <string>
#include <string_view>

namespace Ledgrove {

/// The manual page of a program of the command table, "ledgrove" or "ledgrove-cli", for section 1, with all
/// its commands. `date` is the release date, "2026-01-31".
std::string ManPage(std::string_view program, std::string_view version, std::string_view date);

} // namespace Ledgrove
