#include "settings/SettingsFile.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Ledgrove {
namespace {

constexpr mode_t ordinaryMode = 0666; // less the user's umask

std::string Describe(int error) {
    return std::generic_category().message(error);
}

SettingsFault Fault(SettingsFault::Kind kind, const std::filesystem::path& path, int error) {
    return {kind, path, Describe(error), 0, {}};
}

/// A file descriptor that is closed at the latest when it leaves its scope.
class Descriptor {
public:
    Descriptor(const std::filesystem::path& path, int flags)
        : m_number(open(path.c_str(), flags | O_CLOEXEC, ordinaryMode)) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }

    /// The error of a failed close, otherwise 0: what was written may get lost there too.
    int Close() {
        const int number = m_number;
        m_number = -1;
        return number >= 0 && close(number) != 0 ? errno : 0;
    }

private:
    int m_number;
};

/// The error, or 0 at the end of the file.
int ReadAll(int number, std::string& bytes) {
    std::array<char, 65536> buffer;
    while (true) {
        const ssize_t count = read(number, buffer.data(), buffer.size());
        if (count == 0)
            return 0;
        if (count > 0)
            bytes.append(buffer.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return errno;
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

/// A pipe or a device has no end to wait for.
bool IsOrdinaryFile(int number) {
    struct stat status {};
    return fstat(number, &status) == 0 && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

} // namespace

FileLines SplitLines(std::string_view bytes) {
    FileLines lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find_first_of("\r\n");
        if (end == std::string_view::npos) {
            lines.push_back({std::string(bytes), {}});
            break;
        }
        const std::size_t endLength = bytes.substr(end, 2) == "\r\n" ? 2 : 1;
        lines.push_back({std::string(bytes.substr(0, end)), std::string(bytes.substr(end, endLength))});
        bytes.remove_prefix(end + endLength);
    }
    return lines;
}

SettingsFile::SettingsFile(const std::filesystem::path& folder) {
    // A full path holds even if the current folder changes, and sentences can name it.
    std::error_code error;
    std::filesystem::path full = std::filesystem::absolute(folder.empty() ? "." : folder, error);
    if (error)
        full = folder;
    // Only "." goes: taking ".." out of a path would be wrong behind a symbolic link.
    std::filesystem::path plain;
    for (const std::filesystem::path& part : full) {
        if (part != ".")
            plain /= part;
    }
    m_path = plain / "Ledgrove.ini";
    m_temporaryPath = plain / "Pennaro2.INI";
}

Outcome<FileLines> SettingsFile::ReadLines(WhenMissing whenMissing) const {
    // Without O_NONBLOCK a pipe of this name would keep the program waiting.
    const Descriptor file(m_path, O_RDONLY | O_NONBLOCK);
    if (!file.IsOpen()) {
        const SettingsFault fault = OpenFault(errno);
        if (fault.What != SettingsFault::Kind::Missing || whenMissing == WhenMissing::Fail)
            return fault;
        if (const auto failed = CreateEmpty())
            return *failed;
        return ReadLines(WhenMissing::Fail);
    }
    if (!IsOrdinaryFile(file.Number()))
        return SettingsFault{SettingsFault::Kind::Unreadable, m_path, "not an ordinary file", 0, {}};
    std::string bytes;
    if (const int error = ReadAll(file.Number(), bytes))
        return Fault(SettingsFault::Kind::Unreadable, m_path, error);
    return SplitLines(bytes);
}

SettingsFault SettingsFile::OpenFault(int error) const {
    if (error != ENOENT)
        return Fault(SettingsFault::Kind::Unreadable, m_path, error);
    struct stat status {};
    if (lstat(m_temporaryPath.c_str(), &status) == 0)
        return {SettingsFault::Kind::InterruptedSave, m_temporaryPath, {}, 0, {}};
    return Fault(SettingsFault::Kind::Missing, m_path, error);
}

std::optional<SettingsFault> SettingsFile::CreateEmpty() const {
    // No O_TRUNC: a file that another program has put there meanwhile keeps its content.
    Descriptor file(m_path, O_WRONLY | O_CREAT);
    if (!file.IsOpen())
        return Fault(SettingsFault::Kind::Unwritable, m_path, errno);
    if (const int error = file.Close())
        return Fault(SettingsFault::Kind::Unwritable, m_path, error);
    return std::nullopt;
}

std::optional<SettingsFault> SettingsFile::WriteTemporary(std::string_view bytes) const {
    Descriptor file(m_temporaryPath, O_WRONLY | O_CREAT | O_TRUNC);
    if (!file.IsOpen())
        return Fault(SettingsFault::Kind::Unwritable, m_temporaryPath, errno);
    const int writeError = WriteAll(file.Number(), bytes);
    const int closeError = file.Close();
    const int error = writeError != 0 ? writeError : closeError;
    if (error == 0)
        return std::nullopt;
    unlink(m_temporaryPath.c_str());
    return Fault(SettingsFault::Kind::Unwritable, m_temporaryPath, error);
}

std::optional<SettingsFault> SettingsFile::ReplaceContent(std::string_view bytes) const {
    if (auto failed = WriteTemporary(bytes))
        return failed;
    // Gone already is as good as deleted; removing the temporary file then would lose everything.
    if (unlink(m_path.c_str()) != 0 && errno != ENOENT) {
        const int error = errno;
        unlink(m_temporaryPath.c_str());
        return Fault(SettingsFault::Kind::Unwritable, m_path, error);
    }
    // From here to the end of the rename only the temporary file holds the settings: it must stay whatever
    // happens.
    if (std::rename(m_temporaryPath.c_str(), m_path.c_str()) != 0)
        return Fault(SettingsFault::Kind::InterruptedSave, m_temporaryPath, errno);
    return std::nullopt;
}

} // namespace Ledgrove
