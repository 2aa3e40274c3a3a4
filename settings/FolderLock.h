#pragma once

#include "base/Descriptor.h"

#include <chrono>
#include <filesystem>

namespace Ledgrove {

/// Prevents copies of the program from using a folder's files at the same time, without creating a lock file.
/// The system releases the lock when its owner ends, for whatever reason. On a file system without locks
/// there is no lock, and the program works as if it were alone.
class FolderLock {
public:
    enum class Sharing { Shared, Exclusive };
    enum class State {
        Held,
        Busy,        ///< others held the lock the whole time
        Unsupported, ///< the file system does not support locks
        NoFolder     ///< the folder cannot be opened
    };

    /// Waits up to `patience` for the lock. A lock that this process holds elsewhere also counts as taken.
    FolderLock(const std::filesystem::path& folder, Sharing sharing, std::chrono::milliseconds patience);

    State What() const { return m_state; }

    /// Flushes the folder's entries to disk. Not a fault on file systems that do not support it, or if the
    /// folder cannot be opened.
    int SyncFolder() const;

private:
    Descriptor m_folder;
    State m_state;
};

} // namespace Ledgrove
