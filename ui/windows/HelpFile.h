#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <string>

namespace Ledgrove {

/// Where the help file is looked for: `name` in `folder`.
QString HelpFilePath(const std::filesystem::path& folder, const std::string& name);

/// A sentence that says why there is no help, with the file's name and where it was looked for; nothing when
/// the file holds a text that can be read.
std::optional<std::string> HelpComplaint(const std::filesystem::path& folder, const std::string& name);

} // namespace Ledgrove
