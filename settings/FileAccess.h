#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/types.h>

// System calls on files with their errors. Every error is an errno; 0 is none.
namespace Ledgrove {

/// The system's words for an error.
std::string Describe(int error);

/// A file descriptor that is closed at the latest when it leaves its scope.
class Descriptor {
public:
    /// `mode` counts for a file that is made.
    Descriptor(const std::filesystem::path& path, int flags, mode_t mode = 0);
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }
    /// Why it is not open.
    int OpenError() const { return m_openError; }

    /// What was written may get lost even here.
    int Close();

private:
    int m_number;
    int m_openError;
};

/// Appends all that can be read to `bytes`. More than `most` bytes are EFBIG.
int ReadAll(int number, std::string& bytes, std::size_t most);

/// Writes all of `bytes`, in as many steps as the system takes.
int WriteAll(int number, std::string_view bytes);

/// Brings what was written, or a folder's entries, to the disk.
int Sync(int number);

/// The file that `path` leads to when every link of its last part is followed, whether that file is there or
/// not.
std::filesystem::path FollowLinks(const std::filesystem::path& path);

enum class Presence { Present, Absent, Unknown };

/// Whether something of this name, be it a link to nothing, is there. `error` says why it is unknown.
Presence PresenceOf(const std::filesystem::path& path, int& error);

} // namespace Ledgrove
