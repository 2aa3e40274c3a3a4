#pragma once

#include "tests/engine/TestSession.h"

// A comparison that can be worked out in one's head.
namespace Ledgrove::Testing {

/// No interest, property tax, insurance or PMI, nothing down, and 10 years: every $120 of price costs $1 a
/// month. The base home costs $120,000 with bills of $2,400, the labelled one $126,000 with bills of $1,200,
/// which saves $100 a month and costs $50 of it. The savings' present value is 120 x $100 = $12,000. Taxes
/// are not included.
inline Session SimpleSession() {
    Session session = StartedSession();
    session.Assumptions = {};
    session.Assumptions.YearsInHome = 7;
    MainScreen& s = session.Screen;
    ChooseTerm(session, 10);
    s.chkDoTax0 = false;
    s.ecIncome.Text = "$60,000";
    s.ecMonthlyDebt.Text = "$0";
    s.ecPctDown.Text = "0.00%";
    s.ecStdHome.Text = "$120,000";
    s.ecGMHHome.Text = "$126,000";
    s.ecStdUtil.Text = "$2,400";
    s.ecGMHUtil.Text = "$1,200";
    s.ecStdRate.Text = s.ecGMHRate.Text = "0.000%";
    return session;
}

} // namespace Ledgrove::Testing
