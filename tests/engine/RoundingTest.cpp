#include "engine/Rounding.h"

#include "engine/NumberText.h"
#include "tests/engine/RandomComparisons.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace Ledgrove::Module1 {

namespace {

using Testing::Random;

constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr double infiniteDollars = std::numeric_limits<double>::infinity();
constexpr int randomValues = 1'000'000;

// The same roundings through a text, as the rules define them.
float ShownAsText(float amount) {
    return ParseFieldValue(MoneyText(amount), 1);
}
double WholeDollarsAsText(double amount) {
    return ReadNumber(FormatPicture(std::nearbyint(amount * 100) / 100, "#0")).value_or(infiniteDollars);
}
float TypedAsText(float percent) {
    return ParseFieldValue(PlainText(percent), 100);
}

template <typename Number>
struct Pair {
    Number In, Out;
};

TEST(ShownDollarsTest, RoundsHalvesAwayFromZero) {
    const Pair<float> pairs[] = {{0, 0},
                                 {0.49F, 0},
                                 {0.5F, 1},
                                 {-0.5F, -1},
                                 {2.5F, 3},
                                 {-2.5F, -3},
                                 {0.49999997F, 0}, // the single below one half
                                 {4194304.5F, 4194305},
                                 {8388607.5F, 8388608},
                                 {8388609, 8388609},
                                 {16777218, 16777218},
                                 {1e30F, 1e30F},
                                 {infinite, 0}};
    for (const auto& [in, out] : pairs)
        EXPECT_EQ(ShownDollars(in), out) << in;
    EXPECT_EQ(ShownDollars(std::nanf("")), 0);
}

TEST(WholeDollarsTest, RoundsToCentsFirst) {
    const Pair<double> pairs[] = {{0, 0},
                                  {100.494, 100},  // 100.49
                                  {100.4951, 101}, // 100.50
                                  {100.505, 101},  // 100.50: half a cent rounds to the even cent
                                  {-100.4951, -101},
                                  {2.5, 3},
                                  {-0.2, 0},
                                  {1e12 + 0.5, 1e12 + 1},
                                  {1e13 + 0.5, 1e13 + 1},
                                  {123456789012345.6, 123456789012346},     // fifteen digits
                                  {1234567890123456.0, 1234567890123460.0}, // the sixteenth digit is dropped
                                  {3e38, 3e38},
                                  {4e38, infiniteDollars},
                                  {infiniteDollars, infiniteDollars}};
    for (const auto& [in, out] : pairs)
        EXPECT_EQ(WholeDollarsFromCents(in), out) << in;
    EXPECT_FALSE(std::signbit(WholeDollarsFromCents(-0.2)));
}

TEST(AsTypedTest, RoundsToSevenDigits) {
    const Pair<float> pairs[] = {{0, 0},
                                 {1.5F, 0.015F},
                                 {0.9F, 0.009F},
                                 {0.65F, 0.0065F},
                                 {39.6F, 0.396F},
                                 {0.001F, 0.00001F},
                                 {99.99999F, 0.9999999F},
                                 {100, 1},
                                 {1234.5678F, 12.34568F},
                                 {-1.5F, -0.015F}};
    for (const auto& [in, out] : pairs)
        EXPECT_EQ(AsTyped(in), out) << in;
    EXPECT_FALSE(std::signbit(AsTyped(-0.0F)));
}

/// Any finite single.
float AnySingle(Random& random) {
    for (;;) {
        const auto bits = static_cast<std::uint32_t>(random.Next());
        float value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value))
            return value;
    }
}

/// A single of a size that people use, often with a tie in its digits.
float UsualSingle(Random& random) {
    const double steps[] = {1, 0.5, 0.25, 0.125, 0.1, 0.01, 0.001, 0.0001, 1.0 / 64};
    const double step = steps[random.Below(9)];
    return static_cast<float>(static_cast<double>(static_cast<std::int64_t>(random.Next() >> 40U)) * step) *
           (random.OneIn(2) ? 1.0F : -1.0F);
}

/// Values at which the number of digits or the precision changes, and their neighbours.
std::vector<float> BorderSingles() {
    std::vector<float> borders{0.0F, std::numeric_limits<float>::max(), std::numeric_limits<float>::min(),
                               std::numeric_limits<float>::denorm_min()};
    for (double power = 1e-12; power < 1e38; power *= 10)
        for (const double factor : {1.0, 0.5, 0.05, 0.005, 9.9999995, 0.99999995})
            borders.push_back(static_cast<float>(power * factor));
    for (int exponent = -30; exponent < 100; ++exponent)
        borders.push_back(std::ldexp(1.0F, exponent));
    std::vector<float> all;
    for (const float border : borders)
        for (const float value : {std::nextafter(border, 0.0F), border, std::nextafter(border, infinite)})
            if (std::isfinite(value)) {
                all.push_back(value);
                all.push_back(-value);
            }
    return all;
}

void ExpectSinglesAsText(float value) {
    ASSERT_EQ(ShownDollars(value), ShownAsText(value)) << value;
    ASSERT_EQ(AsTyped(value), TypedAsText(value)) << value;
    ASSERT_EQ(std::signbit(AsTyped(value)), std::signbit(TypedAsText(value))) << value;
}

void ExpectDollarsAsText(double amount) {
    ASSERT_EQ(WholeDollarsFromCents(amount), WholeDollarsAsText(amount)) << amount;
    ASSERT_EQ(std::signbit(WholeDollarsFromCents(amount)), std::signbit(WholeDollarsAsText(amount)))
        << amount;
}

TEST(RoundingTest, AgreesWithTheTextsOnRandomSingles) {
    Random random(1);
    for (int i = 0; i < randomValues; ++i)
        ExpectSinglesAsText(random.OneIn(2) ? AnySingle(random) : UsualSingle(random));
}

TEST(RoundingTest, AgreesWithTheTextsOnBorderSingles) {
    for (const float value : BorderSingles())
        ExpectSinglesAsText(value);
}

TEST(RoundingTest, AgreesWithTheTextsOnRandomDollars) {
    Random random(2);
    for (int i = 0; i < randomValues; ++i) {
        // Up to 2^63 cents, half of them with a fraction of a cent.
        const auto cents =
            static_cast<double>(random.Next() >> (1U + static_cast<unsigned>(random.Below(60))));
        const double amount = cents / 100 + (random.OneIn(2) ? random.Between(0, 100, 0.0001) : 0);
        ExpectDollarsAsText(random.OneIn(2) ? amount : -amount);
    }
}

TEST(RoundingTest, AgreesWithTheTextsOnBorderDollars) {
    for (const float border : BorderSingles())
        for (const double more : {0.0, 0.005, 0.495, 0.5, 0.505, 0.995})
            ExpectDollarsAsText(static_cast<double>(border) + more);
    for (double power = 1; power < 1e40; power *= 10)
        for (const double factor : {1.0, 1.5, 1.0000000000000005, 9.999999999999995, 3.4028235677973366})
            ExpectDollarsAsText(power * factor);
}

} // namespace

} // namespace Ledgrove::Module1
