#pragma once

#include <filesystem>

// Finds out what exists at a path. Errors are errno values, 0 for success.
namespace Ledgrove {

/// The path after following every link in its last part. The file at its end need not exist.
std::filesystem::path FollowLinks(const std::filesystem::path& path);

enum class Presence { Present, Absent, Unknown };

/// Whether anything with this name exists, even a link without a target. `error` is the reason if this is
/// unknown.
Presence PresenceOf(const std::filesystem::path& path, int& error);

} // namespace Ledgrove
