#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "engine/Figures.h"
#include "insight/Explain.h"

// The steps of an explanation. In names and expressions "@" stands for the record of the home: "@PITI" is
// "GMHCase.PITI" in the steps of the labelled home.
namespace Ledgrove {

class ExplanationWriter {
public:
    using Labels = std::initializer_list<Label MainScreen::*>;

    explicit ExplanationWriter(const Insight& insight)
        : m_insight(insight) {}

    const Insight& Of() const { return m_insight; }

    /// The home of "@" in the following steps.
    void TakeHome(HomeCode home) { m_home = home; }
    HomeCode Home() const { return m_home; }

    /// A figure of the records; of the home of "@" where it is a base home's.
    void Add(Figure figure, std::string_view expression, std::string because = {}, Labels labels = {});
    /// The same for a figure that is 0 after a fault of the cash flow, unless it was computed before that.
    void AddCashFlow(Figure figure, std::string_view expression, std::string because = {},
                     Labels labels = {});
    /// A figure that is not in the records: what its expression gives.
    void AddOwn(std::string_view name, std::string_view expression, std::string because = {},
                Labels labels = {});
    /// A payment that is stored in single precision on the way, but not in the records.
    void AddRounded(std::string_view name, std::string_view expression, std::string because);
    /// A figure that its labels show as the text.
    void AddShown(std::string_view name, std::string_view expression, std::string because, std::string text,
                  Labels labels);
    /// What a rounding to whole dollars adds.
    void AddRounding(std::string_view name, double value);
    void AddLeaf(ExplainedFigure leaf, Labels labels = {});

    /// The value of a step before, or of a leaf, which it adds.
    double ValueOf(std::string_view name);

    /// The steps in their order. What a figure is computed from comes before it.
    Explanation Take() { return std::move(m_result); }

private:
    Figure OfHome(Figure figure) const;
    std::string WithHome(std::string_view text) const;
    const ExplainedFigure& Use(std::string_view name);
    void AddComputed(ExplainedFigure figure, std::string_view expression, Labels labels);
    void Finish(ExplainedFigure figure, const class Expression& expression);

    const Insight& m_insight;
    HomeCode m_home = HomeCode::Std;
    Explanation m_result;
};

/// An input or an assumption by its name in expressions.
ExplainedFigure LeafOf(const Insight& insight, std::string_view name);

// The parts of an explanation, in the order in which they must be written.
void ExplainPrices(ExplanationWriter& writer);
void ExplainHomeCosts(ExplanationWriter& writer);
void ExplainAffordability(ExplanationWriter& writer);
void ExplainCashFlow(ExplanationWriter& writer);

/// A sentence as a reason: without the point at its end.
std::string AsReason(std::string sentence);

} // namespace Ledgrove
