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

/// One line of the file, in the file's bytes.
struct FileLine {
    std::string Text;
    std::string End; ///< CR LF, LF or CR; empty if the file ends without a line ending
};

using FileLines = std::vector<FileLine>;

/// Splits the bytes into lines. NUL and all other bytes are part of their line.
FileLines SplitLines(std::string_view bytes);

/// Ledgrove.ini in the program's folder, or the file that it links to. Nothing is cached: each call reads the
/// current file, and a lock prevents other copies of the program from using it at the same time.
class SettingsFile {
public:
    enum class WhenMissing { Fail, CreateEmpty };

    /// A save waits up to `patience` for other copies of the program; a reader waits up to a fifth of it.
    explicit SettingsFile(const std::filesystem::path& folder,
                          std::chrono::milliseconds patience = std::chrono::seconds(10));

    const std::filesystem::path& Path() const { return m_path; }
    /// In the folder of the file itself, which may differ from the folder of a link. It exists only during a
    /// save or after an interrupted one.
    std::filesystem::path TemporaryPath() const;

    /// Reads the whole file. With CreateEmpty, a missing file is created and has no lines, except after an
    /// interrupted save.
    Outcome<FileLines> ReadLines(WhenMissing whenMissing = WhenMissing::Fail) const;

    /// The same file for several steps: no other copy of the program can save while the result exists. Use
    /// only the result during that time; `this` would wait for it until the time is up.
    Outcome<SettingsFile> Hold() const;

    /// Makes the bytes of the whole new file from the current lines.
    using Rewriting = std::function<std::string(const FileLines&)>;

    /// Reads the whole file and replaces it with the result of `rewriting`: temporary file, delete, rename,
    /// each flushed to disk before the next. The new file gets the old one's mode. A fault before the delete
    /// leaves the complete old file and no temporary file. After the delete, the new settings are in the
    /// temporary file (InterruptedSave) or in place (Unconfirmed).
    std::optional<SettingsFault> Update(const Rewriting& rewriting) const;

    /// The same with bytes that do not depend on the old file.
    std::optional<SettingsFault> ReplaceContent(std::string_view bytes) const;

    /// After an interrupted save: renames the temporary file to the settings file. If the settings file
    /// exists, does nothing and returns no fault.
    std::optional<SettingsFault> RestoreInterruptedSave() const;

private:
    std::shared_ptr<const FolderLock> LockForReading() const;
    Outcome<std::shared_ptr<const FolderLock>> LockForWriting() const;
    Outcome<FileLines> ReadUnder(const FolderLock& lock) const;
    SettingsFault AbsenceFault() const;
    std::optional<SettingsFault> CreateEmpty() const;

    std::filesystem::path m_path;
    std::chrono::milliseconds m_patience;
    std::shared_ptr<const FolderLock> m_held; ///< set by Hold, otherwise null
};

} // namespace Ledgrove
