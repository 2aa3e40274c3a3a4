#include "base/ProgramFolder.h"

#include <system_error>

namespace Ledgrove {

std::filesystem::path ProgramFolder() {
    std::error_code fault;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", fault);
    return fault ? std::filesystem::current_path(fault) : executable.parent_path();
}

} // namespace Ledgrove
