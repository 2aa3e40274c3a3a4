#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/batch/InputRecord.h"

// Versions of a comparison that were kept by name, in the comparison's file.
namespace Ledgrove {

struct KeptVersion {
    std::string Name;
    std::string Kept; ///< the day and time, "2026-11-22 14:05"
    InputRecord Inputs;

    bool operator==(const KeptVersion&) const = default;
};

using KeptVersions = std::vector<KeptVersion>;

/// The longest name of a version, in bytes.
inline constexpr std::size_t LongestVersionName = 400;

struct VersionsOfFile {
    KeptVersions Versions;
    std::size_t Unreadable = 0; ///< how many could not be read
};

/// The versions in the text of a comparison file; none if it has none.
VersionsOfFile ReadVersions(std::string_view text);

} // namespace Ledgrove
