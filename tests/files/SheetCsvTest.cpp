#include "app/files/SheetCsv.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

TEST(SheetCsvTest, AmountsHaveCentsAndNoSigns) {
    Sheet sheet;
    sheet.Heads = {"Year", "Base Cost", "What Changes, if Anything"};
    sheet.Rows = {{{"1", 1.0, CellUnit::Text}, DollarCell(1234.567), TextCell("base: no PMI, from month 9")},
                  {{"2", 2.0, CellUnit::Text}, DollarCell(-0.5), TextCell("")}};
    EXPECT_EQ(SheetCsv(sheet), "Year,Base Cost,\"What Changes, if Anything\"\n"
                               "1,1234.57,\"base: no PMI, from month 9\"\n"
                               "2,-0.50,\n");
}

TEST(SheetCsvTest, AFormulaIsDefused) {
    Sheet sheet;
    sheet.Heads = {"=1+1"};
    EXPECT_EQ(SheetCsv(sheet), "'=1+1\n");
}

} // namespace
} // namespace Ledgrove
