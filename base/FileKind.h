#pragma once

#include <filesystem>
#include <string>

namespace Ledgrove {

/// Why an existing path cannot be used as a file: "it is a folder" or, for a pipe or a device, which might
/// never end, "it is not an ordinary file". Empty for an ordinary file, a link to one, and a path without a
/// file.
std::string NotAFile(const std::filesystem::path& path);

} // namespace Ledgrove
