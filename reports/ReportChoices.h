#pragma once

#include "reports/modPrint.h"

#include <functional>
#include <string>
#include <string_view>

// What the user chooses for a report, and the words for it on the command line and in stored choices.
namespace Ledgrove {

inline constexpr ReportSections AllSections{true, true, true, true, true};

/// Adds the section of this name: "cashflow", "morehome", "affordability", "summary" or "assumptions". "all"
/// adds every section, "none" adds nothing. False for any other name.
bool AddSection(std::string_view name, ReportSections& sections);

/// The names of the sections, separated by blanks; "none" if there is none.
std::string NamesOf(const ReportSections& sections);

/// The sections of a text from NamesOf; all of them for any other text.
ReportSections RememberedSections(std::string_view names);

/// Where the sections of the last preview are kept. Without a place, all sections are chosen each time.
struct SectionMemory {
    std::function<ReportSections()> Load = [] { return AllSections; };
    std::function<void(const ReportSections&)> Save = [](const ReportSections&) {};
};

} // namespace Ledgrove
