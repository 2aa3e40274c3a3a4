#include "insight/Qualify.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <vector>

#include "insight/Conditions.h"
#include "insight/OptionPairs.h"
#include "insight/Search.h"

namespace Ledgrove {

namespace {

class HomeQuestions {
public:
    HomeQuestions(const Insight& insight, HomeCode home)
        : m_insight(insight)
        , m_home(home)
        , m_condition(home) {}

    HomeQualification Answers() const {
        const bool labelled = m_home == HomeCode::GMH;
        constexpr SearchDirections downThenUp{Direction::Down, Direction::Up};
        constexpr SearchDirections upThenDown{Direction::Up, Direction::Down};
        HomeQualification result;
        result.Qualifies = m_condition.Holds(m_insight.Record());
        const HomeCase& home = m_insight.Record().Home(m_home);
        result.Loan = static_cast<double>(home.LoanAmount);
        result.Margin = MarginOf(home);
        result.Income = Limit(m_insight.Steps(Varied::Income), downThenUp);
        result.Debt = Limit(m_insight.Steps(Varied::Debt), upThenDown);
        result.Down = Limit(m_insight.DownSteps(m_home), downThenUp);
        result.Price = Limit(m_insight.Steps(labelled ? Varied::GMHPrice : Varied::StdPrice), upThenDown);
        if (labelled)
            result.Bill = Limit(m_insight.Steps(Varied::GMHBill), upThenDown);
        result.Rate = Limit(m_insight.Steps(labelled ? Varied::GMHRate : Varied::StdRate), upThenDown);
        result.Term = TermAnswer();
        return result;
    }

private:
    bool SameLoans(const Results& results) const {
        const HomeCase& now = m_insight.Record().Home(m_home);
        const HomeCase& then = results.Home(m_home);
        return then.MaxLoan == now.MaxLoan && then.LoanAmount == now.LoanAmount;
    }

    /// Whether the input changes a loan anywhere. The ends of the range nearly always show it; the steps
    /// between, and those where the worth of the savings crosses the price difference, make sure.
    bool Counts(const Lattice& steps) const {
        constexpr Step parts = 8;
        const Step part = (steps.Most() - steps.Least()) / parts;
        std::vector<Step> tried{steps.Least(), steps.Nearest(static_cast<double>(steps.Least() + 1))};
        for (Step index = 1; index < parts; ++index)
            tried.push_back(steps.Least() + part * index);
        tried.push_back(steps.Nearest(static_cast<double>(steps.Most() - 1)));
        tried.push_back(steps.Most());
        for (std::size_t i = 0; i < tried.size(); ++i) {
            if (ChangesAt(steps, tried[i]) || (i > 0 && ChangesBetween(steps, tried[i - 1], tried[i])))
                return true;
        }
        return false;
    }

    Results At(const Lattice& steps, Step step) const {
        Inputs inputs = m_insight.Now();
        steps.Put(step, inputs);
        return m_insight.At(inputs);
    }

    bool ChangesAt(const Lattice& steps, Step step) const { return !SameLoans(At(steps, step)); }

    bool IsWorth(const Lattice& steps, Step step) const {
        const Results results = At(steps, step);
        return results.GMHCase.PVSavings >= results.Scenario.PriceDifference;
    }

    /// Whether a loan changes on either side of a crossing between the two steps.
    bool ChangesBetween(const Lattice& steps, Step low, Step high) const {
        const bool before = IsWorth(steps, low);
        if (low >= high || before == IsWorth(steps, high))
            return false;
        while (high - low > 1) {
            const Step middle = low + (high - low) / 2;
            (IsWorth(steps, middle) == before ? low : high) = middle;
        }
        return ChangesAt(steps, low) || ChangesAt(steps, high);
    }

    std::optional<Answer> Limit(const Lattice& steps, SearchDirections directions) const {
        if (!steps.HasSteps() || !Counts(steps))
            return std::nullopt;
        return LimitOrNearest(m_insight, steps, directions, m_condition);
    }

    /// The terms of the list, shorter ones while the buyer qualifies, longer ones while not.
    std::optional<Answer> TermAnswer() const;
    Results AtTerm(const PickItem& term) const;

    const Insight& m_insight;
    HomeCode m_home;
    QualifiesCondition m_condition;
};

Results HomeQuestions::AtTerm(const PickItem& term) const {
    Inputs inputs = m_insight.Now();
    inputs.TermYears = term.Code;
    return m_insight.At(inputs);
}

std::optional<Answer> HomeQuestions::TermAnswer() const {
    const PickList& list = m_insight.Screen().cboMortTerm;
    const std::span<const PickItem> terms = list.Items;
    const bool counts = std::any_of(terms.begin(), terms.end(),
                                    [this](const PickItem& term) { return !SameLoans(AtTerm(term)); });
    if (list.Selected < 0 || !counts)
        return std::nullopt;
    const bool holds = m_condition.Holds(m_insight.Record());
    Answer answer;
    answer.Kind = holds ? AnswerKind::Limit : AnswerKind::Nearest;
    answer.State = holds ? AnswerState::Always : AnswerState::Never;
    answer.Input = "cboMortTerm";
    answer.From = list.Text();
    const auto arrive = [&](const PickItem& term) {
        answer.To = term.Text;
        answer.ToValue = term.Code;
        answer.Change = term.Code - list.Code();
    };
    if (holds)
        arrive(terms[static_cast<std::size_t>(list.Selected)]);
    const std::ptrdiff_t direction = holds ? -1 : 1;
    for (std::ptrdiff_t index = list.Selected + direction; index >= 0 && index < std::ssize(terms);
         index += direction) {
        const PickItem& term = terms[static_cast<std::size_t>(index)];
        const bool then = m_condition.Holds(AtTerm(term));
        if (then)
            arrive(term);
        if (then != holds) {
            answer.State = AnswerState::Found;
            break;
        }
    }
    return answer;
}

std::vector<OtherOption> OtherBaseOptions(const Insight& insight) {
    std::vector<OtherOption> others;
    for (const PickItem& base : BaseOptionItems()) {
        if (OptionOfCode(base.Code) == insight.Now().Std.Option)
            continue;
        const OptionPair pair{base, LabelledOptionItems(OptionOfCode(base.Code)).front()};
        const Results results = insight.At(WithOptions(insight.Now(), pair));
        OtherOption other{base.Text, {}, HomeFault(results, pair, HomeCode::Std), results.StdQualifies};
        others.push_back(std::move(other));
    }
    return others;
}

std::vector<OtherOption> OtherPairs(const Insight& insight) {
    std::vector<OtherOption> others;
    for (const OptionPair& pair : OptionPairs()) {
        const Inputs inputs = WithOptions(insight.Now(), pair);
        if (inputs == insight.Now())
            continue;
        const Results results = insight.At(inputs);
        OtherOption other{pair.Base.Text, pair.Labelled.Text, PairFault(results, pair), results.GMHQualifies};
        others.push_back(std::move(other));
    }
    return others;
}

} // namespace

Qualification ComputeQualification(const Insight& insight) {
    Qualification result{HomeQuestions(insight, HomeCode::Std).Answers(),
                         HomeQuestions(insight, HomeCode::GMH).Answers()};
    result.Std.Options = OtherBaseOptions(insight);
    result.GMH.Options = OtherPairs(insight);
    return result;
}

} // namespace Ledgrove
