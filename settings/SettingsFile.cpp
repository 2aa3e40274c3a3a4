#include "settings/SettingsFile.h"

#include "base/Descriptor.h"
#include "base/SystemError.h"
#include "settings/FileAccess.h"
#include "settings/FolderLock.h"
#include "settings/Replacement.h"

#include <cerrno>
#include <cstddef>
#include <system_error>
#include <thread>
#include <utility>

#include <sys/stat.h>

namespace Ledgrove {
namespace {

using namespace std::chrono_literals;
using Sharing = FolderLock::Sharing;

constexpr const char* temporaryName = "Pennaro2.INI";
constexpr mode_t ordinaryMode = 0666; // minus the user's umask
constexpr std::size_t longestFile = 64UL
                                    << 20UL; // far more than any settings need, and little enough for memory

SettingsFault Fault(SettingsFault::Kind kind, const std::filesystem::path& path, int error) {
    return {kind, path, Describe(error), 0, {}};
}

/// Reads the whole open file, or returns the reason why it cannot.
std::optional<std::string> ReadOrdinaryFile(int number, std::string& bytes) {
    struct stat status {};
    if (fstat(number, &status) != 0)
        return Describe(errno);
    // A pipe or a device may never end. A folder gives its own error at the first read.
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))
        return "not an ordinary file";
    if (const int error = ReadAll(number, bytes, longestFile))
        return Describe(error);
    // A file that ends early must not be used and then saved as if it were complete. Files that the system
    // generates while they are read have no size.
    if (status.st_size > 0 && static_cast<std::size_t>(status.st_size) != bytes.size())
        return "its content does not match its size";
    return std::nullopt;
}

