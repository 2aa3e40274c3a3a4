#include "reports/ReportChoices.h"

#include <gtest/gtest.h>

#include <utility>

namespace Ledgrove {
namespace {

constexpr const char* allNames = "cashflow morehome affordability summary assumptions";

TEST(ReportChoices, SectionsAreKeptByTheirNames) {
    EXPECT_EQ(NamesOf(AllSections), allNames);
    EXPECT_EQ(NamesOf(ReportSections{}), "none");
    EXPECT_EQ(NamesOf(ReportSections{false, true, false, false, true}), "morehome assumptions");
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

TEST(ReportChoices, PaperIsKeptByItsNames) {
    EXPECT_EQ(NamesOf(ReportPaper{}), "letter portrait");
    for (const char* names : {"letter portrait", "letter landscape", "a4 portrait", "a4 landscape",
                              "legal portrait", "legal landscape"})
        EXPECT_EQ(NamesOf(RememberedPaper(names)), names);
}

TEST(ReportChoices, ADamagedPaperIsLetterInPortrait) {
    for (const char* names : {"", " ", "a4", "a4 ", " landscape", "a4 landscape ", "a5 landscape",
                              "A4 Landscape", "landscape a4"})
        EXPECT_EQ(RememberedPaper(names), ReportPaper{}) << names;
}

TEST(ReportChoices, PaperHasItsSizeInTwips) {
    const auto sizeOf = [](const char* names) {
        const PageGeometry sheet = GeometryOf(RememberedPaper(names));
        return std::pair(sheet.PageWidth, sheet.PageHeight);
    };
    EXPECT_EQ(sizeOf("letter portrait"), std::pair(12240, 15840)); // 8.5 and 11 times 1440
    EXPECT_EQ(sizeOf("a4 portrait"), std::pair(11906, 16838));     // 210 and 297 times 1440 / 25.4
    EXPECT_EQ(sizeOf("a4 landscape"), std::pair(16838, 11906));
    EXPECT_EQ(sizeOf("legal landscape"), std::pair(20160, 12240)); // 14 and 8.5 times 1440
}

} // namespace
} // namespace Ledgrove
