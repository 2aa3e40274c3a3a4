#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "insight/Insight.h"
#include "insight/Sheet.h"

// Every result figure as a chain of calculations that leads to what was typed or assumed.
namespace Ledgrove {

/// Where a leaf can be changed. Both are empty for a leaf that nobody can change.
struct LeafPlace {
    std::string_view Control; ///< of the main window, "ecIncome"
    std::string_view Key;     ///< of an assumption in the settings file, "PMI_MULT3"
};

/// A figure with its calculation, or a leaf: an input or an assumption.
struct ExplainedFigure {
    std::string Figure;                   ///< "GMHCase.PITI"
    std::vector<std::string_view> Labels; ///< the result labels that show it, "lblGMHPITI"
    std::string Caption;                  ///< "Mortgage Payment, GREENMARK Home"
    std::string Text;                     ///< as the labels or the input field show it
    double Value = 0;                     ///< dollars, years or a fraction
    CellUnit Unit = CellUnit::Dollars;    ///< Text: a number without a unit
    std::string Expression;               ///< empty for a leaf; "0" with the reason for a fault
    std::string InWords;                  ///< "principal and interest + taxes + insurance + PMI"
    std::string WithNumbers;              ///< "1,137.72 + 150.00 + 108.33 + 69.00"
    std::vector<std::string> Values;      ///< the names in the expression
    std::string Because;                  ///< the rule that was taken; empty if there is only one
    std::string From;                     ///< of a leaf: the field's caption, the key, the line of a table
    LeafPlace Place;                      ///< of a leaf

    bool IsLeaf() const { return Expression.empty(); }
};

struct Explanation {
    std::vector<ExplainedFigure> Figures; ///< what a figure is computed from need not come before it

    /// nullptr for an unknown name.
    const ExplainedFigure* Find(std::string_view figure) const;
    /// The figure that a result label shows; nullptr for a label without an amount.
    const ExplainedFigure* FigureOfLabel(std::string_view label) const;
};

/// Explains the results now. If figures are missing, these are explained by the reason.
Explanation ComputeExplanation(const Insight& insight);

/// Everything that leads to a figure as a numbered derivation, with the inputs first and the figure last. No
/// rows for an unknown name.
Sheet ExplainSheet(const Explanation& explanation, std::string_view figure);

/// The same for all figures.
Sheet ExplainSheet(const Explanation& explanation);

} // namespace Ledgrove
