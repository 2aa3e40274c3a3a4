#pragma once

#include "engine/TypeDeclarations.h"
#include "settings/SettingsFile.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

// The income tax rate schedule in the settings file: `TAXCAT` lines of a high end and a rate.
namespace Ledgrove {

/// One row of the assumptions dialog, as its fields show it.
struct TaxRowTexts {
    std::string HighEnd;
    std::string Rate;
};

inline constexpr std::size_t TaxRowCount = 6;
using TaxRows = std::array<TaxRowTexts, TaxRowCount>;

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Reads the brackets in file order; a file without any leaves the schedule as it was. A value that is not a
/// number ends the reading there, without a fault: its bracket keeps what was converted before it, the
/// brackets before it stay. A missing settings file is created empty.
std::optional<SettingsFault> LoadTaxCats(const SettingsFile& file, TaxSchedule& schedule);

/// The same from lines already read.
void ReadTaxCats(const FileLines& lines, TaxSchedule& schedule);

/// Replaces the k-th `TAXCAT` line by row k, so that the file keeps its number of brackets; a file without
/// any gets all six. The last loaded bracket's high end is not shown by the dialog: where its row leaves it
/// empty, the bracket's own in `loaded` is written, so that top incomes keep their rate.
std::optional<SettingsFault> WriteTaxCatsToFile(const SettingsFile& file, const TaxRows& rows,
                                                const TaxSchedule& loaded);

} // namespace Ledgrove::Module1
