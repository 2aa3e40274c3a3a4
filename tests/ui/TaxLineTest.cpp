#include "ui/TaxLine.h"

#include "tests/insight/SimpleComparison.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

/// Two homes of the same price at 6 % and 7 %: the dearer loan saves taxes on the tab, but neither home's
/// interest, at most $8,400 in a year, exceeds the standard deduction.
Session DeductionSession() {
    Session session = Testing::SimpleSession();
    Testing::ChooseTerm(session, 30);
    session.Screen.chkDoTax0 = true;
    session.Screen.ecGMHHome.Text = "$120,000";
    session.Screen.ecStdRate.Text = "6.000%";
    session.Screen.ecGMHRate.Text = "7.000%";
    return session;
}

TEST(TaxLine, IsOffWhereNeitherHomeItemizes) {
    EXPECT_TRUE(IsTaxLineOff(DeductionSession()));
}

TEST(TaxLine, IsRightWhereNothingIsShown) {
    Session session = DeductionSession();
    session.Screen.chkDoTax0 = false;
    EXPECT_FALSE(IsTaxLineOff(session));
}

TEST(TaxLine, IsNotCheckedWithoutAPrice) {
    Session session = DeductionSession();
    session.Screen.ecStdHome.Text = "";
    EXPECT_FALSE(IsTaxLineOff(session));
}

} // namespace
} // namespace Ledgrove
