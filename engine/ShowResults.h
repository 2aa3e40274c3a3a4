#pragma once

#include "engine/MainScreen.h"
#include "engine/Results.h"

namespace Ledgrove::Module1 {

/// Writes every result label of the main screen. The tax box and the labelled home's option are those of
/// `screen`.
void ShowResults(const Results& results, MainScreen& screen);

/// The labels of the Affordability panel, and the Summary's figures of each home.
void ShowAffordabilityResults(const Results& results, MainScreen& screen);

/// The labels of the Cash Flow and More Home panels, and the Summary's savings.
void ShowCashFlowResults(const Results& results, MainScreen& screen);

} // namespace Ledgrove::Module1
