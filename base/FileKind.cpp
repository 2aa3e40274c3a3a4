#include "base/FileKind.h"

#include <sys/stat.h>

namespace Ledgrove {

std::string NotAFile(const std::filesystem::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0 || S_ISREG(status.st_mode))
        return {};
    return S_ISDIR(status.st_mode) ? "it is a folder" : "it is not an ordinary file";
}

} // namespace Ledgrove
