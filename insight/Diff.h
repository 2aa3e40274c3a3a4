#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "insight/Insight.h"
#include "insight/Sheet.h"

// Two comparisons: where their inputs differ, which figures that moves, and how much each input contributes.
namespace Ledgrove {

/// An input that differs, as the screens show it.
struct DiffInput {
    std::string_view Input; ///< the control; "downPayment" and "mortgageOptions" for what belongs together
    std::string_view Caption;
    std::string A;
    std::string B;
};

/// A figure whose label changes.
struct DiffFigure {
    std::string_view Figure; ///< "GMHCase.PITI"
    std::string_view Label;  ///< the first label that shows it, "lblGMHPITI"
    std::string TextA;       ///< of the label
    std::string TextB;
    double A = 0; ///< as stored, not rounded; 1 for "YES" and 0 for "*NO"
    double B = 0;
    /// What each input contributes to the change, in the order of the inputs: its Shapley value, which is the
    /// average over all orders of changing the inputs. The parts add up to the change. Empty if every order
    /// passes a comparison that cannot be computed.
    std::optional<std::vector<double>> Parts;

    double Change() const { return B - A; }
};

struct Diff {
    std::vector<DiffInput> Inputs;   ///< in the order of the screen
    std::vector<DiffFigure> Figures; ///< in the order of the labels

    /// The figure of a label; nullptr if it does not change.
    const DiffFigure* FigureOfLabel(std::string_view label) const;
    /// The monthly net, or else the first figure that changes; nullptr if none does.
    const DiffFigure* MainFigure() const;
};

/// Neither insight may be missing, and both must have the same rules. Orders that pass a comparison with a
/// fault that neither of the two has do not count.
Diff ComputeDiff(const Insight& a, const Insight& b);

/// "Net Monthly Cash Flow with Tax Savings" for the name of a figure.
std::string DiffCaption(std::string_view figure);

/// What the figure's label shows, with the sign that the labels of the Cash Flow tab leave out.
std::string TextInA(const DiffFigure& figure);
std::string TextInB(const DiffFigure& figure);

/// What the tables call the two comparisons.
struct DiffNames {
    std::string A = "A"; ///< the head of the column
    std::string B = "B";
    std::string InA = "In A"; ///< the row with the total
    std::string InB = "In B";
};

/// The inputs that differ.
Sheet DiffInputsSheet(const Diff& diff, const DiffNames& names = {});

/// The figures that change.
Sheet DiffFiguresSheet(const Diff& diff, const DiffNames& names = {});

/// How the inputs lead a figure of the diff from A to B. Inputs that do not move it are marked idle.
Sheet DiffPartsSheet(const Diff& diff, const DiffFigure& figure, const DiffNames& names = {});

} // namespace Ledgrove
