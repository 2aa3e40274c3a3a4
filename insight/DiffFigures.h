#pragma once

#include <span>
#include <string_view>

#include "engine/MainScreen.h"
#include "engine/Results.h"

// The figures that the result labels show. Prices are left out, because they are inputs.
namespace Ledgrove {

struct LabelFigure {
    Label MainScreen::*First; ///< the first label that shows it
    std::string_view Name;    ///< while taxes are not included, or always if the next is empty
    std::string_view WithTaxes;
    std::string_view Either; ///< where one of two results includes taxes and the other does not
    double (*Value)(const Results& results, bool withTaxes);
};

/// The figures in the order of the labels.
std::span<const LabelFigure> LabelFigures();

/// The name for two results that include taxes or do not.
std::string_view NameOf(const LabelFigure& figure, bool taxesA, bool taxesB);

} // namespace Ledgrove
