#pragma once

#include "app/batch/Comparison.h"
#include "engine/Recalculate.h"
#include "ui/MainScreenRules.h"
#include "ui/StartUp.h"

#include <cstdlib>
#include <iostream>

namespace Ledgrove::Bench {

/// The sample comparison on the shipped settings, as a person would have typed it, not yet recalculated.
inline Session SampleSession() {
    Session session;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(session, host, LEDGROVE_DATA_DIR)) {
        std::cerr << Sentence(*fault) << '\n';
        std::exit(2);
    }
    MainScreen& screen = session.Screen;
    screen.ecIncome.Text = "$72,000";
    screen.ecMonthlyDebt.Text = "$350";
    screen.ecPctDown.Text = "10.00%";
    screen.ecStdHome.Text = "$200,000";
    screen.ecGMHHome.Text = "$206,000";
    screen.ecStdUtil.Text = "$2,400";
    screen.ecGMHUtil.Text = "$1,700";
    Module1::SetBaseOption(screen, "FHA");
    Module1::SetLabelledOption(session, "FHA EEM");
    return session;
}

} // namespace Ledgrove::Bench
