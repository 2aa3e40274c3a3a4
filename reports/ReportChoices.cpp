#include "reports/ReportChoices.h"

#include <array>
#include <cctype>

namespace Ledgrove {

namespace {

struct SheetSize {
    Twips Width;
    Twips Height;
};

/// In the order of PaperSize. A4 is 210 by 297 millimetres.
constexpr std::array<SheetSize, PaperNames.size()> sheets{{{12240, 15840}, {11906, 16838}, {12240, 20160}}};

std::string LowerCase(std::string_view text) {
    std::string lower;
    for (const char c : text)
        lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower;
}

/// The place of the name among these names, all in lower case.
template <std::size_t Count>
std::optional<int> IndexOf(std::string_view name, const std::array<const char*, Count>& names) {
    for (std::size_t index = 0; index < Count; ++index) {
        if (name == LowerCase(names[index]))
            return static_cast<int>(index);
    }
    return std::nullopt;
}

struct SectionName {
    std::string_view Name;
    bool ReportSections::*Section;
};

constexpr std::array<SectionName, 5> sectionNames{{{"cashflow", &ReportSections::CashFlow},
                                                   {"morehome", &ReportSections::MoreHome},
                                                   {"affordability", &ReportSections::Affordability},
                                                   {"summary", &ReportSections::Summary},
                                                   {"assumptions", &ReportSections::FinancialAssumptions}}};

} // namespace

bool AddSection(std::string_view name, ReportSections& sections) {
    if (name == "all")
        sections = AllSections;
    if (name == "all" || name == "none")
        return true;
    for (const SectionName& known : sectionNames) {
        if (name == known.Name) {
            sections.*known.Section = true;
            return true;
        }
    }
    return false;
}

std::string NamesOf(const ReportSections& sections) {
    std::string names;
    for (const SectionName& known : sectionNames) {
        if (sections.*known.Section)
            names.append(names.empty() ? "" : " ").append(known.Name);
    }
    return names.empty() ? "none" : names;
}

ReportSections RememberedSections(std::string_view names) {
    ReportSections sections;
    while (true) {
        const std::size_t end = names.find(' ');
        if (!AddSection(names.substr(0, end), sections))
            return AllSections;
        if (end == std::string_view::npos)
            return sections;
        names.remove_prefix(end + 1);
    }
}

std::optional<PaperSize> PaperNamed(std::string_view name) {
    const auto index = IndexOf(name, PaperNames);
    return index ? std::optional(static_cast<PaperSize>(*index)) : std::nullopt;
}

std::optional<PageOrientation> OrientationNamed(std::string_view name) {
    const auto index = IndexOf(name, OrientationNames);
    return index ? std::optional(static_cast<PageOrientation>(*index)) : std::nullopt;
}

std::string NamesOf(const ReportPaper& paper) {
    return LowerCase(PaperNames[static_cast<std::size_t>(paper.Size)]) + ' ' +
           LowerCase(OrientationNames[static_cast<std::size_t>(paper.Orientation)]);
}

ReportPaper RememberedPaper(std::string_view names) {
    const std::size_t blank = names.find(' ');
    const auto size = PaperNamed(names.substr(0, blank));
    const auto orientation =
        blank == std::string_view::npos ? std::nullopt : OrientationNamed(names.substr(blank + 1));
    return size && orientation ? ReportPaper{*size, *orientation} : ReportPaper{};
}

PageGeometry GeometryOf(const ReportPaper& paper) {
    const SheetSize& sheet = sheets[static_cast<std::size_t>(paper.Size)];
    PageGeometry portrait;
    portrait.PageWidth = sheet.Width;
    portrait.PageHeight = sheet.Height;
    return Oriented(portrait, paper.Orientation);
}

} // namespace Ledgrove
