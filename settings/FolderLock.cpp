#include "settings/FolderLock.h"

#include <cerrno>
#include <thread>

#include <sys/file.h>

namespace Ledgrove {
namespace {

FolderLock::State Acquire(const Descriptor& folder, int operation, std::chrono::milliseconds patience) {
    using namespace std::chrono_literals;
    if (!folder.IsOpen())
        return FolderLock::State::NoFolder;
    // Polls, because a blocking flock call cannot time out; and polls often, because a copy that saves
    // repeatedly leaves only short gaps.
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (flock(folder.Number(), operation | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return FolderLock::State::Unsupported;
        if (std::chrono::steady_clock::now() >= deadline)
            return FolderLock::State::Busy;
        std::this_thread::sleep_for(1ms);
    }
    return FolderLock::State::Held;
}

} // namespace

FolderLock::FolderLock(const std::filesystem::path& folder, Sharing sharing,
                       std::chrono::milliseconds patience)
    : m_folder(folder, O_RDONLY | O_DIRECTORY)
    , m_state(Acquire(m_folder, sharing == Sharing::Shared ? LOCK_SH : LOCK_EX, patience)) {}

int FolderLock::SyncFolder() const {
    const int error = m_folder.IsOpen() ? Sync(m_folder.Number()) : m_folder.OpenError();
    const bool isUnknownThere =
        m_folder.IsOpen() ? error == EINVAL || error == ENOTSUP || error == ENOSYS : error == EACCES;
    return isUnknownThere ? 0 : error;
}

} // namespace Ledgrove
