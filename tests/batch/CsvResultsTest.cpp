#include "app/batch/CsvResults.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(CsvResults, TheErrorIsTheLastColumn) {
    std::string out;
    AppendResultHeadings(out);
    EXPECT_THAT(out, StartsWith("StdCase.DownPayment,StdCase.LoanAmount,"));
    EXPECT_TRUE(
        out.ends_with(",Scenario.SavingsAfter30Years,lblStdQual,lblGMHQual,dataCheck,messages,error"));
}

TEST(CsvResults, FillEveryColumnExceptTheError) {
    std::string heading;
    AppendResultHeadings(heading);
    Session session;
    session.StdCase.DownPayment = 20000;
    session.StdCase.LoanAmount = 180000.5F;
    session.StdCase.MortPayment = -1.25F;
    session.Screen.lblStdQual.Text = "YES";
    session.Screen.lblGMHQual.Text = "NO";
    std::string results;
    AppendCsvResults(results, session, {{"Ledgrove", "first line\r\nsecond"}, {"Ledgrove", "third"}});
    EXPECT_THAT(results, StartsWith("20000.00,180000.50,-1.25,0.00,"));
    EXPECT_THAT(results, HasSubstr(",YES,NO,Attention! / Cost of Standard Home is missing. / "));
    EXPECT_TRUE(results.ends_with(",first line / second / third,"));
    EXPECT_EQ(std::count(results.begin(), results.end(), '\n'), 0);
    EXPECT_EQ(std::count(results.begin(), results.end(), ','),
              std::count(heading.begin(), heading.end(), ','));
}

TEST(CsvResults, AnErrorStandsInTheLastColumn) {
    std::string heading;
    AppendResultHeadings(heading, ';');
    std::string row;
    AppendCsvError(row, "Line 2: a; b", ';');
    EXPECT_TRUE(row.ends_with(";\"Line 2: a; b\""));
    EXPECT_EQ(std::count(row.begin(), row.end(), ';') - 1, std::count(heading.begin(), heading.end(), ';'));
}

TEST(CsvResults, KnowTheirHeadings) {
    for (const char* heading : {"StdCase.PITI", "Scenario.TaxSavings", "lblStdQual", "dataCheck", "error"})
        EXPECT_TRUE(IsResultColumn(heading)) << heading;
    for (const char* heading : {"", "PITI", "ecStdHome", "Error"})
        EXPECT_FALSE(IsResultColumn(heading)) << heading;
}

} // namespace
} // namespace Ledgrove
