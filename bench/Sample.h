#pragma once

#include "app/batch/Comparison.h"
#include "engine/Recalculate.h"
#include "tests/engine/TestSession.h"
#include "ui/MainScreenRules.h"
#include "ui/StartUp.h"

#include <cstdlib>
#include <iostream>

namespace Ledgrove::Bench {

/// The sample comparison with the shipped settings, as a person would type it, not yet recalculated.
inline Session SampleSession() {
    Session session;
    CollectingHost host;
    if (const auto fault = Module1::LoadMainScreen(session, host, LEDGROVE_DATA_DIR)) {
        std::cerr << Sentence(*fault) << '\n';
        std::exit(2);
    }
    Testing::FillSample(session.Screen);
    Module1::SetBaseOption(session.Screen, "FHA");
    Module1::SetLabelledOption(session, "FHA EEM");
    return session;
}

} // namespace Ledgrove::Bench
