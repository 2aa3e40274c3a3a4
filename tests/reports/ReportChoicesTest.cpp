#include "reports/ReportChoices.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

constexpr const char* allNames = "cashflow morehome affordability summary assumptions";

TEST(ReportChoices, SectionsAreKeptByTheirNames) {
    EXPECT_EQ(NamesOf(AllSections), allNames);
    EXPECT_EQ(NamesOf({}), "none");
    EXPECT_EQ(NamesOf({false, true, false, false, true}), "morehome assumptions");
}

TEST(ReportChoices, KeptSectionsReturn) {
    for (const char* names : {allNames, "none", "cashflow", "morehome assumptions", "summary"})
        EXPECT_EQ(NamesOf(RememberedSections(names)), names);
}

TEST(ReportChoices, ADamagedTextMeansAllSections) {
    for (const char* names : {"", " ", "garden", "cashflow garden", "cashflow,summary", "cashflow  summary",
                              "cash", "cashflow ", "CashFlow", "none\nnone", "1"})
        EXPECT_EQ(NamesOf(RememberedSections(names)), allNames) << names;
}

TEST(ReportChoices, WithoutAPlaceToKeepThemAllSectionsAreChosen) {
    const SectionMemory nowhere;
    nowhere.Save({});
    EXPECT_EQ(NamesOf(nowhere.Load()), allNames);
}

} // namespace
} // namespace Ledgrove