SavePlaces PlacesOf(const std::filesystem::path& path) {
    const std::filesystem::path file = FollowLinks(path);
    return {file, file.parent_path() / temporaryName};
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

SettingsFile::SettingsFile(const std::filesystem::path& folder, std::chrono::milliseconds patience)
    : m_patience(patience) {
    // An absolute path stays valid when the current folder changes, and messages can show it.
    std::error_code error;
    std::filesystem::path full = std::filesystem::absolute(folder.empty() ? "." : folder, error);
    if (error)
        full = folder;
    // Removes only ".": removing ".." would be wrong after a symbolic link.
    std::filesystem::path plain;
    for (const std::filesystem::path& part : full) {
        if (part != ".")
            plain /= part;
    }
    m_path = plain / "Ledgrove.ini";
}

std::filesystem::path SettingsFile::TemporaryPath() const {
    return PlacesOf(m_path).Temporary;
}

Outcome<FileLines> SettingsFile::ReadLines(WhenMissing whenMissing) const {
    auto lines = ReadUnder(*LockForReading());
    const bool isMissing = !lines && lines.Fault().What == SettingsFault::Kind::Missing;
    if (!isMissing || whenMissing == WhenMissing::Fail)
        return lines;
    if (const auto failed = CreateEmpty())
        return *failed;
    return ReadUnder(*LockForReading());
}

Outcome<SettingsFile> SettingsFile::Hold() const {
    const auto lock = LockForWriting();
    if (!lock)
        return lock.Fault();
    SettingsFile held = *this;
    held.m_held = *lock;
    return held;
}

std::optional<SettingsFault> SettingsFile::Update(const Rewriting& rewriting) const {
    const auto lock = LockForWriting();
    if (!lock)
        return lock.Fault();
    const Outcome<FileLines> lines = ReadUnder(**lock);
    if (!lines)
        return lines.Fault();
    return ReplaceFile(PlacesOf(m_path), rewriting(*lines), **lock);
}

std::optional<SettingsFault> SettingsFile::ReplaceContent(std::string_view bytes) const {
    const auto lock = LockForWriting();
    if (!lock)
        return lock.Fault();
    const SavePlaces places = PlacesOf(m_path);
    int error = 0;
    if (PresenceOf(places.File, error) == Presence::Absent)
        return AbsenceFault();
    return ReplaceFile(places, bytes, **lock);
}

std::optional<SettingsFault> SettingsFile::RestoreInterruptedSave() const {
    const auto lock = LockForWriting();
    if (!lock)
        return lock.Fault();
    const SavePlaces places = PlacesOf(m_path);
    int error = 0;
    switch (PresenceOf(places.File, error)) {
    case Presence::Present:
        return std::nullopt; // another copy of the program has restored the file
    case Presence::Unknown:
        return Fault(SettingsFault::Kind::Unreadable, places.File, error);
    case Presence::Absent:
        break;
    }
    struct stat status {};
    if (lstat(places.Temporary.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        return SettingsFault{
            SettingsFault::Kind::Unreadable, places.Temporary, "not an ordinary file", 0, {}};
    return GiveName(places, **lock);
}

std::shared_ptr<const FolderLock> SettingsFile::LockForReading() const {
    if (m_held)
        return m_held;
    // Shorter than for saving: an existing file can be read without the lock, because no file is written in
    // place.
    return std::make_shared<FolderLock>(FollowLinks(m_path).parent_path(), Sharing::Shared, m_patience / 5);
}

Outcome<std::shared_ptr<const FolderLock>> SettingsFile::LockForWriting() const {
    if (m_held)
        return m_held;
    std::shared_ptr<const FolderLock> lock =
        std::make_shared<FolderLock>(FollowLinks(m_path).parent_path(), Sharing::Exclusive, m_patience);
    if (lock->What() == FolderLock::State::Busy)
        return SettingsFault{SettingsFault::Kind::Busy, m_path, {}, 0, {}};
    return lock;
}

Outcome<FileLines> SettingsFile::ReadUnder(const FolderLock& lock) const {
    // Without a lock, a missing file may only mean that another copy of the program is between delete and
    // rename.
    const bool mayBeBetween =
        lock.What() == FolderLock::State::Unsupported || lock.What() == FolderLock::State::Busy;
    int triesLeft = mayBeBetween ? 50 : 0;
    while (true) {
        // Without O_NONBLOCK, opening a pipe of this name would block.
        const Descriptor file(m_path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
        if (file.OpenError() == ENOENT && triesLeft > 0) {
            --triesLeft;
            std::this_thread::sleep_for(10ms);
            continue;
        }
        if (file.OpenError() == ENOENT && lock.What() == FolderLock::State::Busy)
            return SettingsFault{SettingsFault::Kind::Busy, m_path, {}, 0, {}};
        if (file.OpenError() == ENOENT)
            return AbsenceFault();
        if (!file.IsOpen())
            return Fault(SettingsFault::Kind::Unreadable, m_path, file.OpenError());
        std::string bytes;
        if (const auto reason = ReadOrdinaryFile(file.Number(), bytes))
            return SettingsFault{SettingsFault::Kind::Unreadable, m_path, *reason, 0, {}};
        return SplitLines(bytes);
    }
}

SettingsFault SettingsFile::AbsenceFault() const {
    const SavePlaces places = PlacesOf(m_path);
    int error = 0;
    switch (PresenceOf(places.Temporary, error)) {
    case Presence::Present:
        return {
            SettingsFault::Kind::InterruptedSave, places.Temporary, {}, 0, places.File.filename().string()};
    case Presence::Unknown:
        return Fault(SettingsFault::Kind::Unreadable, places.Temporary, error);
    case Presence::Absent:
        break;
    }
    return Fault(SettingsFault::Kind::Missing, m_path, ENOENT);
}

std::optional<SettingsFault> SettingsFile::CreateEmpty() const {
    const auto lock = LockForWriting();
    if (!lock)
        return lock.Fault();
    const SavePlaces places = PlacesOf(m_path);
    // Checked again under the lock: in the meantime another copy may have been killed during a save.
    if (const SettingsFault fault = AbsenceFault(); fault.What != SettingsFault::Kind::Missing)
        return fault;
    Descriptor file(places.File, O_WRONLY | O_CREAT | O_EXCL, ordinaryMode);
    if (file.OpenError() == EEXIST)
        return std::nullopt; // another copy has created it, and its content must stay
    if (!file.IsOpen())
        return Fault(SettingsFault::Kind::Unwritable, m_path, file.OpenError());
    if (const int error = file.Close())
        return Fault(SettingsFault::Kind::Unwritable, m_path, error);
    return std::nullopt;
}

} // namespace Ledgrove
