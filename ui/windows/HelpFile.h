#pragma once

#include <QString>
#include <filesystem>
#include <optional>
#include <string>

namespace Ledgrove {

/// The path of the help file: `name` in `folder`.
QString HelpFilePath(const std::filesystem::path& folder, const std::string& name);

/// A message that says why there is no help, with the file's name and folder; nothing if the file holds
/// readable text.
std::optional<std::string> HelpComplaint(const std::filesystem::path& folder, const std::string& name);

} // namespace Ledgrove
