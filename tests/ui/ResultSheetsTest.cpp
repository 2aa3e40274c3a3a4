#include "ui/ResultSheets.h"

#include <gtest/gtest.h>

#include <set>

namespace Ledgrove {
namespace {

constexpr SheetKind kinds[] = {SheetKind::CashFlow,      SheetKind::Purchase,     SheetKind::HouseValues,
                               SheetKind::Affordability, SheetKind::SummaryHomes, SheetKind::SummarySavings};

TEST(ResultSheetsTest, AreInTheOrderOfTheirKinds) {
    for (const SheetKind kind : kinds)
        EXPECT_EQ(SheetOf(kind).Kind, kind);
}

TEST(ResultSheetsTest, ShowEachLabelInOneRowOnly) {
    std::set<std::string_view> names;
    for (const SheetKind kind : kinds) {
        for (const SheetRow& row : SheetOf(kind).Rows) {
            EXPECT_TRUE(row.First || row.Second);
            EXPECT_NE(row.Caption.empty(), row.CaptionLabel == nullptr);
            for (const LabelMember cell : {row.CaptionLabel, row.First, row.Second}) {
                if (cell) {
                    EXPECT_TRUE(names.insert(LabelName(cell)).second) << LabelName(cell);
                }
            }
        }
    }
    // The other labels are not in tables: the sentence, two features, the note on the present value, the
    // house.
    const std::set<std::string_view> outside{"Label6", "lblfeature1", "lblfeature2", "lblPVNote",
                                             "lblHomeName"};
    for (const auto& [name, member] : LabelTable())
        EXPECT_NE(names.contains(name), outside.contains(name)) << name;
}

TEST(ResultSheetsTest, ACaptionIsCompleteOnItsOwn) {
    MainScreen screen;
    screen.lblYrsIn.Text = " Expected Savings After:   7 Years";
    screen.lblTerm.Text = "30 Years";
    const auto rows = SheetOf(SheetKind::SummarySavings).Rows;
    EXPECT_EQ(CaptionOf(rows[0], screen), "Net Monthly Cash Flow");
    EXPECT_EQ(CaptionOf(rows[1], screen), "Expected Savings After:   7 Years");
    EXPECT_EQ(CaptionOf(rows[2], screen), "Expected Savings After:   30 Years");
}

TEST(ResultSheetsTest, AnEmptyCellHasNoText) {
    MainScreen screen;
    screen.lbltaxsavmo2.Text = "$3";
    EXPECT_EQ(CellOf(nullptr, screen), "");
    EXPECT_EQ(CellOf(&MainScreen::lbltaxsavmo2, screen), "$3");
}

TEST(ResultSheetsTest, AHiddenFigureHidesItsRow) {
    MainScreen screen;
    const SheetRow& taxes = SheetOf(SheetKind::SummaryHomes).Rows[5];
    EXPECT_TRUE(IsShown(taxes, screen));
    screen.lbltaxsavmo2.Visible = false;
    EXPECT_FALSE(IsShown(taxes, screen));
}

} // namespace
} // namespace Ledgrove
