#include "settings/FileAccess.h"

#include <array>
#include <cerrno>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

namespace Ledgrove {

std::string Describe(int error) {
    return std::generic_category().message(error);
}

Descriptor::Descriptor(const std::filesystem::path& path, int flags, mode_t mode)
    : m_number(-1)
    , m_openError(0) {
    do {
        m_number = open(path.c_str(), flags | O_CLOEXEC, mode);
        m_openError = m_number < 0 ? errno : 0;
    } while (m_openError == EINTR);
}

int Descriptor::Close() {
    const int number = m_number;
    m_number = -1;
    // After EINTR the descriptor is closed all the same; a second close could meet another file's.
    return number >= 0 && close(number) != 0 && errno != EINTR ? errno : 0;
}

int ReadAll(int number, std::string& bytes, std::size_t most) {
    std::array<char, 65536> buffer;
    while (true) {
        const ssize_t count = read(number, buffer.data(), buffer.size());
        if (count == 0)
            return 0;
        if (count < 0 && errno != EINTR)
            return errno;
        if (count > 0)
            bytes.append(buffer.data(), static_cast<std::size_t>(count));
        if (bytes.size() > most)
            return EFBIG;
    }
}

int WriteAll(int number, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(number, bytes.data(), bytes.size());
        if (count > 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (count == 0)
            return EIO; // no progress and no error: asking again could go on for ever
        else if (errno != EINTR)
            return errno;
    }
    return 0;
}

int Sync(int number) {
    while (fsync(number) != 0) {
        if (errno != EINTR)
            return errno;
    }
    return 0;
}

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
