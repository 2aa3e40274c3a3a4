#include "insight/Exit.h"

#include <gmock/gmock.h>

#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

using testing::HasSubstr;
using testing::Not;

struct Sold {
    SaleByYear Exit;
    Sheet Table;
};

Sold SoldOf(const Session& session) {
    const Insight insight(session.Screen, session);
    EXPECT_EQ(insight.Missing(), "");
    const SaleByYear exit = ComputeExit(insight, ComputeYears(insight));
    return {exit, ExitSheet(insight, exit)};
}

/// A fifth of the price is paid down, the rest in 10 years without interest.
Session PaidDownSession(const char* labelledPrice) {
    Session session = Testing::SimpleSession();
    session.Screen.ecPctDown.Text = "20.00%";
    session.Screen.ecGMHHome.Text = labelledPrice;
    return session;
}

TEST(Exit, GivesTheValueLessSellingCostAndBalance) {
    const SaleByYear exit = SoldOf(PaidDownSession("$126,000")).Exit;
    ASSERT_EQ(exit.Years.size(), 30U);
    const SaleYear& year = exit.Years[6];
    EXPECT_EQ(year.Year, 7);
    // 94 % of the price, less three tenths of the loan.
    EXPECT_NEAR(year.Std, 0.94 * 120'000 - 0.3 * 96'000, 1e-6);
    EXPECT_NEAR(year.GMH, 0.94 * 126'000 - 0.3 * 100'800, 1e-6);
    // $100 - $40 a month, less $1,200.
    EXPECT_NEAR(year.Cumulative, 84 * 60 - 1'200, 1e-6);
    EXPECT_NEAR(year.Total(), 5'640 - 1'440 + 3'840, 1e-6);
    EXPECT_NEAR(exit.Years[29].Std, 0.94 * 120'000, 1e-6);
}

TEST(Exit, UsesTheSettings) {
    Session session = PaidDownSession("$126,000");
    session.Years.Appreciation = 0.1;
    session.Years.PremiumKept = 0.5;
    session.Years.SellingCost = 0.05;
    const SaleYear year = SoldOf(session).Exit.Years[1];
    EXPECT_NEAR(year.Std, 120'000 * 1.21 * 0.95 - 0.8 * 96'000, 1e-6);
    EXPECT_NEAR(year.GMH, 123'000 * 1.21 * 0.95 - 0.8 * 100'800, 1e-6);
}

TEST(Exit, TheShareIsTheLeastThatLosesNothing) {
    // $24,000 more: $4,800 down, and $160 of payments against $100 of savings, so $9,840 are lost in 7 years,
    // and $5,760 more are owed. 0.94 x $24,000 x 0.70 = $15,792 make up for them, 0.69 do not.
    EXPECT_EQ(SoldOf(PaidDownSession("$144,000")).Exit.Share, 0.70);
    EXPECT_EQ(SoldOf(PaidDownSession("$126,000")).Exit.Share, 0); // $3,840 - $1,440
    Session session = PaidDownSession("$180,000");
    session.Screen.ecGMHUtil.Text = "$2,400"; // lost: 84 x $400 + $12,000, and $14,400 owed; 94 % are $56,400
    EXPECT_EQ(SoldOf(session).Exit.Share, std::nullopt);
}

TEST(Exit, TheYearsInTheHomeMayBeBeyondTheRows) {
    Session session = PaidDownSession("$144,000");
    Testing::ChooseTerm(session, 40); // $40 of payments, so $60 a month are saved
    session.Assumptions.YearsInHome = 40;
    const SaleByYear exit = SoldOf(session).Exit;
    EXPECT_EQ(exit.Years.size(), 30U);
    EXPECT_EQ(exit.AtEnd.Year, 40);
    EXPECT_NEAR(exit.AtEnd.Total(), 0.94 * 24'000 + 480 * 60 - 4'800, 1e-6);
}

TEST(Exit, EqualHomesLeaveAsMuch) {
    Session session = PaidDownSession("$120,000");
    session.Screen.ecGMHUtil.Text = session.Screen.ecStdUtil.Text;
    EXPECT_THAT(
        SoldOf(session).Table.Sentence,
        HasSubstr("the GREENMARK home leaves as much from the sale as the base home; with what it costs "
                  "and saves until then, the buyer has as much as with the base home."));
}

TEST(Exit, TheSheetSaysWhatTheSaleLeaves) {
    const Sheet sheet = SoldOf(PaidDownSession("$144,000")).Table;
    // 0.94 x $24,000 - $5,760 = $16,800, and $16,800 - $9,840.
    EXPECT_THAT(sheet.Sentence, HasSubstr("sold after 7 years, the GREENMARK home leaves $16,800 more"));
    EXPECT_THAT(sheet.Sentence, HasSubstr("the buyer has $6,960 more than with"));
    EXPECT_THAT(sheet.Sentence,
                HasSubstr("home prices stay as they are, that selling costs 6% of the price"));
    EXPECT_THAT(sheet.Sentence, HasSubstr("does not lose if it keeps at least 70% of it."));
    EXPECT_THAT(SoldOf(PaidDownSession("$110,000")).Table.Sentence, Not(HasSubstr("does not lose")));
}

TEST(Exit, NegativeProceedsAreWhatTheSellerWouldHaveToBring) {
    Session session = Testing::SimpleSession();
    session.Years.Appreciation = -0.1;
    // 0.9 x 0.94 x $120,000 = $101,520 for a balance of $108,000.
    EXPECT_EQ(SoldOf(session).Table.Rows[0][1].Text, "would have to bring $6,480");
}

} // namespace
} // namespace Ledgrove
