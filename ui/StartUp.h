#pragma once

#include <filesystem>
#include <optional>

#include "engine/Host.h"
#include "engine/Session.h"
#include "settings/SettingsFault.h"

namespace Ledgrove::Module1 {

/// Loads a fresh session: loan types, tax schedule and assumptions from the settings file in `folder`, the
/// screen's start-up state, the pick lists, a first recalculation, then features, help file, logo file and
/// builder name. A missing or unreadable settings file, or a loan type that does not convert, is the fault
/// that ends the start.
std::optional<SettingsFault> LoadMainScreen(Session& session, Host& host,
                                            const std::filesystem::path& folder);

/// The same for a user who can be asked: after an interrupted save, whether to restore the settings that it
/// left. Without a Yes nothing is touched, and the interrupted save is the fault.
std::optional<SettingsFault> OpenMainScreen(Session& session, Host& host,
                                            const std::filesystem::path& folder);

} // namespace Ledgrove::Module1
