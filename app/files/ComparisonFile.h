#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "engine/Host.h"
#include "engine/Session.h"

// A comparison as a file: the inputs of the main screen, in the format that `ledgrove-cli compare` reads.
namespace Ledgrove {

inline constexpr std::string_view ComparisonSuffix = ".ledgrove.json";

/// The screen's inputs as one JSON object, a line each, in the order in which they are entered.
std::string ComparisonText(const MainScreen& screen);

/// Puts the inputs back to those of `start`, a session as it was after loading, and recalculates. Tables,
/// settings and the report header stay, and so does the shown tab.
void NewComparison(Session& session, const Session& start, Host& host);

/// Reads a comparison into the session, on top of `start` as above, and shows what notices it gives. A
/// sentence when the file cannot be read or holds something else; the session is then as it was.
std::optional<std::string> OpenComparison(const std::filesystem::path& file, Session& session,
                                          const Session& start, Host& host);

} // namespace Ledgrove
