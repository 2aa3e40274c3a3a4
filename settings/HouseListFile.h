#pragma once

#include "engine/TypeDeclarations.h"
#include "settings/SettingsFile.h"

#include <optional>

// The saved house scenarios in the settings file: `HOMELIST` lines of a name and four amounts.
namespace Ledgrove::Module1 {

/// Appends one house per `HOMELIST` line, in file order. An amount that is not a number is a fault that names
/// its line. Do not save the incomplete list after that: a save replaces every line.
std::optional<SettingsFault> LoadHomeList(const SettingsFile& file, HouseList& houses);

/// The same from lines already read; a fault names `file`.
std::optional<SettingsFault> ReadHomeList(const SettingsFile& file, const FileLines& lines,
                                          HouseList& houses);

/// Removes every `HOMELIST` line, appends one per house with whole amounts, and marks the dialog as closed. A
/// name must not contain a comma.
std::optional<SettingsFault> WriteHomeList(const SettingsFile& file, const HouseList& houses);

} // namespace Ledgrove::Module1
