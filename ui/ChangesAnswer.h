#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "engine/Session.h"
#include "insight/Sheet.h"
#include "ui/ChartFigures.h"

// What differs between two comparisons and what that changes, as the window "What changed?" shows it.
namespace Ledgrove {

/// One of the two comparisons.
struct ComparedSide {
    std::string Name;               ///< within a sentence: "the screen" or the name of a version in quotes
    const Session* State = nullptr; ///< its inputs and the rules in force
};

struct ChangesAnswer {
    std::string Missing = {};                 ///< why nothing can be compared; empty if it can
    std::string Sentence = {};                ///< the answer in words
    Sheet Inputs = {};                        ///< the inputs that differ; without rows if none does
    Sheet Figures = {};                       ///< the figures that moved; without rows if none did
    std::vector<std::string> Names = {};      ///< of the figures, such as "GMHCase.PITI", one for each row
    std::size_t Chosen = 0;                   ///< the row of `Figures` that the following is about
    std::string Caption = {};                 ///< the words of that figure; empty if no figure moved
    Sheet Parts = {};                         ///< how the inputs lead it from one comparison to the other
    std::optional<ChartFigures> Picture = {}; ///< the same as a waterfall; empty if it is not an amount
};

/// Compares two comparisons with the same rules, with the parts of the figure of this name. An unknown name
/// gives the monthly net, or the first figure that moved.
ChangesAnswer CompareSides(const ComparedSide& from, const ComparedSide& to, const std::string& figure);

} // namespace Ledgrove
