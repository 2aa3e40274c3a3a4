#include "app/batch/TextTable.h"

#include <gmock/gmock.h>

#include "tests/batch/BatchDesk.h"
#include "ui/ResultSheets.h"

namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The sample, with the labelled home on `option`.
std::string TableOf(const std::string& base, const std::string& option, bool taxes) {
    Comparison comparison(Testing::ShippedSession());
    InputRecord inputs;
    const std::pair<Input, std::string> values[] = {
        {Input::ecIncome, "72000"},        {Input::ecMonthlyDebt, "350"},
        {Input::ecPctDown, "10"},          {Input::ecStdHome, "200000"},
        {Input::ecGMHHome, "206000"},      {Input::ecStdUtil, "2400"},
        {Input::ecGMHUtil, "1700"},        {Input::cboStdMortOption, base},
        {Input::cboGMHMortOption, option}, {Input::chkDoTax0, taxes ? "true" : "false"}};
    for (const auto& [input, text] : values)
        inputs[input] = {true, InputKind::Text, text};
    EXPECT_FALSE(comparison.Run(inputs));
    return ResultTable(comparison);
}

TEST(TextTableTest, TheSummaryAddsUpAsShown) {
    const std::string table = TableOf("FHA", "FHA EEM", true);
    // 1,513 + 142 - 3 = 1,652
    EXPECT_THAT(table,
                HasSubstr("Mortgage Payment                                $1,465            $1,513\n"
                          "Monthly Utility Bills                             $200              $142\n"
                          "Tax Savings                                                           $3\n"
                          "Net Monthly Payment                             $1,665            $1,652\n"));
}

TEST(TextTableTest, FiguresOfAColumnEndAtTheSamePlace) {
    const std::string table = TableOf("Conventional", "Fannie Mae EEM", true);
    for (const char* row : {"Sticker Price", "Net Monthly Cash Flow", "Expected Savings After:   7 Years",
                            "Expected Savings After:   30 Years", "* PV of Savings"}) {
        const std::size_t start = table.find(std::string("\n") + row) + 1;
        EXPECT_EQ(table.find('\n', start) - start, 36U + 18 + 18) << row;
    }
}

TEST(TextTableTest, LeavesTheTaxSavingsOutWhereTheTabHidesThem) {
    const std::string table = TableOf("FHA", "FHA EEM", false);
    const std::string summary =
        table.substr(table.find("Summary"), table.find("Cash Flow  ") - table.find("Summary"));
    EXPECT_THAT(summary, Not(HasSubstr("Tax Savings")));
}

TEST(TextTableTest, HasTheNoteOfThePresentValue) {
    const std::string note = "* Fannie Mae refers to this as the Energy Savings Value\n";
    EXPECT_THAT(TableOf("Conventional", "Fannie Mae EEM", true), HasSubstr(note));
    EXPECT_THAT(TableOf("FHA", "FHA EEM", true), Not(HasSubstr(note)));
}

TEST(TextTableTest, HasARowForEachShownRowOfTheTabs) {
    Comparison comparison(Testing::ShippedSession());
    ASSERT_FALSE(comparison.Run({}));
    const std::string table = ResultTable(comparison);
    for (const SheetKind kind :
         {SheetKind::CashFlow, SheetKind::Purchase, SheetKind::HouseValues, SheetKind::Affordability,
          SheetKind::SummaryHomes, SheetKind::SummarySavings}) {
        for (const SheetRow& row : SheetOf(kind).Rows)
            EXPECT_THAT(table, HasSubstr('\n' + CaptionOf(row, comparison.State().Screen) + ' '));
    }
}

} // namespace
} // namespace Ledgrove
