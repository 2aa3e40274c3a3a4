#pragma once

#include "engine/TypeDeclarations.h"
#include "settings/Rewrite.h"
#include "settings/SettingsFile.h"

#include <optional>

// The qualifying ratios per loan type in the settings file: `LOANTYPE` lines of nine fields.
namespace Ledgrove::Module1 {

/// Fills the list with one record per `LOANTYPE` line, in file order. A number or ratio that does not convert
/// is a fault that names its line; the list then holds the lines up to and including that one. Other faults
/// leave the list empty.
std::optional<SettingsFault> LoadLoanTypes(const SettingsFile& file, LoanTypeList& loanTypes);

/// The same from lines already read, appended to the list; a fault names `file`.
std::optional<SettingsFault> ReadLoanTypes(const SettingsFile& file, const FileLines& lines,
                                           LoanTypeList& loanTypes);

/// Removes every `LOANTYPE` line and appends one per record. An empty list is written as one line of an empty
/// record, so the file always has a line for the key.
std::optional<SettingsFault> WriteLoanTypes(SettingsDraft& draft, const LoanTypeList& loanTypes);

} // namespace Ledgrove::Module1
