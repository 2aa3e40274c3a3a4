#include "ui/DataCheck.h"

#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

constexpr const char* stdCostMissing = "Cost of Standard Home is missing.\r";
constexpr const char* gmhCostMissing = "Cost of GREENMARK Home is missing.\r";
constexpr const char* stdUtilMissing = "Standard Home utility bill is missing.\r";
constexpr const char* gmhUtilMissing = "GREENMARK utility bill is missing.\r";
constexpr const char* cheaper = "Note:  GREENMARK Home is cheaper!\r";
constexpr const char* tenPercentMore = "Note:  GREENMARK Home costs more than 10% more!\r";
constexpr const char* lowerBaseBill = "Warning:  Standard Home Energy Bill is less than GREENMARK Home.\r";
constexpr const char* stdRateMissing = "Standard Home Interest Rate is missing.\r";
constexpr const char* gmhRateMissing = "GREENMARK Home Interest Rate is missing.\r";
constexpr const char* above20 = "Warning:  Interest rate > 20%.\r";
constexpr const char* higherRate = "Warning:  GREENMARK Loan interest rate is higher than Standard Loan.\r";
constexpr const char* tooLow = "Note:  GREENMARK Loan interest rate may be too low.\r";
constexpr const char* quarterMore =
    "Note:  Standard Loan interest rate is significantly higher (>=25%) than the "
    "GREENMARK Loan interest rate.\r";
constexpr const char* greaterStretch =
    "Warning:  Standard Home mortgage stretch is greater than GREENMARK stretch.\r";
constexpr const char* stretchAbove2 = "Warning:  Standard Home mortgage stretch is greater than 2%.\r";
constexpr const char* stretchAbove5 = "Warning:  GREENMARK Home mortgage stretch is greater than 5%.\r";
constexpr const char* incomeMissing = "Annual Income is missing.\r";

struct Entry {
    const char *Field, *Text;
};

struct CheckRow {
    std::vector<Entry> Entries; ///< changes to the sample, for which the check has no remark
    std::vector<const char*> Remarks;
};

void PrintTo(const CheckRow& row, std::ostream* out) {
    for (const Entry& entry : row.Entries)
        *out << entry.Field << '=' << entry.Text << ' ';
}

class DataCheck : public testing::TestWithParam<CheckRow> {};

TEST_P(DataCheck, RemarksInOrder) {
    Session session = SampleSession();
    for (const Entry& entry : GetParam().Entries)
        FieldNamed(session, entry.Field).Text = entry.Text;
    std::string wanted;
    for (const char* remark : GetParam().Remarks)
        wanted += remark;
    if (!wanted.empty())
        wanted = "Attention!\r\r" + wanted + "\r";
    EXPECT_EQ(DataCheckText(session.Screen), wanted);
}

INSTANTIATE_TEST_SUITE_P(Missing, DataCheck,
                         testing::Values(CheckRow{{}, {}},
                                         CheckRow{{{"ecStdHome", "$0"}}, {stdCostMissing, tenPercentMore}},
                                         CheckRow{{{"ecStdHome", ""}}, {stdCostMissing, tenPercentMore}},
                                         CheckRow{{{"ecStdHome", "abc"}}, {stdCostMissing, tenPercentMore}},
                                         CheckRow{{{"ecGMHHome", "$0"}}, {gmhCostMissing, cheaper}},
                                         CheckRow{{{"ecStdUtil", "$0"}}, {stdUtilMissing, lowerBaseBill}},
                                         CheckRow{{{"ecGMHUtil", "$0"}}, {gmhUtilMissing}},
                                         CheckRow{{{"ecStdRate", "0.000%"}}, {stdRateMissing, higherRate}},
                                         CheckRow{{{"ecIncome", "$0"}}, {incomeMissing}},
                                         CheckRow{{{"ecIncome", "$1"}}, {}}));

