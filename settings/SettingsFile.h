#pragma once

#include "settings/SettingsFault.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Ledgrove {

class FolderLock;

/// One line as it stands in the file, in the file's bytes.
struct FileLine {
    std::string Text;
    std::string End; ///< CR LF, LF or CR; empty where the file ends without one
};

using FileLines = std::vector<FileLine>;

/// The bytes as lines. NUL and all other bytes are part of their line.
FileLines SplitLines(std::string_view bytes);

/// Ledgrove.ini in the program's folder, or the file that it links to. Nothing is cached: each call meets the
/// file as it then is, and keeps copies of the program that use the same file apart meanwhile.
class SettingsFile {
public:
    enum class WhenMissing { Fail, CreateEmpty };

    /// A save waits for those of other copies of the program as long as `patience`, a reader a fifth of it.
    explicit SettingsFile(const std::filesystem::path& folder,
                          std::chrono::milliseconds patience = std::chrono::seconds(10));

    const std::filesystem::path& Path() const { return m_path; }
    /// Beside the file itself, which may lie elsewhere than a link to it. Exists only during a save, or after
    /// an interrupted one.
    std::filesystem::path TemporaryPath() const;

    /// The whole file. With CreateEmpty a missing file is created and has no lines; after an interrupted save
    /// it is not, whatever is asked.
    Outcome<FileLines> ReadLines(WhenMissing whenMissing = WhenMissing::Fail) const;

    /// The same file for several steps that no other copy of the program may come between: none saves as long
    /// as the result lives. Only the result must be used meanwhile; `this` would wait for it in vain.
    Outcome<SettingsFile> Hold() const;

    /// What a save makes of the lines that are there: the bytes of the whole new file.
    using Rewriting = std::function<std::string(const FileLines&)>;

    /// Reads the whole file and puts the rewriting's result in its place: temporary file, delete, rename,
    /// each brought to the disk before the next. The old file's mode is kept. A failure before the delete
    /// leaves the old file whole and no temporary file; after that, the new settings are in the temporary
    /// file (InterruptedSave) or in place (Unconfirmed).
    std::optional<SettingsFault> Update(const Rewriting& rewriting) const;

    /// The same with bytes that do not depend on the old ones.
    std::optional<SettingsFault> ReplaceContent(std::string_view bytes) const;

    /// After an interrupted save: gives the temporary file the settings file's name. Nothing to do, and no
    /// fault, where the settings file is there.
    std::optional<SettingsFault> RestoreInterruptedSave() const;

private:
    std::shared_ptr<const FolderLock> LockForReading() const;
    Outcome<std::shared_ptr<const FolderLock>> LockForWriting() const;
    Outcome<FileLines> ReadUnder(const FolderLock& lock) const;
    SettingsFault AbsenceFault() const;
    std::optional<SettingsFault> CreateEmpty() const;

    std::filesystem::path m_path;
    std::chrono::milliseconds m_patience;
    std::shared_ptr<const FolderLock> m_held; ///< by Hold, else none
};

} // namespace Ledgrove
