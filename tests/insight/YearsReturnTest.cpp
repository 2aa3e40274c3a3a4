#include "insight/YearsReturn.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <vector>

#include "tests/engine/RandomComparisons.h"

namespace Ledgrove {
namespace {

double Worth(double paid, const std::vector<double>& received, double rate) {
    double worth = -paid;
    for (std::size_t i = 0; i < received.size(); ++i)
        worth += received[i] / std::pow(1 + rate, static_cast<double>(i + 1));
    return worth;
}

TEST(LeastReturn, OfOnePaymentIsItsInterest) {
    EXPECT_NEAR(LeastReturn(100, std::vector{112.0}).value_or(0), 0.12, 1e-12);
    EXPECT_NEAR(LeastReturn(100, std::vector{0.0, 144.0}).value_or(0), 0.2, 1e-12);
}

TEST(LeastReturn, IsTheLeastOfSeveral) {
    Testing::Random random(6);
    for (int round = 0; round < 200; ++round) {
        const double a = random.Between(101, 130, 0.01);
        const double b = a + random.Between(1, 20, 0.01);
        const double c = b + random.Between(1, 20, 0.01);
        // -100 (y - a) (y - b) (y - c) / y^3 with y = 1 + rate.
        const std::vector received{100 * (a + b + c), -100 * (a * b + a * c + b * c), 100 * a * b * c};
        EXPECT_NEAR(LeastReturn(100, received).value_or(0), a - 1, 1e-8);
    }
}

TEST(LeastReturn, NeedsAnOutlayAndAGain) {
    EXPECT_FALSE(LeastReturn(0, std::vector{1.0}));
    EXPECT_FALSE(LeastReturn(-1, std::vector{1.0}));
    EXPECT_FALSE(LeastReturn(10, std::vector{5.0, 5.0}));
    EXPECT_FALSE(LeastReturn(10, std::vector<double>{}));
}

TEST(LeastReturn, IsWhereTheWorthFirstFallsTo0) {
    Testing::Random random(5);
    for (int round = 0; round < 300; ++round) {
        std::vector<double> received(24);
        for (double& payment : received)
            payment = random.Between(-80, 100);
        received.back() += 400;
        const double paid = random.Between(1, 300);
        const double sum = std::accumulate(received.begin(), received.end(), 0.0);
        const auto rate = LeastReturn(paid, received);
        ASSERT_EQ(rate.has_value(), sum > paid);
        if (!rate)
            continue;
        EXPECT_GT(*rate, 0);
        EXPECT_NEAR(Worth(paid, received, *rate), 0, 1e-8);
        for (int step = 0; step < 200; ++step)
            EXPECT_GT(Worth(paid, received, *rate * step / 200), 0);
    }
}

TEST(WorthToday, DiscountsEachPayment) {
    EXPECT_NEAR(WorthToday(std::vector{110.0, 121.0}, 0.1), 200, 1e-12);
    EXPECT_EQ(WorthToday(std::vector<double>{}, 0.1), 0);
}

} // namespace
} // namespace Ledgrove