// 220,000 is 1.1 times 200,000. In single precision, 1.1 times 16,000,001 is also 17,600,002.
INSTANTIATE_TEST_SUITE_P(
    Prices, DataCheck,
    testing::Values(CheckRow{{{"ecGMHHome", "$200,000"}}, {}},
                    CheckRow{{{"ecGMHHome", "$199,999"}}, {cheaper}},
                    CheckRow{{{"ecGMHHome", "$220,000"}}, {}},
                    CheckRow{{{"ecGMHHome", "$220,001"}}, {tenPercentMore}},
                    CheckRow{{{"ecStdHome", "$16,000,001"}, {"ecGMHHome", "$17,600,002"}}, {}}));

INSTANTIATE_TEST_SUITE_P(UtilityBills, DataCheck,
                         testing::Values(CheckRow{{{"ecGMHUtil", "$2,400"}}, {}},
                                         CheckRow{{{"ecGMHUtil", "$2,401"}}, {lowerBaseBill}}));

// A labelled rate of 0 and a base rate below 0 are not "missing".
INSTANTIATE_TEST_SUITE_P(RateSigns, DataCheck,
                         testing::Values(CheckRow{{{"ecGMHRate", "0.000%"}}, {tooLow, quarterMore}},
                                         CheckRow{{{"ecGMHRate", "-0.001%"}},
                                                  {gmhRateMissing, tooLow, quarterMore}},
                                         CheckRow{{{"ecStdRate", "0"}, {"ecGMHRate", "0"}}, {stdRateMissing}},
                                         CheckRow{{{"ecStdRate", "-1"}, {"ecGMHRate", "0"}}, {higherRate}}));

INSTANTIATE_TEST_SUITE_P(
    HighRates, DataCheck,
    testing::Values(CheckRow{{{"ecStdRate", "20%"}, {"ecGMHRate", "20%"}}, {}},
                    CheckRow{{{"ecStdRate", "20.001%"}, {"ecGMHRate", "20%"}}, {above20}},
                    CheckRow{{{"ecStdRate", "20%"}, {"ecGMHRate", "20.001%"}}, {above20, higherRate}},
                    CheckRow{{{"ecStdRate", "21%"}, {"ecGMHRate", "21%"}}, {above20}},
                    CheckRow{{{"ecStdRate", "21%"}, {"ecGMHRate", "6%"}}, {above20, tooLow, quarterMore}}));

// 1.25 x 6.5 = 8.125; 1.25 x 10 = 12.5 and 1.25 x 1.04 = 1.3 are not less. In single precision 1.25 x 0.06 is
// 0.0749999955, which is less than 0.075, stored as 0.0750000030.
INSTANTIATE_TEST_SUITE_P(
    RateDifferences, DataCheck,
    testing::Values(CheckRow{{{"ecStdRate", "6.499"}}, {higherRate}},
                    CheckRow{{{"ecStdRate", "7.0"}, {"ecGMHRate", "6.8"}}, {}},
                    CheckRow{{{"ecStdRate", "7.0"}, {"ecGMHRate", "6.5"}}, {}},
                    CheckRow{{{"ecStdRate", "7.0"}, {"ecGMHRate", "6.499"}}, {tooLow}},
                    CheckRow{{{"ecStdRate", "7.0"}, {"ecGMHRate", "6.0"}}, {tooLow}},
                    CheckRow{{{"ecStdRate", "12.5"}, {"ecGMHRate", "10"}}, {tooLow}},
                    CheckRow{{{"ecStdRate", "12.501"}, {"ecGMHRate", "10"}}, {tooLow, quarterMore}},
                    CheckRow{{{"ecStdRate", "1.3"}, {"ecGMHRate", "1.04"}}, {}},
                    CheckRow{{{"ecStdRate", "7.49"}, {"ecGMHRate", "6.0"}}, {tooLow}},
                    CheckRow{{{"ecStdRate", "7.5"}, {"ecGMHRate", "6.0"}}, {tooLow, quarterMore}},
                    CheckRow{{{"ecStdRate", "8.2"}, {"ecGMHRate", "6.5"}}, {tooLow, quarterMore}},
                    CheckRow{{{"ecStdRate", "1.3"}, {"ecGMHRate", "1.0"}}, {quarterMore}}));

