#pragma once

#include "reports/modPrint.h"

#include <string>
#include <vector>

namespace Ledgrove::Testing {

/// One way to print the sample comparison.
struct ReportVariant {
    ReportSections Sections;
    PageOrientation Orientation = PageOrientation::Portrait;
    bool PresentValue = false; ///< with the variables of the present value
    std::string Builder;
    std::string Buyer;

    /// Such as "cashflow,summary landscape pv Acme".
    std::string Name() const {
        std::string name;
        const auto add = [&name](bool wanted, const char* word) { name += wanted ? word : ""; };
        add(Sections.FinancialAssumptions, "assumptions,");
        add(Sections.CashFlow, "cashflow,");
        add(Sections.MoreHome, "morehome,");
        add(Sections.Affordability, "affordability,");
        add(Sections.Summary, "summary,");
        add(Orientation == PageOrientation::Landscape, "landscape,");
        add(PresentValue, "pv,");
        return name + std::to_string(Builder.size());
    }
};

/// All 32 sets of sections, in both orientations, with and without the present value's variables, without
/// names, with short ones and with names of 60 wide characters: 384 reports.
inline std::vector<ReportVariant> AllReportVariants() {
    struct Names {
        std::string Builder, Buyer;
    };
    const Names names[] = {{"", ""}, {"Acme Homes", "Pat Doe"}, {std::string(60, 'W'), std::string(60, 'M')}};
    std::vector<ReportVariant> variants;
    for (unsigned set = 0; set < 32; ++set)
        for (const auto orientation : {PageOrientation::Portrait, PageOrientation::Landscape})
            for (const bool presentValue : {false, true})
                for (const Names& pair : names) {
                    const auto has = [set](unsigned bit) { return (set >> bit & 1U) != 0; };
                    variants.push_back({{has(0), has(1), has(2), has(3), has(4)},
                                        orientation,
                                        presentValue,
                                        pair.Builder,
                                        pair.Buyer});
                }
    return variants;
}

} // namespace Ledgrove::Testing
