#include "app/batch/CsvCompare.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class CsvReaderTest : public testing::Test {
protected:
    /// The lines of the output. No test here has a line break within a cell, which would split it.
    std::vector<std::string> Rows(std::string_view list) {
        Comparison comparison(Testing::ShippedSession());
        CsvReader reader(comparison, m_run);
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

    /// The same for a run of its own.
    std::vector<std::string> NewRows(std::string_view list) {
        m_run.Columns.reset();
        m_warnings.clear();
        return Rows(list);
    }

    std::vector<std::string> m_warnings;
    CsvRun::Say m_say = [this](const std::string& sentence) { m_warnings.push_back(sentence); };
    CsvRun m_run{m_say, m_say, {}, CsvResults(), ','};
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
    const auto same = NewRows("ecStdHome,ecStdRate\n200000,6.5\n");
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

TEST_F(CsvReaderTest, OwnColumnsAreWrittenAgainInFrontOfTheResults) {
    const auto rows = Rows("Lot,ecStdHome,Address\n7,200000,\"1, Elm St\"\n");
    EXPECT_THAT(rows[0], StartsWith("Lot,ecStdHome,Address,StdCase.DownPayment,"));
    EXPECT_THAT(rows[1], StartsWith("7,200000,\"1, Elm St\",0.00,200000.00,"));
    EXPECT_TRUE(m_allWell);
    EXPECT_THAT(m_warnings, IsEmpty());
}

TEST_F(CsvReaderTest, TheOutputIsAnInputWithTheSameOutput) {
    const std::string list = "Lot,ecStdHome,ecGMHHome\n7,200000,206000\n8,300000,\n";
    const auto first = Rows(list);
    std::string again;
    for (const std::string& row : first)
        again += row + "\n";
    EXPECT_EQ(NewRows(again), first);
    EXPECT_THAT(m_warnings, IsEmpty());
}

TEST_F(CsvReaderTest, CaptionsAreInputs) {
    const auto rows =
        Rows("\"Sticker Price, Base Home\",\"sticker price, GREENMARK home \"\n200000,206000\n");
    const auto same = NewRows("ecStdHome,ecGMHHome\n200000,206000\n");
    EXPECT_EQ(rows[1], same[1]);
    EXPECT_TRUE(m_allWell);
}

TEST_F(CsvReaderTest, SemicolonsAndTabsSeparateAsInTheHeading) {
    const auto commas = Rows("ecStdHome,ecIncome\n200000,72000\n");
    for (const char separator : {';', '\t'}) {
        std::string list = "ecStdHome,ecIncome\n200000,72000\n";
        std::replace(list.begin(), list.end(), ',', separator);
        auto rows = NewRows(list);
        for (std::string& row : rows)
            std::replace(row.begin(), row.end(), separator, ',');
        EXPECT_EQ(rows, commas);
    }
}

TEST_F(CsvReaderTest, TooManyCellsAreRefusedButEmptyOnesAreNot) {
    EXPECT_THAT(Rows("ecStdHome\n1,2\n")[1], HasSubstr("The row has more cells than the heading row."));
    EXPECT_FALSE(m_allWell);
    EXPECT_THAT(NewRows("ecStdHome,,\n200000,,,,\n")[1], StartsWith("200000,0.00,200000.00,"));
    EXPECT_TRUE(m_allWell);
}

TEST_F(CsvReaderTest, DoubledHeadingsRefuseTheList) {
    EXPECT_THAT(Rows("Lot,ecStdHome,Lot\n1,200000,2\n"), IsEmpty());
    EXPECT_THAT(m_warnings, ElementsAre("The heading \"Lot\" stands twice, in columns 1 and 3. Rename one of "
                                        "them."));
    EXPECT_FALSE(m_allWell);
    EXPECT_THAT(NewRows("ecStdHome,\"Sticker Price, Base Home\"\n1,2\n"), IsEmpty());
    EXPECT_THAT(m_warnings, ElementsAre(HasSubstr("both mean ecStdHome")));
}

TEST_F(CsvReaderTest, AShortRowAndAPointForThousandsGetAWarning) {
    const auto rows = Rows("Lot,ecStdHome,ecGMHHome\n1,200.000,206000\n2,200000\n3,200000.5,6.500\n");
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_THAT(
        m_warnings,
        ElementsAre("Line 2, column \"ecStdHome\": \"200.000\" is read with a decimal point. Leave the "
                    "point out if it separates thousands.",
                    "Line 3 has no cell for the column \"ecGMHHome\" and those after it. The inputs "
                    "among them keep their start-up values.",
                    HasSubstr("Line 4, column \"ecGMHHome\": \"6.500\"")));
    EXPECT_TRUE(m_allWell);
}

TEST_F(CsvReaderTest, ACellWithoutAHeadingIsLeftOutWithAWarning) {
    EXPECT_THAT(Rows("ecStdHome,\n200000,x\n")[1], StartsWith("200000,0.00,"));
    EXPECT_THAT(m_warnings, ElementsAre(HasSubstr("Line 2: \"x\" stands in column 2")));
}

TEST_F(CsvReaderTest, ASecondListAddsItsRowsWithoutAHeading) {
    const auto first = Rows("Lot,ecStdHome\n1,200000\n");
    const auto second = Rows("Lot;ecStdHome\n2;300000\n");
    ASSERT_EQ(second.size(), 1u);
    EXPECT_THAT(second[0], StartsWith("2,300000,0.00,300000.00,")); // separated as the first list
    EXPECT_THAT(Rows("ecStdHome,Lot\n1,2\n"), IsEmpty());
    EXPECT_FALSE(m_allWell);
    EXPECT_THAT(m_warnings, ElementsAre(HasSubstr("The columns differ")));
}

TEST_F(CsvReaderTest, DataCheckAndMessagesHaveTheirColumns) {
    const auto rows = Rows("ecStdHome,ecGMHHome,ecStdUtil,ecGMHUtil\n0,206000,2400,1700\n");
    EXPECT_TRUE(rows[0].ends_with(",lblStdQual,lblGMHQual,dataCheck,messages,error"));
    EXPECT_THAT(rows[1], HasSubstr("Cost of Standard Home is missing."));
    EXPECT_EQ(rows.size(), 2u); // several lines of the data check are one cell on one line
}

TEST_F(CsvReaderTest, AQuoteThatIsNeverClosedEndsTheList) {
    const auto rows = Rows("ecStdHome\n200000\n\"" + std::string(2 * LongestLine, 'x'));
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_THAT(rows[2], HasSubstr("The row is longer than 1 MiB."));
    EXPECT_FALSE(m_allWell);
}

} // namespace
} // namespace Ledgrove
