#pragma once

#include "settings/SettingsFile.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Where the shipped assumptions come from, and of when they are: `NOTE_key=value|date|source` lines. For a
// key with several lines, such as TAXCAT, the value is the values of all of them, joined by ";".
namespace Ledgrove {

struct AssumptionNote {
    std::string_view Key; ///< of the assumption, "PMI_MULT1"
    std::string Value;    ///< now; the lines of a list joined by ";", "" without a line
    bool IsNoted = false; ///< the file has a note that can be read; without one, nothing below is known
    std::string Date;     ///< of the shipped value: "2018-07-09", "2018-07", "2018", or "" if unknown
    std::string Source;   ///< of the shipped value
    bool IsOwn = false;   ///< the value is not the shipped one, so that date and source are not its own
    bool IsOld = false;   ///< the value is the shipped one, and older than two years
};

/// The keys that a note may be about, each with the key of its note.
struct NotedKey {
    std::string_view Key;
    std::string_view Note;
};

inline constexpr std::array<NotedKey, 22> NotedKeys{{{"LOANTYPE", "NOTE_LOANTYPE"},
                                                     {"PMI_MULT1", "NOTE_PMI_MULT1"},
                                                     {"PMI_MULT2", "NOTE_PMI_MULT2"},
                                                     {"PMI_MULT3", "NOTE_PMI_MULT3"},
                                                     {"PMI_MULT4", "NOTE_PMI_MULT4"},
                                                     {"ASSUMPTION1", "NOTE_ASSUMPTION1"},
                                                     {"ASSUMPTION2", "NOTE_ASSUMPTION2"},
                                                     {"PVSAVINGS_RATE", "NOTE_PVSAVINGS_RATE"},
                                                     {"PVSAVINGS_TERM", "NOTE_PVSAVINGS_TERM"},
                                                     {"PVSAVINGS_FLAG", "NOTE_PVSAVINGS_FLAG"},
                                                     {"YEARS_IN_HOME", "NOTE_YEARS_IN_HOME"},
                                                     {"TAXCAT", "NOTE_TAXCAT"},
                                                     {"GROWTH_UTILITIES", "NOTE_GROWTH_UTILITIES"},
                                                     {"GROWTH_HOME", "NOTE_GROWTH_HOME"},
                                                     {"EXIT_APPRECIATION", "NOTE_EXIT_APPRECIATION"},
                                                     {"EXIT_PREMIUM_KEPT", "NOTE_EXIT_PREMIUM_KEPT"},
                                                     {"EXIT_SELLING_COST", "NOTE_EXIT_SELLING_COST"},
                                                     {"DEDUCTION_STANDARD", "NOTE_DEDUCTION_STANDARD"},
                                                     {"DEDUCTION_SALT_CAP", "NOTE_DEDUCTION_SALT_CAP"},
                                                     {"DEDUCTION_STATE_TAX", "NOTE_DEDUCTION_STATE_TAX"},
                                                     {"DEDUCTION_OTHER", "NOTE_DEDUCTION_OTHER"},
                                                     {"DEDUCTION_DEBT_CAP", "NOTE_DEDUCTION_DEBT_CAP"}}};

/// The notes of the file in the order of NotedKeys, of each key the last. A note that cannot be read is left
/// out.
std::vector<AssumptionNote> ReadNotes(const FileLines& lines, std::chrono::year_month_day today);

/// One for each of NotedKeys, also for keys without a note.
std::vector<AssumptionNote> ReadAllNotes(const FileLines& lines, std::chrono::year_month_day today);

/// Whether a note's value has three parts, of which the second is a date or empty.
bool IsNote(std::string_view value);

} // namespace Ledgrove
