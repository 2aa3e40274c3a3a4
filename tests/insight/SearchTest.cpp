#include <cstdlib>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "insight/Breakeven.h"
#include "insight/OptionPairs.h"
#include "insight/Options.h"
#include "insight/Qualify.h"
#include "insight/Search.h"
#include "tests/insight/SampleComparisons.h"

// Tries every step and compares with what the searches say. INSIGHT_ROUNDS and INSIGHT_TRIES in the
// environment try more comparisons and more steps than ctest has time for.
namespace Ledgrove {
namespace {

using Testing::Random;

int FromEnvironment(const char* name, int otherwise) {
    const char* const number = std::getenv(name);
    return number ? std::atoi(number) : otherwise;
}

int Rounds() {
    return FromEnvironment("INSIGHT_ROUNDS", 120);
}

/// From here on, only every so-manyth step of a long walk is tried, and all of its last steps.
Step MostTries() {
    return FromEnvironment("INSIGHT_TRIES", 30'000);
}

std::string Describe(const MainScreen& screen) {
    std::string text;
    for (const auto& [name, member] : FieldTable())
        text.append(name).append("=").append((screen.*member).Text).append(" ");
    return text + std::string(screen.cboStdMortOption.Text()) + "/" +
           std::string(screen.cboGMHMortOption.Text()) + " " + std::string(screen.cboMortTerm.Text()) +
           (screen.optDownPayment == 1 ? " fixed" : "") + (screen.chkDoTax0 ? " taxes" : "");
}

class StepByStep {
public:
    StepByStep(const Insight& insight, const Lattice& steps, const Condition& condition)
        : m_insight(insight)
        , m_steps(steps)
        , m_condition(condition)
        , m_inputs(insight.Now()) {}

    bool HoldsAt(Step step) {
        m_steps.Put(step, m_inputs);
        return m_condition.Holds(m_insight.At(m_inputs));
    }

    /// Whether the condition is `wanted` at every step after `from` up to `to`.
    bool AllAre(bool wanted, Step from, Step to) {
        const Step direction = to < from ? -1 : 1;
        const Step count = (to - from) * direction;
        const Step stride = count / MostTries() + 1;
        for (Step i = 1; i <= count; i += count - i < 1'000 ? 1 : stride) {
            if (HoldsAt(from + i * direction) != wanted) {
                ADD_FAILURE() << m_steps.Control() << " at " << m_steps.TextOf(from + i * direction);
                return false;
            }
        }
        return true;
    }

private:
    const Insight& m_insight;
    const Lattice& m_steps;
    const Condition& m_condition;
    Inputs m_inputs;
};

/// Compares an answer with every step from the value now on.
void Check(const Insight& insight, const Lattice& steps, SearchDirections directions,
           const Condition& condition, const std::optional<Answer>& answer) {
    ASSERT_TRUE(answer);
    const bool holds = condition.Holds(insight.Record());
    const Direction direction = holds ? directions.WhereHolds : directions.WhereFails;
    const Step sign = direction == Direction::Up ? 1 : -1;
    const Step start = steps.Start(direction);
    const Step end = steps.End(direction);
    StepByStep walk(insight, steps, condition);
    EXPECT_EQ(answer->Kind, holds ? AnswerKind::Limit : AnswerKind::Nearest);
    if (answer->State != AnswerState::Found) {
        EXPECT_EQ(answer->State, holds ? AnswerState::Always : AnswerState::Never);
        EXPECT_TRUE(walk.AllAre(holds, start, end));
        return;
    }
    Step to = start;
    while (to != end && *answer->Change != 0 && steps.ValueOf(to) != answer->ToValue)
        to += sign;
    if (to == start) {
        ASSERT_EQ(*answer->To, answer->From);
    } else {
        ASSERT_EQ(*answer->To, steps.TextOf(to));
    }
    const Step lastAsNow = holds ? to : to - sign;
    EXPECT_TRUE(walk.AllAre(holds, start, lastAsNow));
    EXPECT_EQ(walk.HoldsAt(lastAsNow + sign), !holds);
}

constexpr SearchDirections upThenDown{Direction::Up, Direction::Down};
constexpr SearchDirections downThenUp{Direction::Down, Direction::Up};

void CheckBreakeven(const Insight& insight) {
    const Breakeven breakeven = ComputeBreakeven(insight);
    const NetCondition net(insight.Now().IncludeTaxes);
    const Lattice price = insight.Steps(Varied::GMHPrice);
    Check(insight, price, upThenDown, net, breakeven.Price);
    Check(insight, price, upThenDown, NetCondition(false), breakeven.PriceBeforeTax);
    Check(insight, price, upThenDown, SavingsCondition(), breakeven.SavingsPrice);
    Check(insight, insight.Steps(Varied::GMHBill), upThenDown, net, breakeven.Bill);
    Check(insight, insight.Steps(Varied::GMHRate), upThenDown, net, breakeven.Rate);
}

void CheckQualification(const Insight& insight) {
    const Qualification all = ComputeQualification(insight);
    for (const HomeCode home : {HomeCode::Std, HomeCode::GMH}) {
        const bool labelled = home == HomeCode::GMH;
        const HomeQualification& own = labelled ? all.GMH : all.Std;
        const QualifiesCondition qualifies(home);
        const auto check = [&](const Lattice& steps, SearchDirections directions,
                               const std::optional<Answer>& answer) {
            if (answer)
                Check(insight, steps, directions, qualifies, answer);
        };
        check(insight.Steps(Varied::Income), downThenUp, own.Income);
        check(insight.Steps(Varied::Debt), upThenDown, own.Debt);
        check(insight.DownSteps(home), downThenUp, own.Down);
        check(insight.Steps(labelled ? Varied::GMHPrice : Varied::StdPrice), upThenDown, own.Price);
        check(insight.Steps(labelled ? Varied::GMHRate : Varied::StdRate), upThenDown, own.Rate);
        check(insight.Steps(Varied::GMHBill), upThenDown, own.Bill);
    }
}

void CheckIncomes(const Insight& insight) {
    const auto pairs = OptionPairs();
    const OptionTable options = ComputeOptions(insight);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const OptionAnswer& row = options.Rows[i];
        if (!row.Missing.empty())
            continue;
        Inputs inputs = WithOptions(insight.Now(), pairs[i]);
        const auto qualifies = [&](Step income, HomeCode home) {
            inputs.AnnualIncome = static_cast<float>(income);
            const Results results = insight.At(inputs);
            return home == HomeCode::GMH ? results.GMHQualifies : results.StdQualifies;
        };
        for (const HomeCode home : {HomeCode::Std, HomeCode::GMH}) {
            const auto income = home == HomeCode::GMH ? row.GMH.IncomeToQualify : row.Std.IncomeToQualify;
            const Step end = income ? *income - 1 : 10'000'000;
            if (income) {
                EXPECT_TRUE(qualifies(*income, home));
            }
            for (Step step = 0; step <= end; step += end - step < 500 ? 1 : 499)
                ASSERT_FALSE(qualifies(step, home)) << row.Labelled << " at " << step;
        }
    }
}

TEST(InsightSearch, FindsWhatTryingEveryStepFinds) {
    Random random(20261122);
    int answered = 0;
    for (int round = 0; round < Rounds() && !HasFailure(); ++round) {
        const Session session = Testing::RandomInsightSession(random);
        const Insight insight(session.Screen, session);
        if (!insight.Missing().empty())
            continue;
        SCOPED_TRACE(std::to_string(round) + ": " + Describe(session.Screen));
        CheckBreakeven(insight);
        CheckQualification(insight);
        ++answered;
    }
    EXPECT_GT(answered, Rounds() / 2);
}

TEST(InsightSearch, FindsTheLeastIncomeOfEveryPair) {
    Random random(42);
    for (int round = 0; round < Rounds() / 4 && !HasFailure(); ++round) {
        const Session session = Testing::RandomInsightSession(random);
        const Insight insight(session.Screen, session);
        if (!insight.Missing().empty())
            continue;
        SCOPED_TRACE(std::to_string(round) + ": " + Describe(session.Screen));
        CheckIncomes(insight);
    }
}

} // namespace
} // namespace Ledgrove
