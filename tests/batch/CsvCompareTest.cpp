#include "app/batch/CsvCompare.h"

#include <gmock/gmock.h>

#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

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

TEST(CsvHeading, HasTheInputsThenTheResultsThenTheError) {
    std::string out;
    AppendCsvHeading(out, {"ecIncome", "a,b", "=x"});
    EXPECT_THAT(out, StartsWith("ecIncome,\"a,b\",'=x,StdCase.DownPayment,StdCase.LoanAmount,"));
    EXPECT_TRUE(out.ends_with(",Scenario.SavingsAfter30Years,lblStdQual,lblGMHQual,error\n"));
}

TEST(CsvResults, FillEveryColumnExceptTheError) {
    std::string heading;
    AppendCsvHeading(heading, {});
    Session session;
    session.StdCase.DownPayment = 20000;
    session.StdCase.LoanAmount = 180000.5F;
    session.StdCase.MortPayment = -1.25F;
    session.Screen.lblStdQual.Text = "YES";
    session.Screen.lblGMHQual.Text = "NO";
    std::string results;
    AppendCsvResults(results, session);
    EXPECT_THAT(results, StartsWith("20000.00,180000.50,-1.25,0.00,"));
    EXPECT_TRUE(results.ends_with(",YES,NO,"));
    EXPECT_EQ(std::count(results.begin(), results.end(), ','),
              std::count(heading.begin(), heading.end(), ','));
}

class CsvReaderTest : public testing::Test {
protected:
    /// The lines of the output. No test here has a line break within a cell, which would split it.
    std::vector<std::string> Rows(std::string_view list) {
        Comparison comparison(Testing::ShippedSession());
        CsvReader reader(comparison);
        const Testing::ReaderResult result = Testing::ReadWith(reader, list);
        m_allWell = result.AllWell;
        std::vector<std::string> rows;
        for (std::size_t at = 0; at < result.Output.size();) {
            const std::size_t end = result.Output.find('\n', at);
            rows.push_back(result.Output.substr(at, end - at));
            at = end + 1;
        }
        return rows;
    }

    bool m_allWell = false;
};

TEST_F(CsvReaderTest, EachRowIsWrittenAgainWithItsResults) {
    const auto rows = Rows("ecStdHome,ecPctDown\n200000,10\n100000,20\n");
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_THAT(rows[0], StartsWith("ecStdHome,ecPctDown,StdCase.DownPayment,StdCase.LoanAmount,"));
    // 10 percent down on 200,000 leaves a loan of 180,000; 20 percent down on 100,000 leaves 80,000.
    EXPECT_THAT(rows[1], StartsWith("200000,10,20000.00,180000.00,"));
    EXPECT_THAT(rows[2], StartsWith("100000,20,20000.00,80000.00,"));
    EXPECT_TRUE(m_allWell);
}

TEST_F(CsvReaderTest, AnEmptyCellKeepsTheStartUpValue) {
    const auto rows = Rows("ecStdHome,ecStdRate\n200000,\n");
    const auto same = Rows("ecStdHome,ecStdRate\n200000,6.5\n");
    EXPECT_EQ(rows[1].substr(rows[1].find(",,") + 2), same[1].substr(same[1].find(",6.5,") + 5));
}

TEST_F(CsvReaderTest, TrueAndFalseMayHaveCapitals) {
    EXPECT_THAT(Rows("chkDoTax0\nTRUE\nFalse\n"), testing::SizeIs(3));
    EXPECT_TRUE(m_allWell);
}

TEST_F(CsvReaderTest, ARefusalNamesLineAndControlAndTheNextRowIsCompared) {
    const auto rows = Rows("ecStdHome\n\nabc\n200000\n");
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_THAT(rows[1], StartsWith("abc,,"));
    EXPECT_TRUE(rows[1].ends_with(",Line 3: ecStdHome: You must enter a number here."));
    EXPECT_THAT(rows[2], StartsWith("200000,0.00,200000.00,"));
    EXPECT_FALSE(m_allWell);
    EXPECT_EQ(std::count(rows[1].begin(), rows[1].end(), ','),
              std::count(rows[2].begin(), rows[2].end(), ','));
}

TEST_F(CsvReaderTest, AnUnknownHeadingRefusesItsRows) {
    const auto rows = Rows("ecStdHome,Plot\n200000,7\n");
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_THAT(rows[1], HasSubstr("Line 2: Plot: This is not the name of an input."));
}

TEST_F(CsvReaderTest, SemicolonsAndTooManyCellsAreRefused) {
    EXPECT_THAT(Rows("ecStdHome;ecIncome\n1;2\n")[1], HasSubstr("Separate the columns with commas"));
    EXPECT_THAT(Rows("ecStdHome\n1,2\n")[1], HasSubstr("The row has more cells than the heading row."));
}

TEST_F(CsvReaderTest, AQuoteThatIsNeverClosedEndsTheList) {
    const auto rows = Rows("ecStdHome\n200000\n\"" + std::string(2 * LongestLine, 'x'));
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_THAT(rows[2], HasSubstr("The row is longer than 1 MiB."));
    EXPECT_FALSE(m_allWell);
}

} // namespace
} // namespace Ledgrove
