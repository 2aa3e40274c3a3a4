#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/types.h>

// System calls on file descriptors with their errors. Every error is an errno; 0 is none. A call that a
// signal interrupts is made again.
namespace Ledgrove {

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

/// What one read gave: the number of bytes, 0 at the end and after an error.
struct ReadCount {
    std::size_t Bytes = 0;
    int Error = 0;
};

/// Reads at most `size` bytes into `buffer`, as many as there are now.
ReadCount ReadSome(int number, char* buffer, std::size_t size);

/// Appends all that can be read to `bytes`. More than `most` bytes are EFBIG.
int ReadAll(int number, std::string& bytes, std::size_t most);

/// Writes all of `bytes`, in as many steps as the system takes. A step that writes nothing and gives no error
/// is EIO.
int WriteAll(int number, std::string_view bytes);

/// Brings what was written, or a folder's entries, to the disk.
int Sync(int number);

} // namespace Ledgrove
