#pragma once

#include "engine/Host.h"
#include "engine/Session.h"

namespace Ledgrove::Module1 {

/// Reads the inputs from the texts of the main screen, evaluates them, shows the results in every result
/// label, shows the EEM notice where it is due, and ends by letting pending events run. An empty or
/// unreadable field counts as 0.
void Recalculate(Session& session, Host& host);

/// Whether a recalculation would change nothing: the inputs and the rules are those of the last one, and no
/// notice is due.
bool IsUpToDate(const Session& session);

/// Shows the detail panel of the selected tab; the More Home panel also refreshes its feature captions.
void ShowCurrentPanel(Session& session, Host& host);

void ShowPanel0(MainScreen& screen);
void ShowPanel1(MainScreen& screen, Host& host);
void ShowPanel2(Session& session, Host& host);
void ShowPanel3(MainScreen& screen, Host& host);
void ShowPanel4(MainScreen& screen);

/// Puts the two feature texts into their captions on the More Home panel. Both stay empty when the first text
/// is blank or when there is no monthly difference to spend.
void RefreshFeatureCaptions(Session& session);

} // namespace Ledgrove::Module1
