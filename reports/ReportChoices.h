#pragma once

#include "reports/modPrint.h"

#include <array>
#include <functional>
#include <optional>
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

enum class PaperSize { Letter = 0, A4 = 1, Legal = 2 };

/// The names of the sizes for people, in the order of PaperSize.
inline constexpr std::array<const char*, 3> PaperNames{"Letter", "A4", "Legal"};

/// The names of the orientations for people, in the order of PageOrientation.
inline constexpr std::array<const char*, 2> OrientationNames{"Portrait", "Landscape"};

/// The paper of a report without a printer.
struct ReportPaper {
    PaperSize Size = PaperSize::Letter;
    PageOrientation Orientation = PageOrientation::Portrait;

    bool operator==(const ReportPaper&) const = default;
};

/// The size or the orientation of this name in lower case, such as "a4" or "landscape".
std::optional<PaperSize> PaperNamed(std::string_view name);
std::optional<PageOrientation> OrientationNamed(std::string_view name);

/// Both names in lower case, with a blank between them: "a4 landscape".
std::string NamesOf(const ReportPaper& paper);

/// The paper of a text from NamesOf; letter paper in portrait for any other text.
ReportPaper RememberedPaper(std::string_view names);

/// The sheet with the report's margins.
PageGeometry GeometryOf(const ReportPaper& paper);

} // namespace Ledgrove