INSTANTIATE_TEST_SUITE_P(
    Stretches, DataCheck,
    testing::Values(CheckRow{{{"ecStdStr", "2.00%"}, {"ecGMHStr", "2.00%"}}, {}},
                    CheckRow{{{"ecStdStr", "2.00%"}, {"ecGMHStr", "1.99%"}}, {greaterStretch}},
                    CheckRow{{{"ecStdStr", "2.01%"}, {"ecGMHStr", "5.00%"}}, {stretchAbove2}},
                    CheckRow{{{"ecGMHStr", "5.00%"}}, {}}, CheckRow{{{"ecGMHStr", "5.01%"}}, {stretchAbove5}},
                    CheckRow{{{"ecStdStr", "7%"}, {"ecGMHStr", "6%"}},
                             {greaterStretch, stretchAbove2, stretchAbove5}}));

TEST(DataCheckText, OfEmptyFieldsListsWhatIsMissing) {
    EXPECT_EQ(
        DataCheckText(MainScreen()),
        "Attention!\r\rCost of Standard Home is missing.\rCost of GREENMARK Home is missing.\rStandard "
        "Home utility bill is missing.\rGREENMARK utility bill is missing.\rStandard Home Interest Rate is "
        "missing.\rAnnual Income is missing.\r\r");
}

TEST(DataCheckText, KeepsTheOrderOfAllRemarksThatCanOccurTogether) {
    Session session = SampleSession();
    MainScreen& screen = session.Screen;
    screen.ecStdHome.Text = "$0";
    screen.ecStdUtil.Text = "$0";
    screen.ecStdRate.Text = "21%";
    screen.ecGMHRate.Text = "-1%";
    screen.ecStdStr.Text = "7%";
    screen.ecGMHStr.Text = "6%";
    screen.ecIncome.Text = "";
    EXPECT_EQ(DataCheckText(screen), std::string("Attention!\r\r") + stdCostMissing + stdUtilMissing +
                                         tenPercentMore + lowerBaseBill + gmhRateMissing + above20 + tooLow +
                                         quarterMore + greaterStretch + stretchAbove2 + stretchAbove5 +
                                         incomeMissing + "\r");
}

TEST(RunDataCheck, ShowsOneMessageEachTime) {
    Session session = SampleSession();
    session.Screen.ecIncome.Text.clear();
    ScriptedHost host;
    RunDataCheck(session.Screen, host);
    RunDataCheck(session.Screen, host);
    ASSERT_EQ(host.Messages.size(), 2U);
    for (const Message& message : host.Messages) {
        EXPECT_EQ(message.Title, "Ledgrove Data Check");
        EXPECT_EQ(message.Text, "Attention!\r\rAnnual Income is missing.\r\r");
        EXPECT_EQ(message.Icon, MessageIcon::Exclamation);
        EXPECT_EQ(message.Buttons, MessageButtons::Ok);
    }
    EXPECT_EQ(session.Screen.ecIncome.Text, "");
}

TEST(RunDataCheck, IsSilentWithoutRemarks) {
    const Session session = SampleSession();
    ScriptedHost host;
    RunDataCheck(session.Screen, host);
    EXPECT_TRUE(host.Messages.empty());
}

TEST(CheckHousePair, ChecksOnlyPricesAndBills) {
    EXPECT_EQ(CheckHousePair({}),
              std::string(stdCostMissing) + gmhCostMissing + stdUtilMissing + gmhUtilMissing);
    EXPECT_EQ(CheckHousePair({200000, 199000, 1000, 1001}), std::string(cheaper) + lowerBaseBill);
    EXPECT_EQ(CheckHousePair({200000, 220000, 1000, 1000}), "");
}

} // namespace

} // namespace Ledgrove::Module1
