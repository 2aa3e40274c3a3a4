#include "app/files/TabText.h"

#include "FileDesk.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::Not;

MainScreen SampleScreen() {
    Session session = Testing::SampleSession();
    session.Features = {"Finished basement", "=cmd()"};
    Testing::ScriptedHost host;
    Module1::Recalculate(session, host);
    Module1::RefreshFeatureCaptions(session);
    return session.Screen;
}

std::string Aligned(int tab) {
    return AlignedText(TabContent(SampleScreen(), tab));
}

std::string Spreadsheet(int tab) {
    return SpreadsheetText(TabContent(SampleScreen(), tab));
}

TEST(TabTextTest, ColumnsAreAlignedByBlanks) {
    EXPECT_EQ(Aligned(1), "                        Monthly   Yearly\n"
                          "Additional Mortgage        -$48    -$576\n"
                          "Utility Savings             $58     $700\n"
                          "Tax Savings                  $3      $34\n"
                          "Net Monthly Cash Flow       $13     $158\n");
}

TEST(TabTextTest, ASpreadsheetGetsCells) {
    EXPECT_EQ(Spreadsheet(1), "\tMonthly\tYearly\n"
                              "Additional Mortgage\t-$48\t-$576\n"
                              "Utility Savings\t$58\t$700\n"
                              "Tax Savings\t$3\t$34\n"
                              "Net Monthly Cash Flow\t$13\t$158\n");
}

TEST(TabTextTest, EveryTabGivesTheTextsThatItShows) {
    EXPECT_THAT(Aligned(0), HasSubstr("1. Enter Homebuyer Annual Income"));
    EXPECT_THAT(Aligned(2), HasSubstr("Finished basement"));
    EXPECT_THAT(Aligned(3), HasSubstr("Maximum Loan Value"));
    EXPECT_THAT(Spreadsheet(3), HasSubstr("Buyer Qualifies?\tYES\tYES\n"));
    EXPECT_THAT(Spreadsheet(4), HasSubstr("Net Monthly Payment\t$1,665\t$1,652\n"));
    EXPECT_THAT(Spreadsheet(4), HasSubstr("Expected Savings After:   7 Years\t\t$1,399\n"));
    EXPECT_THAT(Spreadsheet(4), HasSubstr("Expected Savings After:   30 Years\t\t$14,600\n"));
    EXPECT_THAT(Aligned(4), HasSubstr("estimates & does not account for LTV"));
}

TEST(TabTextTest, AHiddenTaxLineIsLeftOut) {
    MainScreen screen = SampleScreen();
    EXPECT_THAT(SpreadsheetText(TabContent(screen, 4)), HasSubstr("Tax Savings"));
    screen.lbltaxsavmo2.Visible = false;
    EXPECT_THAT(SpreadsheetText(TabContent(screen, 4)), Not(HasSubstr("Tax Savings")));
}

TEST(TabTextTest, NoTextRunsAsAFormula) {
    EXPECT_THAT(Spreadsheet(2), HasSubstr("'=cmd()\n"));
    EXPECT_THAT(Aligned(2), HasSubstr("\n=cmd()\n"));
}

TEST(TabTextTest, NoTextBreaksOutOfItsCell) {
    MainScreen screen = SampleScreen();
    screen.lblfeature1.Text = "a\tb\nc";
    EXPECT_THAT(SpreadsheetText(TabContent(screen, 2)), HasSubstr("a b c\n"));
}

TEST(TabTextTest, CharactersOfSeveralBytesTakeOneColumn) {
    MainScreen screen = SampleScreen();
    screen.lblnetcashflowtext.Text = "Überschuß";
    EXPECT_THAT(AlignedText(TabContent(screen, 1)),
                HasSubstr("Überschuß" + std::string(10 + 3 + 4, ' ') + "$13"));
}

} // namespace
} // namespace Ledgrove
