#pragma once

#include <string>

#include "engine/Host.h"
#include "engine/MainScreen.h"

namespace Ledgrove::Module1 {

/// The amounts of a base and a labelled home that belong together on a form.
struct HousePair {
    float StdCost = 0;
    float GMHCost = 0;
    float StdUtil = 0;
    float GMHUtil = 0;
};

/// Prices and utility bills that are missing or look implausible: each message followed by a carriage return,
/// nothing when all is well.
std::string CheckHousePair(const HousePair& pair);

/// The whole text of the data check's message box for the main screen's inputs, "" when there is nothing to
/// say. Changes nothing and stops nothing.
std::string DataCheckText(const MainScreen& screen);

/// Runs the data check and shows its message, if any.
void RunDataCheck(const MainScreen& screen, Host& host);

} // namespace Ledgrove::Module1
