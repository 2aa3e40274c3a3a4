#pragma once

#include "engine/TypeDeclarations.h"
#include "settings/Rewrite.h"
#include "settings/SettingsFile.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

// The income tax rate schedule in the settings file: `TAXCAT` lines of a high end and a rate.
namespace Ledgrove {

/// The texts of one row of the assumptions dialog.
struct TaxRowTexts {
    std::string HighEnd;
    std::string Rate;
};

inline constexpr std::size_t TaxRowCount = 6;
using TaxRows = std::array<TaxRowTexts, TaxRowCount>;

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Reads the brackets in file order; a file without brackets does not change the schedule. A value that is
/// not a number stops the reader there, without a fault: its bracket keeps the values converted before it,
/// and the earlier brackets stay. A missing settings file is created empty.
std::optional<SettingsFault> LoadTaxCats(const SettingsFile& file, TaxSchedule& schedule);

/// The same from lines already read.
void ReadTaxCats(const FileLines& lines, TaxSchedule& schedule);

/// Replaces the k-th `TAXCAT` line by row k, so the file keeps its number of brackets; a file without
/// brackets gets all six. `loaded` are the brackets of the file. The dialog does not show the high end of the
/// last one, or of the sixth row if there are none. If that row leaves the high end empty, the loaded value
/// is written, or -1 for no upper limit, so that top incomes keep their rate.
std::optional<SettingsFault> WriteTaxCatsToFile(SettingsDraft& draft, const TaxRows& rows,
                                                const TaxSchedule& loaded);

} // namespace Ledgrove::Module1
