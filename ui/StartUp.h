#pragma once

#include <filesystem>
#include <optional>

#include "engine/Host.h"
#include "engine/Session.h"
#include "settings/SettingsFault.h"

namespace Ledgrove::Module1 {

/// Loads a new session from the settings file in `folder`: loan types, tax schedule and assumptions, then the
/// start-up state of the screen with a first recalculation, then features, help file, logo file and builder
/// name. Stops with a fault if the settings file is missing or unreadable, or if a loan type does not
/// convert.
std::optional<SettingsFault> LoadMainScreen(Session& session, Host& host,
                                            const std::filesystem::path& folder);

/// Like LoadMainScreen, but after an interrupted save asks the user whether to restore the settings. If the
/// answer is not Yes, changes nothing and returns the interrupted save as the fault.
std::optional<SettingsFault> OpenMainScreen(Session& session, Host& host,
                                            const std::filesystem::path& folder);

} // namespace Ledgrove::Module1
