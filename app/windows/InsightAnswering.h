#pragma once

#include <functional>

#include "engine/Host.h"
#include "engine/Session.h"
#include "reports/windows/InsightPrint.h"
#include "ui/TriedSettings.h"
#include "ui/windows/InsightWindow.h"

namespace Ledgrove {

/// What the Insight window's answers come from. All that it refers to must outlive the window.
struct AnswerSource {
    std::function<Session()> State; ///< the comparison after its last entry
    TriedSettings& Settings;
    Host& Outside; ///< shows why settings could not be saved
};

/// Fills in what the context needs to answer, to try settings, to keep them, and to print.
void ConnectAnswers(InsightContext& context, const AnswerSource& source, InsightPrinter print);

} // namespace Ledgrove
