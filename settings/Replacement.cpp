#include "settings/Replacement.h"

#include "base/SystemError.h"
#include "settings/FileAccess.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>

#include <sys/stat.h>
#include <unistd.h>

namespace Ledgrove {
namespace {

constexpr mode_t modeBits = 07777;
constexpr mode_t ownersAlone = 0600; // an incomplete file may hold private settings

SettingsFault Unwritable(const std::filesystem::path& path, int error) {
    return {SettingsFault::Kind::Unwritable, path, Describe(error), 0, {}};
}

/// Gives the new file the owner and mode of the old one, after checking its size: a write may have stored
/// fewer bytes than it reported.
int TakeOver(int number, std::size_t size, const struct stat& old) {
    struct stat made {};
    if (fstat(number, &made) != 0)
        return errno;
    if (made.st_size < 0 || static_cast<std::size_t>(made.st_size) != size)
        return EIO;
    // Only an administrator may change a file's owner. Without that right, the user keeps the new file.
    if ((made.st_uid != old.st_uid || made.st_gid != old.st_gid) &&
        fchown(number, old.st_uid, old.st_gid) != 0 && errno != EPERM)
        return errno;
    // File systems without modes refuse any change, but all their files have the same mode.
    if ((made.st_mode & modeBits) != (old.st_mode & modeBits) && fchmod(number, old.st_mode & modeBits) != 0)
        return errno;
    return 0;
}

int Fill(Descriptor& file, std::string_view bytes, const struct stat& old) {
    int error = WriteAll(file.Number(), bytes);
    if (error == 0)
        error = TakeOver(file.Number(), bytes.size(), old);
    if (error == 0)
        error = Sync(file.Number());
    const int closeError = file.Close();
    return error != 0 ? error : closeError;
}

/// A fault leaves no temporary file.
std::optional<SettingsFault> WriteTemporary(const SavePlaces& places, std::string_view bytes,
                                            const struct stat& old, const FolderLock& lock) {
    // A leftover from an interrupted save is removed first, because writing to it could follow a link.
    if (unlink(places.Temporary.c_str()) != 0 && errno != ENOENT)
        return Unwritable(places.Temporary, errno);
    Descriptor file(places.Temporary, O_WRONLY | O_CREAT | O_EXCL, ownersAlone);
    if (!file.IsOpen())
        return Unwritable(places.Temporary, file.OpenError());
    int error = Fill(file, bytes, old);
    // The temporary file must survive a power cut before the old file is deleted.
    if (error == 0)
        error = lock.SyncFolder();
    if (error == 0)
        return std::nullopt;
    unlink(places.Temporary.c_str());
    return Unwritable(places.Temporary, error);
}

/// A fault leaves the old file. It leaves no temporary file if the old file certainly exists.
std::optional<SettingsFault> DeleteOld(const SavePlaces& places) {
    if (unlink(places.File.c_str()) == 0)
        return std::nullopt;
    const int error = errno;
    // On a network file system the reply may be lost after the delete succeeded, so this checks whether the
    // file exists.
    int presenceError = 0;
    const Presence presence = PresenceOf(places.File, presenceError);
    if (presence == Presence::Absent)
        return std::nullopt;
    if (presence == Presence::Present)
        unlink(places.Temporary.c_str());
    return Unwritable(places.File, error);
}

bool IsRenamed(const SavePlaces& places) {
    int ignored = 0;
    return PresenceOf(places.Temporary, ignored) == Presence::Absent &&
           PresenceOf(places.File, ignored) == Presence::Present;
}

int Rename(const SavePlaces& places) {
    if (std::rename(places.Temporary.c_str(), places.File.c_str()) == 0)
        return 0;
    const int error = errno;
    return IsRenamed(places) ? 0 : error;
}

} // namespace

std::optional<SettingsFault> GiveName(const SavePlaces& places, const FolderLock& lock) {
    int error = Rename(places);
    if (error != 0)
        error = Rename(places);
    if (error != 0)
        return SettingsFault{SettingsFault::Kind::InterruptedSave, places.Temporary, Describe(error), 0,
                             places.File.filename().string()};
    if (const int syncError = lock.SyncFolder())
        return SettingsFault{SettingsFault::Kind::Unconfirmed, places.File, Describe(syncError), 0, {}};
    return std::nullopt;
}

std::optional<SettingsFault> ReplaceFile(const SavePlaces& places, std::string_view bytes,
                                         const FolderLock& lock) {
    struct stat old {};
    if (lstat(places.File.c_str(), &old) != 0)
        return Unwritable(places.File, errno);
    if (!S_ISREG(old.st_mode))
        return Unwritable(places.File, S_ISDIR(old.st_mode) ? EISDIR : EINVAL);
    if (places.File == places.Temporary) {
        return SettingsFault{SettingsFault::Kind::Unwritable,
                             places.File,
                             "\"Ledgrove.ini\" is a link to this file, which a save replaces",
                             0,
                             {}};
    }
    if (auto fault = WriteTemporary(places, bytes, old, lock))
        return fault;
    if (auto fault = DeleteOld(places))
        return fault;
    // From here to the end of the rename, only the temporary file holds the settings: it must not be removed.
    return GiveName(places, lock);
}

} // namespace Ledgrove
