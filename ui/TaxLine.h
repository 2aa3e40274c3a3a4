#pragma once

#include "engine/Session.h"

namespace Ledgrove {

/// Whether the monthly income-tax line that the tabs show differs by more than half a dollar from what it
/// would really be in the first year. False for a comparison that cannot be checked.
bool IsTaxLineOff(const Session& session);

} // namespace Ledgrove
