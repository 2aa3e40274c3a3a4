#pragma once

#include <filesystem>

namespace Ledgrove {

/// The folder of the running executable, where its settings and pictures lie.
std::filesystem::path ProgramFolder();

} // namespace Ledgrove
