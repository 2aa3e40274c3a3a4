#pragma once

#include "base/Descriptor.h"

#include <chrono>
#include <filesystem>

namespace Ledgrove {

/// Keeps copies of the program apart while they use a folder's files, without a file of its own; the system
/// lets go of it when its owner ends, however that ends. Where the file system knows no locks there is none,
/// and the program works as if it were alone.
class FolderLock {
public:
    enum class Sharing { Shared, Exclusive };
    enum class State {
        Held,
        Busy,        ///< others kept the lock all the time
        Unsupported, ///< the file system knows no locks
        NoFolder     ///< the folder cannot be opened
    };

    /// Waits for the lock as long as `patience`. A lock held by this process elsewhere is another's too.
    FolderLock(const std::filesystem::path& folder, Sharing sharing, std::chrono::milliseconds patience);

    State What() const { return m_state; }

    /// Brings the folder's entries to the disk. No fault on file systems that know nothing of the kind, nor
    /// in a folder that may not be opened.
    int SyncFolder() const;

private:
    Descriptor m_folder;
    State m_state;
};

} // namespace Ledgrove
