#pragma once

#include "settings/SettingsFault.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Ledgrove {

/// One line as it stands in the file, in the file's bytes.
struct FileLine {
    std::string Text;
    std::string End; ///< CR LF, LF or CR; empty where the file ends without one
};

using FileLines = std::vector<FileLine>;

/// The bytes as lines. NUL and all other bytes are part of their line.
FileLines SplitLines(std::string_view bytes);

/// Ledgrove.ini in the program's folder. Nothing is cached: each call meets the file as it then is.
class SettingsFile {
public:
    enum class WhenMissing { Fail, CreateEmpty };

    explicit SettingsFile(const std::filesystem::path& folder);

    const std::filesystem::path& Path() const { return m_path; }
    /// Exists only during a save, or after an interrupted one.
    const std::filesystem::path& TemporaryPath() const { return m_temporaryPath; }

    /// The whole file. With CreateEmpty a missing file is created and has no lines; after an interrupted save
    /// it is not, whatever is asked.
    Outcome<FileLines> ReadLines(WhenMissing whenMissing = WhenMissing::Fail) const;

    /// Puts `bytes` in the place of the whole file: temporary file, delete, rename. A failure before the
    /// delete leaves the old file whole and no temporary file.
    std::optional<SettingsFault> ReplaceContent(std::string_view bytes) const;

private:
    SettingsFault OpenFault(int error) const;
    std::optional<SettingsFault> CreateEmpty() const;
    std::optional<SettingsFault> WriteTemporary(std::string_view bytes) const;

    std::filesystem::path m_path;
    std::filesystem::path m_temporaryPath;
};

} // namespace Ledgrove
