#pragma once

#include "settings/FolderLock.h"
#include "settings/SettingsFault.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace Ledgrove {

/// Where a save takes place: the settings file itself, not a link to it, and the temporary file beside it.
struct SavePlaces {
    std::filesystem::path File;
    std::filesystem::path Temporary;
};

/// Puts `bytes` in the place of the settings file, which must be there: temporary file, delete, rename, each
/// brought to the disk before the next. `lock` is on the folder of both files.
std::optional<SettingsFault> ReplaceFile(const SavePlaces& places, std::string_view bytes,
                                         const FolderLock& lock);

/// Gives the temporary file the settings file's name, in two tries.
std::optional<SettingsFault> GiveName(const SavePlaces& places, const FolderLock& lock);

} // namespace Ledgrove
