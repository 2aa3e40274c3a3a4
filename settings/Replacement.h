#pragma once

#include "settings/FolderLock.h"
#include "settings/SettingsFault.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace Ledgrove {

/// The files of a save: the settings file itself, not a link to it, and the temporary file in the same
/// folder.
struct SavePlaces {
    std::filesystem::path File;
    std::filesystem::path Temporary;
};

/// Replaces the settings file, which must exist, with `bytes`: temporary file, delete, rename, each flushed
/// to disk before the next. `lock` is on the folder of both files.
std::optional<SettingsFault> ReplaceFile(const SavePlaces& places, std::string_view bytes,
                                         const FolderLock& lock);

/// Renames the temporary file to the settings file, in two attempts.
std::optional<SettingsFault> GiveName(const SavePlaces& places, const FolderLock& lock);

} // namespace Ledgrove
