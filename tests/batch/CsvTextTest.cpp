#include "app/batch/CsvText.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

std::string Cell(std::string_view text) {
    std::string out;
    AppendCsvCell(out, text);
    return out;
}

TEST(CsvCell, APlainTextIsNotChanged) {
    for (const std::string_view text : {"", "a", "72000", "a b", "a;b", "a'b", "\xC3\xA9"})
        EXPECT_EQ(Cell(text), text);
}

TEST(CsvCell, SpecialCharactersAndOuterBlanksNeedQuotes) {
    EXPECT_EQ(Cell("a,b"), "\"a,b\"");
    EXPECT_EQ(Cell("a\"b"), "\"a\"\"b\"");
    EXPECT_EQ(Cell("a\nb"), "\"a\nb\"");
    EXPECT_EQ(Cell("a\rb"), "\"a\rb\"");
    EXPECT_EQ(Cell(" a"), "\" a\"");
    EXPECT_EQ(Cell("a\t"), "\"a\t\"");
}

TEST(CsvCell, TheSeparatorOfTheListNeedsQuotes) {
    std::string out;
    AppendCsvCell(out, "a;b,c", ';');
    EXPECT_EQ(out, "\"a;b,c\"");
    out.clear();
    AppendCsvCell(out, "a,b", ';');
    EXPECT_EQ(out, "a,b");
}

TEST(CsvCell, AFormulaGetsAnApostrophe) {
    for (const std::string_view text :
         {"=1+1", "+x", "-x", "@x", "\t=1", "\rx", "  =1", "\n=1", "+", "-", "=", "@", "-1+2", "\tx"})
        EXPECT_EQ(DefusedCell(text), "'" + std::string(text)) << text;
    EXPECT_EQ(Cell("=1+1"), "'=1+1");
    EXPECT_EQ(Cell("=a,b"), "\"'=a,b\"");
}

TEST(CsvCell, ANumberOrAPlainTextGetsNoApostrophe) {
    for (const std::string_view text : {"", "-5", "+5", "-$1,000.50", " -5", "x=1", "a@b", "'=1", "5-3", " "})
        EXPECT_EQ(DefusedCell(text), text);
}

} // namespace
} // namespace Ledgrove
