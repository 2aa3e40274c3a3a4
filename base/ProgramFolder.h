#pragma once

#include <filesystem>

namespace Ledgrove {

/// The folder of the running executable, which holds its settings and pictures. If the system does not report
/// it, the current folder; empty if that folder no longer exists.
std::filesystem::path ProgramFolder();

} // namespace Ledgrove
