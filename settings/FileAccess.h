#pragma once

#include <filesystem>

// What stands at a path. Every error is an errno; 0 is none.
namespace Ledgrove {

/// The file that `path` leads to when every link of its last part is followed, whether that file is there or
/// not.
std::filesystem::path FollowLinks(const std::filesystem::path& path);

enum class Presence { Present, Absent, Unknown };

/// Whether something of this name, be it a link to nothing, is there. `error` says why it is unknown.
Presence PresenceOf(const std::filesystem::path& path, int& error);

} // namespace Ledgrove
