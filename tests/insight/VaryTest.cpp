#include "insight/Vary.h"

#include <array>

#include <gtest/gtest.h>

#include "engine/ReadScreen.h"
#include "tests/engine/RandomComparisons.h"
#include "tests/insight/SimpleComparison.h"

namespace Ledgrove {
namespace {

using Testing::Random;

constexpr std::array<Varied, 10> allInputs{
    Varied::Income,   Varied::Debt,    Varied::PctDown, Varied::FixedDown, Varied::StdPrice,
    Varied::GMHPrice, Varied::StdBill, Varied::GMHBill, Varied::StdRate,   Varied::GMHRate};

/// The inputs when the field shows the text of this step.
Inputs Typed(const Session& session, const Lattice& steps, Step step) {
    Session typed = session;
    Testing::FieldNamed(typed, steps.Control()).Text = steps.TextOf(step);
    return Module1::ReadInputs(typed.Screen);
}

TEST(Vary, PutsWhatTheEngineReadsFromTheText) {
    Random random(7);
    for (int round = 0; round < 400; ++round) {
        const Session session = Testing::RandomSession(random);
        for (const Varied input : allInputs) {
            const Lattice steps(input, session.Screen, 500'000);
            if (!steps.HasSteps())
                continue;
            const auto width = static_cast<std::uint64_t>(steps.Most() - steps.Least() + 1);
            for (int i = 0; i < 20; ++i) {
                const Step step = steps.Least() + static_cast<Step>(random.Next() % width);
                Inputs put = Module1::ReadInputs(session.Screen);
                steps.Put(step, put);
                EXPECT_EQ(put, Typed(session, steps, step)) << steps.Control() << " " << steps.TextOf(step);
            }
        }
    }
}

struct TextRow {
    Varied Input;
    Step At;
    const char* Text;
};

TEST(Vary, WritesTextsAsTheFieldsShowThem) {
    const Session session = Testing::SimpleSession();
    for (const TextRow& row :
         {TextRow{Varied::GMHPrice, 207'640, "$207,640"}, TextRow{Varied::PctDown, 987, "9.87%"},
          TextRow{Varied::PctDown, 10'000, "100.00%"}, TextRow{Varied::GMHRate, 6'125, "6.125%"},
          TextRow{Varied::StdRate, 1, "0.001%"}, TextRow{Varied::GMHBill, 0, "$0"}})
        EXPECT_EQ(Lattice(row.Input, session.Screen).TextOf(row.At), row.Text);
}

TEST(Vary, KeepsTheTextNowWhereTheValueIsTheSame) {
    Session session = Testing::SimpleSession();
    session.Screen.ecMonthlyDebt.Text = "";
    EXPECT_EQ(Lattice(Varied::Debt, session.Screen).TextOf(0), "");
    EXPECT_EQ(Lattice(Varied::Debt, session.Screen).TextOf(1), "$1");
}

struct RangeRow {
    Varied Input;
    const char* Now;
    Step Least, Most;
};

TEST(Vary, RangesReachToTheValueNow) {
    for (const RangeRow& row : {
             RangeRow{Varied::Income, "$60,000", 0, 10'000'000},
             RangeRow{Varied::Income, "$12,000,000", 0, 12'000'000},
             RangeRow{Varied::Debt, "", 0, 1'000'000},
             RangeRow{Varied::PctDown, "10.00%", 0, 10'000},
             RangeRow{Varied::FixedDown, "$1,000", 0, 120'000},
             RangeRow{Varied::FixedDown, "$130,000", 0, 130'000},
             RangeRow{Varied::GMHPrice, "$126,000", 1, 1'260'000},
             RangeRow{Varied::GMHPrice, "$2,000,000", 1, 16'777'216},
             RangeRow{Varied::GMHPrice, "$17,000,000", 1, 17'000'000},
             RangeRow{Varied::GMHBill, "$900", 0, 10'000},
             RangeRow{Varied::GMHBill, "$1,200", 0, 12'000},
             RangeRow{Varied::GMHRate, "6.500%", 1, 25'000},
             RangeRow{Varied::GMHRate, "0.000%", 0, 25'000},
             RangeRow{Varied::GMHRate, "30.000%", 1, 30'000},
         }) {
        Session session = Testing::SimpleSession();
        Testing::FieldNamed(session, Lattice(row.Input, session.Screen).Control()).Text = row.Now;
        const Lattice steps(row.Input, session.Screen, 120'000);
        EXPECT_EQ(steps.Least(), row.Least) << row.Now;
        EXPECT_EQ(steps.Most(), row.Most) << row.Now;
    }
}

TEST(Vary, StartsAgainstTheDirectionFromBetweenTwoSteps) {
    Session session = Testing::SimpleSession();
    session.Screen.ecGMHRate.Text = "6.12345%";
    const Lattice steps(Varied::GMHRate, session.Screen);
    EXPECT_EQ(steps.Start(Direction::Up), 6'123);
    EXPECT_EQ(steps.Start(Direction::Down), 6'124);
}

TEST(Vary, RoundsHalvesUpWithinTheRange) {
    const Session session = Testing::SimpleSession();
    const Lattice steps(Varied::PctDown, session.Screen);
    EXPECT_EQ(steps.Nearest(12.5), 13);
    EXPECT_EQ(steps.Nearest(12.4999), 12);
    EXPECT_EQ(steps.Nearest(-100), 0);
    EXPECT_EQ(steps.Nearest(1e9), 10'000);
    // 115 x 1.1 is 126.5, although the product in binary is 126.50000000000001.
    EXPECT_EQ(steps.Nearest(115 * 1.1), 127);
}

TEST(Vary, HasNoStepsForAmountsWithoutSingleDollars) {
    Session session = Testing::SimpleSession();
    session.Screen.ecIncome.Text = "99999999999999999999999999999999999999";
    EXPECT_FALSE(Lattice(Varied::Income, session.Screen).HasSteps());
}

} // namespace
} // namespace Ledgrove
