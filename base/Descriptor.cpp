#include "base/Descriptor.h"

#include <array>
#include <cerrno>

#include <unistd.h>

namespace Ledgrove {

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
    // Linux closes the descriptor even if close returns EINTR. A second close could close another file.
    return number >= 0 && close(number) != 0 && errno != EINTR ? errno : 0;
}

ReadCount ReadSome(int number, char* buffer, std::size_t size) {
    while (true) {
        const ssize_t count = read(number, buffer, size);
        if (count >= 0)
            return {static_cast<std::size_t>(count), 0};
        if (errno != EINTR)
            return {0, errno};
    }
}

int ReadAll(int number, std::string& bytes, std::size_t most) {
    std::array<char, 65536> buffer;
    while (true) {
        const auto [count, error] = ReadSome(number, buffer.data(), buffer.size());
        if (count == 0)
            return error;
        bytes.append(buffer.data(), count);
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
            return EIO; // no progress and no error: repeating the call could loop forever
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

} // namespace Ledgrove
