#pragma once

#include "engine/MainScreen.h"
#include "engine/Results.h"

namespace Ledgrove {

/// Groups of result labels.
struct ShownLabels {
    bool Affordability = true; ///< what ShowAffordabilityResults writes
    bool Qualification = true; ///< what ShowQualification writes
    bool CashFlow = true;      ///< what ShowCashFlowResults writes
};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// The group that writes the label.
ShownLabels GroupOf(Label MainScreen::*label);

/// Writes the result labels of the main screen, with amounts in whole dollars. Reads the tax box and the
/// labelled home's option from `screen`. Whatever a result can change of a label is written every time, so
/// nothing of an earlier result stays.
void ShowResults(const Results& results, MainScreen& screen, const ShownLabels& shown = {});

/// Writes the amounts of the Affordability panel and the Summary figures of each home.
void ShowAffordabilityResults(const Results& results, MainScreen& screen);

/// Writes whether the buyer qualifies for each home: "YES" or "*NO".
void ShowQualification(const Results& results, MainScreen& screen);

/// Writes the labels of the Cash Flow and More Home panels and the savings on the Summary panel.
void ShowCashFlowResults(const Results& results, MainScreen& screen);

} // namespace Ledgrove::Module1
