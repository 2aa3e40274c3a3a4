#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "engine/Inputs.h"
#include "insight/Explain.h"
#include "insight/Expression.h"

// The words and numbers of explanations.
namespace Ledgrove {

struct FigureWords {
    std::string_view Figure;  ///< without the record of a home: "PITI"
    std::string_view Caption; ///< "Mortgage Payment"
    std::string_view InWords; ///< in a formula: "mortgage payment"
    CellUnit Unit;
};

/// The words of a figure; of the whole name if they are not known.
FigureWords WordsOf(std::string_view figure);

/// "Mortgage Payment, GREENMARK Home" for "GMHCase.PITI".
std::string CaptionOfFigure(std::string_view figure);

/// What a formula of `reader` calls a figure. Figures of another home than the reader's are named with it:
/// "mortgage payment of the base home".
std::string InWordsFor(std::string_view reader, std::string_view figure);

/// The main window's caption of an input, "Sticker Price, Base Home".
std::string_view CaptionOfInput(std::string_view control);

/// A value in a formula: "1,137.72", "6.5%", "30", "0.0046".
std::string NumberText(double value, CellUnit unit);

/// A value on its own: "$1,137.72", "30 years".
std::string ValueText(double value, CellUnit unit);

/// "10.00 %". A value below `edge` has more digits where two would show the edge.
std::string PercentText(double fraction, double edge);

/// An expression for people, with a text in the place of each name: "price of 200,000.00 - 20,000.00",
/// "payment on 180,000.00 over 30 × 12 months at 6.5% ÷ 12 a month".
std::string Phrase(const ExpressionPart& part, const std::function<std::string(std::string_view)>& textOf);

} // namespace Ledgrove
