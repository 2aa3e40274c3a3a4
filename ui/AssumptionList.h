#pragma once

#include <chrono>
#include <string_view>
#include <vector>

#include "engine/Session.h"
#include "insight/Sheet.h"
#include "settings/SettingsFile.h"
#include "ui/InsightQuestions.h"

// Everything that the answers of Insight assume, with where it comes from.
namespace Ledgrove {

/// The keys of the assumptions that the answer uses.
std::vector<std::string_view> KeysUsedBy(InsightQuestion question);

/// The keys that any of the answers uses. The present value's own rate and term are left out while they are
/// not in force.
std::vector<std::string_view> KeysUsedBy(const std::vector<InsightQuestion>& questions,
                                         const Session& session);

/// A row for each of these keys: its name and the value in force in words, date and source of the shipped
/// value, and whether it is older than two years at `today` or the user's own. `years` are the settings of
/// the views over the years; a value that is not the session's is tried and not kept. `lines` are the
/// settings file's.
Sheet AssumptionSheet(const std::vector<std::string_view>& keys, const Session& session,
                      const YearSettings& years, const FileLines& lines, std::chrono::year_month_day today);

/// The same with the file of the session's folder, today. If the file cannot be read, no source is known.
Sheet AssumptionSheet(const std::vector<std::string_view>& keys, const Session& session,
                      const YearSettings& years);

/// Every key that a note may be about.
std::vector<std::string_view> AllAssumptionKeys();

} // namespace Ledgrove
