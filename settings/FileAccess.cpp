#include "settings/FileAccess.h"

#include <cerrno>
#include <system_error>

#include <sys/stat.h>

namespace Ledgrove {

std::filesystem::path FollowLinks(const std::filesystem::path& path) {
    constexpr int mostLinks = 40; // as many as the system follows
    std::filesystem::path file = path;
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code error;
        const std::filesystem::path target = std::filesystem::read_symlink(file, error);
        if (error)
            return file;
        file = file.parent_path() / target;
    }
    return path;
}

Presence PresenceOf(const std::filesystem::path& path, int& error) {
    struct stat status {};
    error = lstat(path.c_str(), &status) == 0 ? 0 : errno;
    if (error == 0)
        return Presence::Present;
    return error == ENOENT ? Presence::Absent : Presence::Unknown;
}

} // namespace Ledgrove
