#pragma once

#include <filesystem>

namespace Ledgrove {

/// The folder of the running executable, where its settings and pictures lie. The current folder where the
/// system does not say; empty where that is gone, too.
std::filesystem::path ProgramFolder();

} // namespace Ledgrove
