#pragma once

#include "engine/Session.h"
#include "settings/SettingsFault.h"

#include <array>
#include <filesystem>
#include <optional>

// The report header's dialog without its window.
namespace Ledgrove {

/// The logo choices; their index is what the settings keep.
inline constexpr std::array<const char*, 3> LogoChoices{"None", "Generic House Logo", "User Logo"};

struct HeaderOptions {
    Field ecBuilderName, txtHomeBuyer, ecLogoFile;
    int cboUserLogoOptions = 0; ///< index of LogoChoices
    FeatureTexts Features;      ///< not shown, but saved again with the header
};

/// What a logo choice shows.
struct LogoView {
    bool FileEnabled = false;      ///< the user's file can be named: caption, field and chooser
    std::filesystem::path Picture; ///< full path; empty for none

    bool operator==(const LogoView&) const = default;
};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Fills the dialog from the run and the settings file. A logo choice that is missing, unreadable or not in
/// the list counts as "None".
std::optional<SettingsFault> FillHeaderOptions(HeaderOptions& dialog, const Session& session);

/// The user's file as the field names it, which may be relative to the program's folder; a field that was
/// never filled in names none.
LogoView ViewOfLogo(const HeaderOptions& dialog, const std::filesystem::path& folder);

/// Saves the dialog and makes it the header of the run. On a fault the header and the file are as they were.
std::optional<SettingsFault> ConfirmHeaderOptions(const HeaderOptions& dialog, Session& session);

/// The index of the logo choice that the settings file holds, 0 where it holds none.
int StoredLogoOption(const Session& session);

/// Brings the feature captions of the main screen up to date with the settings file.
void ReloadFeatureCaptions(Session& session);

} // namespace Ledgrove::Module1
