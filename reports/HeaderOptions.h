#pragma once

#include "engine/Session.h"
#include "settings/SettingsFault.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>

// The logic of the report header's dialog, without its window.
namespace Ledgrove {

/// The logo options; the settings file stores their index.
inline constexpr std::array<const char*, 3> LogoChoices{"None", "Generic House Logo", "User Logo"};

struct HeaderOptions {
    Field ecBuilderName, txtHomeBuyer, ecLogoFile;
    int cboUserLogoOptions = 0; ///< index of LogoChoices
    FeatureTexts Features;      ///< not shown, but saved again with the header
};

/// What the dialog shows for a logo option.
struct LogoView {
    bool FileEnabled = false;      ///< the user's file can be chosen: caption, field and chooser are enabled
    std::filesystem::path Picture; ///< full path; empty for none

    bool operator==(const LogoView&) const = default;
};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Fills the dialog from the session and the settings file. The builder name is the file's, except that the
/// session's own stays if the file cannot hold it. A logo option that is missing, unreadable or not in the
/// list counts as "None".
std::optional<SettingsFault> FillHeaderOptions(HeaderOptions& dialog, const Session& session);

/// The user's file from the field, which may be relative to the program's folder. A field with the
/// placeholder gives no file.
LogoView ViewOfLogo(const HeaderOptions& dialog, const std::filesystem::path& folder);

/// Saves the dialog and makes it the session's header. A builder name that the file cannot hold is not saved;
/// the file's line for it stays. On a fault neither the header nor the file changes.
std::optional<SettingsFault> ConfirmHeaderOptions(const HeaderOptions& dialog, Session& session);

/// A sentence for the user if the session's builder name lasts only for this run; else "".
std::string UnkeptNameNotice(const Session& session);

/// The index of the logo option in the settings file, 0 if the file has none.
int StoredLogoOption(const Session& session);

/// Updates the feature captions of the main screen from the settings file.
void ReloadFeatureCaptions(Session& session);

} // namespace Ledgrove::Module1
