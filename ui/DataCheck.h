#pragma once

#include <string>

#include "engine/Host.h"
#include "engine/MainScreen.h"

namespace Ledgrove::Module1 {

/// The prices (dollars) and utility bills (dollars per year) of a base home and a labelled home.
struct HousePair {
    float StdCost = 0;
    float GMHCost = 0;
    float StdUtil = 0;
    float GMHUtil = 0;
};

/// Reports missing or implausible prices and utility bills. Each message ends in a carriage return; empty if
/// there are none.
std::string CheckHousePair(const HousePair& pair);

/// The text of the data check's message box for the inputs on the main screen; empty if they look plausible.
/// The check only warns: it changes nothing and blocks nothing.
std::string DataCheckText(const MainScreen& screen);

/// Runs the data check and shows its message if there is one.
void RunDataCheck(const MainScreen& screen, Host& host);

} // namespace Ledgrove::Module1
