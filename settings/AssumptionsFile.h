#pragma once

#include "engine/TypeDeclarations.h"
#include "settings/SettingsFile.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

// The financial assumptions in the settings file.
namespace Ledgrove::Module1 {

/// Sets every value that has a line; the others keep what they held. A value that is not a number ends the
/// reading there, without a fault. A missing settings file is created empty.
std::optional<SettingsFault> LoadAssumptions(const SettingsFile& file, AssumptionSet& assumptions);

/// The same from lines already read; gives the line that ended the reading, counted from 0, where one did.
std::optional<std::size_t> ReadAssumptions(const FileLines& lines, AssumptionSet& assumptions);

/// What the assumptions dialog saves, as its fields show it.
struct AssumptionTexts {
    std::string RealEstateTaxPct;
    std::string InsurancePct;
    std::string PVRate;
    std::string PVTerm;
    bool UsePVVars = false;
    std::string YearsInHome;
    std::array<std::string, 4> PMIMult;
};

/// Replaces or appends the ten keys, percent signs removed. Where the file has no `PVSAVINGS_FLAG` line yet,
/// "FALSE" is appended whatever `UsePVVars` says; the next save replaces it.
std::optional<SettingsFault> WriteAssumpsToFile(const SettingsFile& file, const AssumptionTexts& texts);

} // namespace Ledgrove::Module1
