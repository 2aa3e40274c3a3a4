#pragma once

#include "engine/TypeDeclarations.h"
#include "settings/LineSyntax.h"
#include "settings/Rewrite.h"
#include "settings/SettingsFile.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The financial assumptions in the settings file.
namespace Ledgrove {

/// An assumption that is a plain number in the file.
struct NumericAssumption {
    std::string_view Key;
    float AssumptionSet::*Value;
};

inline constexpr std::array<NumericAssumption, 7> NumericAssumptions{
    {{Key::RealEstateTax, &AssumptionSet::RealEstateTaxPct},
     {Key::Insurance, &AssumptionSet::InsurancePct},
     {Key::PVTerm, &AssumptionSet::PVTerm},
     {Key::PMIMult1, &AssumptionSet::PMIMult1},
     {Key::PMIMult2, &AssumptionSet::PMIMult2},
     {Key::PMIMult3, &AssumptionSet::PMIMult3},
     {Key::PMIMult4, &AssumptionSet::PMIMult4}}};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Sets every value that has a line; the others do not change. A value that is not a number stops the reader
/// there, without a fault. A missing settings file is created empty.
std::optional<SettingsFault> LoadAssumptions(const SettingsFile& file, AssumptionSet& assumptions);

/// The same from lines already read. Returns the line that stopped the reader, counted from 0, if there was
/// one.
std::optional<std::size_t> ReadAssumptions(const FileLines& lines, AssumptionSet& assumptions);

/// The texts that the assumptions dialog saves, as its fields show them.
struct AssumptionTexts {
    std::string RealEstateTaxPct;
    std::string InsurancePct;
    std::string PVRate;
    std::string PVTerm;
    bool UsePVVars = false;
    std::string YearsInHome;
    std::array<std::string, 4> PMIMult;
};

/// Replaces or appends the ten keys, without percent signs. If the file has no `PVSAVINGS_FLAG` line yet,
/// "FALSE" is appended whatever `UsePVVars` is; the next save replaces it.
std::optional<SettingsFault> WriteAssumpsToFile(SettingsDraft& draft, const AssumptionTexts& texts);

} // namespace Ledgrove::Module1
