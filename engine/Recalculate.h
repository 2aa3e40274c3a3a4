#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "engine/ShowResults.h"

namespace Ledgrove::Module1 {

/// Reads the inputs from the main screen, evaluates them, writes the result labels, shows the EEM notice if
/// it is due, and processes pending events. An empty field, or one that is not a number, counts as 0.
/// The labels that are not `shown` keep their texts.
void Recalculate(Session& session, Host& host, const ShownLabels& shown = {});

/// Whether a recalculation would change nothing: inputs and rules are those of the last one, and no notice is
/// due.
bool IsUpToDate(const Session& session);

/// Shows the detail panel of the selected tab; the More Home panel also refreshes its feature captions.
void ShowCurrentPanel(Session& session, Host& host);

// Each shows the detail panel of one tab; panels 1 to 3 also process pending events.
void ShowPanel0(MainScreen& screen);
void ShowPanel1(MainScreen& screen, Host& host);
void ShowPanel2(Session& session, Host& host);
void ShowPanel3(MainScreen& screen, Host& host);
void ShowPanel4(MainScreen& screen);

/// Shows the two feature texts on the More Home panel. Both captions are empty if the first text is blank or
/// if there is no monthly difference to spend.
void RefreshFeatureCaptions(Session& session);

} // namespace Ledgrove::Module1
