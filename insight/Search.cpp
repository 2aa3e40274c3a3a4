#include "insight/Search.h"

#include <vector>

namespace Ledgrove {

namespace {

/// Sensible comparisons need about a hundred.
constexpr int mostEvaluations = 5'000;

struct Point {
    Step At;
    Results Record;
};

/// Searches from a point towards the end of the range.
class Search {
public:
    Search(const Lattice& steps, const Insight& insight, const Inputs& inputs, const Condition& condition)
        : m_steps(steps)
        , m_insight(insight)
        , m_inputs(inputs)
        , m_condition(condition) {}

    Point At(Step step) {
        ++m_evaluations;
        m_steps.Put(step, m_inputs);
        return {step, m_insight.At(m_inputs)};
    }

    bool HoldsAt(const Point& point) const { return m_condition.Holds(point.Record); }

    /// The first step from `start` to `end` at which the condition is not as it is at `start`; empty if there
    /// is none. Keeps the points on both sides of the change.
    std::optional<Step> FirstChange(const Point& start, Step end) {
        m_before = start;
        if (start.At == end)
            return std::nullopt;
        const bool holds = HoldsAt(start);
        m_ahead.push_back(At(end));
        while (!m_ahead.empty() && IsCertain()) {
            const Step distance = m_ahead.back().At - m_before.At;
            const bool neighbours = distance == 1 || distance == -1;
            if (neighbours && HoldsAt(m_ahead.back()) != holds)
                return m_ahead.back().At;
            if (neighbours || m_condition.Throughout(m_before.Record, m_ahead.back().Record) == holds) {
                m_before = m_ahead.back();
                m_ahead.pop_back();
            } else {
                m_ahead.push_back(At(m_before.At + distance / 2));
            }
        }
        return std::nullopt;
    }

    bool IsCertain() const { return m_evaluations < mostEvaluations; }
    const Point& BeforeChange() const { return m_before; }
    const Point& AfterChange() const { return m_ahead.back(); }

private:
    const Lattice& m_steps;
    const Insight& m_insight;
    Inputs m_inputs;
    const Condition& m_condition;
    Point m_before{};
    std::vector<Point> m_ahead; ///< evaluated points before the change, the nearest last
    int m_evaluations = 0;
};

/// Arrives at `step`. The start of the search is the value now, also where that lies between two steps.
void Arrive(Answer& answer, const Lattice& steps, Direction direction, Step step) {
    const Step start = steps.Start(direction);
    if (step == start) {
        answer.To = answer.From;
        answer.ToValue = steps.Now();
        answer.Change = 0;
        return;
    }
    answer.To = steps.TextOf(step);
    answer.ToValue = steps.ValueOf(step);
    // The difference of the steps is exact: 6.652 less 6.375 gives 0.277.
    answer.Change =
        steps.ValueOf(start) == steps.Now() ? steps.ValueOf(step - start) : answer.ToValue - steps.Now();
}

} // namespace

std::optional<Answer> LimitOrNearest(const Insight& insight, const Lattice& steps,
                                     SearchDirections directions, const Condition& condition) {
    if (!steps.HasSteps())
        return std::nullopt;
    const bool holds = condition.Holds(insight.Record());
    const Direction direction = holds ? directions.WhereHolds : directions.WhereFails;
    Search search(steps, insight, insight.Now(), condition);
    const auto change = search.FirstChange({steps.Start(direction), insight.Record()}, steps.End(direction));
    if (!search.IsCertain())
        return std::nullopt;
    Answer answer;
    answer.Kind = holds ? AnswerKind::Limit : AnswerKind::Nearest;
    answer.Input = steps.Control();
    answer.From = steps.NowText();
    if (!change) {
        answer.State = holds ? AnswerState::Always : AnswerState::Never;
        if (holds)
            Arrive(answer, steps, direction, steps.End(direction));
        return answer;
    }
    const Point& inside = holds ? search.BeforeChange() : search.AfterChange();
    const Point& outside = holds ? search.AfterChange() : search.BeforeChange();
    Arrive(answer, steps, direction, inside.At);
    answer.Edge = condition.EdgeBetween(inside.Record, outside.Record);
    answer.Beyond = condition.BandAt(outside.Record);
    return answer;
}

std::optional<Step> LeastStep(const Insight& insight, const Lattice& steps, const Inputs& inputs,
                              const Condition& condition) {
    if (!steps.HasSteps())
        return std::nullopt;
    Search search(steps, insight, inputs, condition);
    const Point least = search.At(steps.Least());
    if (search.HoldsAt(least))
        return steps.Least();
    return search.FirstChange(least, steps.Most());
}

} // namespace Ledgrove
