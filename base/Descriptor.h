#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/types.h>

// System calls on file descriptors. Errors are errno values, 0 for success. A call that a signal interrupts
// is repeated.
namespace Ledgrove {

/// Owns a file descriptor and closes it at the end of its scope.
class Descriptor {
public:
    /// `mode` only matters if the call creates the file.
    Descriptor(const std::filesystem::path& path, int flags, mode_t mode = 0);
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }
    /// The error of the call that opened the file, 0 if it succeeded.
    int OpenError() const { return m_openError; }

    /// Returns the error: some file systems report a failed write only when the file is closed.
    int Close();

private:
    int m_number;
    int m_openError;
};

/// The result of one read. `Bytes` is 0 at the end of the input and after an error.
struct ReadCount {
    std::size_t Bytes = 0;
    int Error = 0;
};

/// Reads up to `size` bytes into `buffer`. Returns as soon as any bytes are available.
ReadCount ReadSome(int number, char* buffer, std::size_t size);

/// Appends the rest of the input to `bytes`. Fails with EFBIG once `bytes` holds more than `most` bytes.
int ReadAll(int number, std::string& bytes, std::size_t most);

/// Writes all of `bytes`, in several steps if necessary. Fails with EIO if a step writes nothing and reports
/// no error.
int WriteAll(int number, std::string_view bytes);

/// Flushes a file's data or a folder's entries to the disk.
int Sync(int number);

} // namespace Ledgrove
