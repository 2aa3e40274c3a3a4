#include "engine/FinancialFunctions.h"

#include "tests/ReferenceTable.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace Ledgrove::Module1;

double Compute(const std::string& function, double rate, double periods, double period, double amount) {
    if (function == "PV")
        return PV(rate, periods, amount);
    if (function == "FV")
        return FV(rate, periods, amount);
    if (function == "PMT")
        return PMT(rate, periods, amount);
    return IPMT(rate, period, periods, amount);
}

// The reference values come from a spreadsheet, which is less exact for the interest of the last period and
// for rates above 3 % a month.
TEST(FinancialFunctions, AgreeWithAnIndependentImplementation) {
    const auto rows = Ledgrove::Testing::ReadReferenceTable("financial_functions.csv");
    ASSERT_EQ(rows.size(), 12715U);
    for (const auto& row : rows) {
        const double rate = std::stod(row[1]);
        const double periods = std::stod(row[2]);
        const double period = row[3].empty() ? 0 : std::stod(row[3]);
        const double wanted = std::stod(row[5]);
        const double tolerance = row[0] == "IPMT" && (period == periods || rate > 0.03) ? 2e-9 : 1e-9;
        const double got = Compute(row[0], rate, periods, period, std::stod(row[4]));
        ASSERT_NEAR(got, wanted, std::fabs(wanted) * tolerance)
            << row[0] << '(' << row[1] << ", " << row[2] << ", " << row[3] << ", " << row[4] << ')';
    }
}

TEST(FinancialFunctions, ZeroRateSpreadsEvenly) {
    EXPECT_DOUBLE_EQ(PMT(0, 360, -180000), 500); // 180,000 / 360
    EXPECT_DOUBLE_EQ(PV(0, 12, -50), 600);       // 12 x 50
    EXPECT_DOUBLE_EQ(FV(0, 84, -10), 840);       // 84 x 10
    EXPECT_DOUBLE_EQ(IPMT(0, 6, 12, -1000), 0);
}

TEST(FinancialFunctions, InterestAndPrincipalOfEveryPeriodRepayTheLoan) {
    const double loan = 120000;
    const double payment = PMT(0.005, 240, -loan);
    double principal = 0;
    for (int period = 1; period <= 240; ++period)
        principal += payment - IPMT(0.005, period, 240, -loan);
    EXPECT_NEAR(principal, loan, 1e-6);
}

TEST(FinancialFunctions, TheUnpaidBalanceIsWhatThePaymentsLeave) {
    const double loan = 120000;
    const double payment = PMT(0.005, 240, -loan);
    double owed = loan;
    for (int paid = 0; paid <= 240; ++paid) {
        EXPECT_NEAR(UnpaidBalance(0.005, paid, 240, loan), owed, 1e-6) << paid;
        owed -= payment - owed * 0.005;
    }
    EXPECT_DOUBLE_EQ(UnpaidBalance(0, 60, 240, 120000), 90000); // three quarters are left
    EXPECT_DOUBLE_EQ(UnpaidBalance(0.005, 0, 240, -loan), -loan);
}

TEST(FinancialFunctions, ZeroPeriodsGiveNoFiniteResult) {
    EXPECT_FALSE(std::isfinite(PMT(0, 0, -1000)));
    EXPECT_FALSE(std::isfinite(PMT(0.005, 0, -1000)));
    EXPECT_FALSE(std::isfinite(IPMT(0.005, 0, 0, -1000)));
}

TEST(FinancialFunctions, TinyRatesKeepTheirPrecision) {
    // To first order, PV = n - r n (n + 1) / 2: 360 - 1e-12 x 360 x 361 / 2
    EXPECT_NEAR(PV(1e-12, 360, -1), 360 - 6.498e-8, 1e-11);
}

} // namespace
