#include "reports/PreviewState.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

const Paper a4{"iso_a4_210x297mm", 11906, 16838}; // 210 mm x 297 mm at 1440 / 25.4 twips

TEST(ZoomStep, MovesAlongTheListAndStopsAtItsEnds) {
    EXPECT_STREQ(ZoomItems[ZoomAtActivation], "60");
    EXPECT_EQ(ZoomStep(ZoomAtActivation, 1), 3);
    EXPECT_EQ(ZoomStep(ZoomAtActivation, -1), 1);
    EXPECT_EQ(ZoomStep(0, -1), 0);
    EXPECT_EQ(ZoomStep(6, 1), 6);
}

TEST(PageButtonAt, IsHiddenForOnePage) {
    EXPECT_FALSE(PageButtonAt(1, 1).Visible);
    EXPECT_TRUE(PageButtonAt(1, 2).Visible);
}

TEST(PageButtonAt, LeadsFromTheFirstPageToTheSecondAndElseToTheFirst) {
    EXPECT_STREQ(PageButtonAt(1, 3).Caption, "Page 2");
    EXPECT_EQ(PageButtonAt(1, 3).Leads, 2U);
    for (const std::size_t page : {2U, 3U}) {
        EXPECT_STREQ(PageButtonAt(page, 3).Caption, "Page 1") << page;
        EXPECT_EQ(PageButtonAt(page, 3).Leads, 1U) << page;
    }
}

// 1300 and 600 twips at 15 for each pixel
constexpr int heightLess = 87; // 86.67
constexpr int widthLess = 40;

TEST(MaximizedFrame, LeavesThePreviewItsSize) {
    for (const int controls : {40, 53, 54, 55, 56, 75}) {
        const PreviewFrame frame = MaximizedFrame(controls, 500);
        EXPECT_EQ(3 * frame.Gap + frame.Bottom + controls, heightLess) << controls;
        EXPECT_EQ(2 * frame.Side, widthLess);
    }
    EXPECT_EQ(MaximizedFrame(55, 500), (PreviewFrame{20, 8, 8})); // 87 - 55 = 4 times 8
}

TEST(MaximizedFrame, CutsNoControl) {
    EXPECT_EQ(MaximizedFrame(heightLess, 500), (PreviewFrame{20, 3, 3}));
    EXPECT_EQ(MaximizedFrame(200, 500), (PreviewFrame{20, 3, 3}));
    EXPECT_EQ(MaximizedFrame(55, 30).Side, 15);
    EXPECT_EQ(MaximizedFrame(55, -30).Side, 0);
}

TEST(StatusText, HasTwoBlanksBeforeTheResolution) {
    EXPECT_EQ(StatusText({"Office", "ipp://printserver/office", "Laser 600"}, {600, {}}),
              "DPI:  600\nPort: ipp://printserver/office\nDriver: Laser 600");
}

TEST(StatusText, ReportsAnUnknownResolution) {
    EXPECT_EQ(StatusText({"Raw", "socket://lab", ""}, {}), "DPI: not known\nPort: socket://lab\nDriver: ");
}

TEST(PaperFor, IsThePrintersOwnOrLetter) {
    EXPECT_EQ(PaperFor({600, a4}), a4);
    EXPECT_EQ(PaperFor({}), Paper{});
    EXPECT_EQ(Paper{}.Width, 12240);  // 8.5 x 1440
    EXPECT_EQ(Paper{}.Height, 15840); // 11 x 1440
}

TEST(PaperFor, IsLetterWhereTheTablesDoNotFit) {
    EXPECT_EQ(PaperFor({600, Paper{"na_index-4x6_4x6in", 5760, 8640}}), Paper{});
}

TEST(SheetOf, TurnsThePaperAndKeepsHalfAnInchAtEachSide) {
    const PageGeometry sheet = SheetOf(a4, PageOrientation::Landscape);
    EXPECT_EQ(sheet.PageWidth, 16838);
    EXPECT_EQ(sheet.PageHeight, 11906);
    for (const Twips margin : {sheet.MarginLeft, sheet.MarginRight, sheet.MarginTop, sheet.MarginBottom})
        EXPECT_EQ(margin, 720);
}

TEST(SizeText, IsInInchesWithOneDecimal) {
    EXPECT_EQ(SizeText(SheetOf({}, PageOrientation::Portrait)), "8.5x11.0");
    EXPECT_EQ(SizeText(SheetOf({}, PageOrientation::Landscape)), "11.0x8.5");
    EXPECT_EQ(SizeText(SheetOf(a4, PageOrientation::Portrait)), "8.3x11.7"); // 8.268 x 11.693
}

TEST(StatusText, HasThreeLinesWhateverTheNames) {
    EXPECT_EQ(StatusText({"Office", "ipp://host/My%20Printer%0A2", "Laser\n600\tplus"}, {600, {}}),
              "DPI:  600\nPort: ipp://host/My Printer 2\nDriver: Laser 600 plus");
}

TEST(CopiesText, IsAWholeNumberFromOneTo9999) {
    // The Whole format rounds halves up and takes a text with "%" for 0.
    const std::pair<const char*, const char*> texts[] = {
        {"1", "1"},   {" 25 ", "25"},    {"1200", "1,200"},   {"2.5", "3"},
        {"2.4", "2"}, {"0.4", "1"},      {"0", "1"},          {"-3", "1"},
        {"", "1"},    {"9999", "9,999"}, {"9999.4", "9,999"}, {"10000", "9,999"},
        {"12%", "1"}, {"1e3", "1"},      {"many", "1"},       {"99999999999999999999", "9,999"}};
    for (const auto& [typed, shown] : texts)
        EXPECT_EQ(CopiesText(typed), shown) << typed;
}

TEST(CopiesIn, IsTheNumberShown) {
    EXPECT_EQ(CopiesIn("1"), 1);
    EXPECT_EQ(CopiesIn("1,200"), 1200);
    EXPECT_EQ(CopiesIn("2.5"), 3);
    EXPECT_EQ(CopiesIn("10000"), 9999);
    EXPECT_EQ(CopiesIn(""), 1);
}

TEST(ProgressText, NamesPageReportAndPrinter) {
    EXPECT_EQ(ProgressText(2, "Summary Report", {"Office", "ipp://printserver/office", "Laser 600"}),
              "Now printing Page 2 of\nSummary Report\non the Office on ipp://printserver/office");
    EXPECT_EQ(ProgressText(1, "Summary Report", {"Of\nfice", "ipp://host/My%20Printer", ""}),
              "Now printing Page 1 of\nSummary Report\non the Of fice on ipp://host/My Printer");
}

} // namespace
} // namespace Ledgrove
