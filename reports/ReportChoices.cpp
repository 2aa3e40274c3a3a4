#include "reports/ReportChoices.h"

#include <array>

namespace Ledgrove {

namespace {

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

} // namespace Ledgrove
