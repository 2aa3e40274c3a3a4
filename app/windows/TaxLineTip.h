#pragma once

#include "engine/Session.h"
#include "ui/windows/frmMain.h"

namespace Ledgrove {

/// Points out the tax line of the tabs with a tool tip while a check of the first year differs from it by
/// more than half a dollar a month; takes the tool tip away otherwise.
void PointOutTaxLine(const frmMain& window, const Session& session);

} // namespace Ledgrove
