#pragma once

#include <optional>

#include "engine/Results.h"
#include "insight/Answer.h"

// The conditions of limits and nearests. Each can say for a whole stretch of steps, from the results at its
// two ends, that it holds or fails everywhere between: while the rules take the same choices, each amount
// that it compares only rises or only falls along the stretch.
namespace Ledgrove {

class Condition {
public:
    virtual ~Condition() = default;
    virtual bool Holds(const Results& results) const = 0;
    /// Whether it holds (or fails) at both ends and at every step between; empty if that is not certain. The
    /// results must differ in one input only, the one that is searched.
    virtual std::optional<bool> Throughout(const Results& a, const Results& b) const = 0;
    /// The rule that changes between two neighbouring steps, of which the condition holds at the first only.
    virtual AnswerEdge EdgeBetween(const Results&, const Results&) const { return AnswerEdge::None; }
    /// The band of PMI that counts for the condition.
    virtual PMIBand BandAt(const Results& results) const { return results.Decisions.GMH.PMI; }
};

/// The net of a month is at least 0. For the labelled home's price, bill and rate.
class NetCondition : public Condition {
public:
    explicit NetCondition(bool withTaxes)
        : m_withTaxes(withTaxes) {}
    bool Holds(const Results& results) const override;
    std::optional<bool> Throughout(const Results& a, const Results& b) const override;

private:
    bool m_withTaxes;
};

/// The savings' present value is at least the price difference. For the labelled home's price, bill and rate.
class SavingsCondition : public Condition {
public:
    bool Holds(const Results& results) const override;
    std::optional<bool> Throughout(const Results& a, const Results& b) const override;
};

/// The buyer qualifies for the home. For income, debt, down payment and the home's own price, bill and rate.
class QualifiesCondition : public Condition {
public:
    explicit QualifiesCondition(HomeCode home)
        : m_home(home) {}
    bool Holds(const Results& results) const override;
    std::optional<bool> Throughout(const Results& a, const Results& b) const override;
    AnswerEdge EdgeBetween(const Results& inside, const Results& outside) const override;
    PMIBand BandAt(const Results& results) const override { return Decided(results).PMI; }

private:
    const HomeDecisions& Decided(const Results& results) const {
        return m_home == HomeCode::GMH ? results.Decisions.GMH : results.Decisions.Std;
    }

    HomeCode m_home;
};

} // namespace Ledgrove
