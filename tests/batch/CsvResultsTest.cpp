#include "app/batch/CsvResults.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(CsvResults, TheErrorIsTheLastColumn) {
    std::string out;
    CsvResults().AppendHeadings(out);
    EXPECT_THAT(out, StartsWith("StdCase.DownPayment,StdCase.LoanAmount,"));
    EXPECT_TRUE(
        out.ends_with(",Scenario.SavingsAfter30Years,lblStdQual,lblGMHQual,dataCheck,messages,error"));
}

TEST(CsvResults, FillEveryColumnExceptTheError) {
    std::string heading;
    CsvResults().AppendHeadings(heading);
    Session session;
    session.StdCase.DownPayment = 20000;
    session.StdCase.LoanAmount = 180000.5F;
    session.StdCase.MortPayment = -1.25F;
    session.Screen.lblStdQual.Text = "YES";
    session.Screen.lblGMHQual.Text = "NO";
    std::string results;
    CsvResults().Append(results, session, {{"Ledgrove", "first line\r\nsecond"}, {"Ledgrove", "third"}});
    EXPECT_THAT(results, StartsWith("20000.00,180000.50,-1.25,0.00,"));
    EXPECT_THAT(results, HasSubstr(",YES,NO,Attention! / Cost of Standard Home is missing. / "));
    EXPECT_TRUE(results.ends_with(",first line / second / third,"));
    EXPECT_EQ(std::count(results.begin(), results.end(), '\n'), 0);
    EXPECT_EQ(std::count(results.begin(), results.end(), ','),
              std::count(heading.begin(), heading.end(), ','));
}

TEST(CsvResults, AnErrorStandsInTheLastColumn) {
    std::string heading;
    CsvResults().AppendHeadings(heading, ';');
    std::string row;
    CsvResults().AppendError(row, "Line 2: a; b", ';');
    EXPECT_TRUE(row.ends_with(";\"Line 2: a; b\""));
    EXPECT_EQ(std::count(row.begin(), row.end(), ';') - 1, std::count(heading.begin(), heading.end(), ';'));
}

TEST(CsvResults, ChosenColumnsReplaceTheMainOnes) {
    ChosenNames names;
    ASSERT_EQ(ReadResultNames("GMHCase.IntRate,StdCase.PITI,ecStdHome,Scenario.DownAsPercent", names), "");
    const CsvResults results(names);
    Session session;
    session.GMHCase.IntRate = 0.065F;
    session.StdCase.PITI = 1465.5F;
    session.Screen.ecStdHome.Text = "$200,000";
    std::string out;
    results.AppendHeadings(out);
    EXPECT_EQ(out, "GMHCase.IntRate,StdCase.PITI,fields.ecStdHome,Scenario.DownAsPercent,error");
    out.clear();
    results.Append(out, session, {});
    EXPECT_EQ(out, "0.065,1465.50,\"$200,000\",true,");
    out.clear();
    results.AppendError(out, "no");
    EXPECT_EQ(out, ",,,,no");
}

TEST(CsvResults, KnowTheirHeadings) {
    for (const char* heading :
         {"StdCase.PITI", "Scenario.TaxSavings", "lblStdQual", "fields.ecIncome", "dataCheck", "error"})
        EXPECT_TRUE(IsResultColumn(heading)) << heading;
    for (const char* heading : {"", "PITI", "ecStdHome", "fields.x", "Error"})
        EXPECT_FALSE(IsResultColumn(heading)) << heading;
}

} // namespace
} // namespace Ledgrove
