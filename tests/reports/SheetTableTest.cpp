#include "reports/SheetTable.h"

#include "tests/reports/FixedMeasure.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using namespace Testing;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

TEST(FitColumnsTest, CellsOnOneLineIfTheyFit) {
    const std::vector<ColumnNeed> needs{{1000, 500}, {800, 800}};
    // 1,800 of the 2,000; a table of 1,500 or less stays as it is.
    EXPECT_THAT(*FitColumns(needs, 2000, 1500), ElementsAre(1000, 800));
}

TEST(FitColumnsTest, TheFirstColumnMakesASmallTableAsWideAsUsual) {
    const std::vector<ColumnNeed> needs{{1000, 500}, {800, 800}};
    EXPECT_THAT(*FitColumns(needs, 3000, 2500), ElementsAre(1700, 800));
    EXPECT_THAT(*FitColumns(needs, 2000, 2500), ElementsAre(1200, 800));
}

TEST(FitColumnsTest, WhatNeedsMoreSharesTheRest) {
    // The least widths take 1,300 of 1,600, and the columns lack 900 and 300: a quarter of it is there.
    const std::vector<ColumnNeed> needs{{1400, 500}, {800, 500}, {300, 300}};
    EXPECT_THAT(*FitColumns(needs, 1600, 1600), ElementsAre(725, 575, 300));
}

TEST(FitColumnsTest, NothingIsBrokenBelowItsLeastWidth) {
    EXPECT_FALSE(FitColumns({{900, 600}, {500, 500}}, 1099, 1000));
    EXPECT_TRUE(FitColumns({{900, 600}, {500, 500}}, 1100, 1000));
}

TEST(SplitColumnsTest, EveryPartBeginsWithTheFirstColumn) {
    // 200 and twice 400 fit 1,000; the fourth column does not.
    const std::vector<ColumnNeed> needs{{200, 200}, {400, 400}, {400, 400}, {400, 400}};
    EXPECT_THAT(SplitColumns(needs, 1000), ElementsAre(ElementsAre(0, 1, 2), ElementsAre(0, 3)));
}

TEST(SplitColumnsTest, AColumnThatIsTooWideIsNotLost) {
    EXPECT_THAT(SplitColumns({{200, 200}, {5000, 5000}, {300, 300}}, 1000),
                ElementsAre(ElementsAre(0, 1), ElementsAre(0, 2)));
}

class SheetTableTest : public testing::Test {
protected:
    /// A sheet with this number of columns of figures, all 9 characters wide.
    static Sheet WideSheet(std::size_t columns) {
        Sheet sheet;
        sheet.Title = "Figures";
        sheet.Heads.emplace_back("Year");
        sheet.Rows.push_back({TextCell("1")});
        sheet.Rows.push_back({TextCell("2")});
        for (std::size_t column = 0; column < columns; ++column) {
            sheet.Heads.push_back("Column" + std::to_string(100 + column));
            for (auto& row : sheet.Rows)
                row.push_back(TextCell("$" + std::to_string(10000 * row.size()) + ",000"));
        }
        return sheet;
    }

    void Write(const Sheet& sheet) {
        m_document.Start();
        WriteSheetTable(m_document, sheet);
        m_document.End();
    }

    std::vector<std::string> Texts() const { return TextsOf(m_document.Page(1)); }

    void ExpectWithinMargins() const {
        const PageGeometry& page = m_document.Geometry;
        for (const TextRun& run : ItemsOf<TextRun>(m_document.Page(1))) {
            EXPECT_GE(run.X, page.MarginLeft) << run.Text;
            EXPECT_LE(run.X + run.Width, page.PageWidth - page.MarginRight) << run.Text;
        }
    }

    FixedMeasure m_measure;
    PrintDocument m_document{m_measure};
};

TEST_F(SheetTableTest, ItHasTitleHeadsAndEveryCell) {
    Write(WideSheet(3));
    EXPECT_THAT(Texts(),
                ElementsAre("Figures", "Year", "Column100", "Column101", "Column102", "1", "$10000,000",
                            "$20000,000", "$30000,000", "2", "$10000,000", "$20000,000", "$30000,000"));
    EXPECT_EQ(FindText(m_document, "Year").Style.FontSize, 9);
}

TEST_F(SheetTableTest, AWideTableGetsASmallerFont) {
    // A figure of 10 characters takes 900 twips at 9 points, and 150 for the space around it. Nine of them,
    // one of 11 characters and "Year" need 11,100 of the 10,800; at 8 points they need 10,050.
    Write(WideSheet(10));
    EXPECT_EQ(FindText(m_document, "Year").Style.FontSize, 8);
    EXPECT_EQ(m_document.PageCount(), 1U);
    ExpectWithinMargins();
}

TEST_F(SheetTableTest, AWiderTableBecomesTwo) {
    Write(WideSheet(16));
    EXPECT_EQ(std::ranges::count(Texts(), "Year"), 2);
    EXPECT_EQ(std::ranges::count(Texts(), "Figures"), 2);
    EXPECT_THAT(Texts(), Contains("$160000,000").Times(2));
    ExpectWithinMargins();
}

TEST_F(SheetTableTest, SignsAreExplained) {
    Sheet sheet = WideSheet(1);
    sheet.Rows[0][0].Mark = CellMark::Current;
    sheet.Rows[1][1].Mark = CellMark::Best;
    Write(sheet);
    EXPECT_THAT(Texts(), Contains("> 1"));
    EXPECT_THAT(Texts(), Contains("* $10000,000"));
    EXPECT_THAT(Texts(), Contains("* the best of its column     > chosen now"));
}

TEST_F(SheetTableTest, RowsThatMoveNothingAreInItalics) {
    Sheet sheet = WideSheet(1);
    sheet.Rows[1][0].Mark = CellMark::Idle;
    Write(sheet);
    EXPECT_FALSE(FindText(m_document, "1").Style.Italic);
    EXPECT_TRUE(FindText(m_document, "2").Style.Italic);
    EXPECT_THAT(Texts(), Contains("in italics: does not move the result"));
    Write(WideSheet(1));
    EXPECT_THAT(Texts(), Not(Contains("in italics: does not move the result")));
}

TEST_F(SheetTableTest, SeparatorsInATextAreText) {
    Sheet sheet = WideSheet(1);
    sheet.Rows[0][0].Text = "one|two;three";
    Write(sheet);
    EXPECT_THAT(Texts(), Contains("one|two;three"));
}

} // namespace
} // namespace Ledgrove
