#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "reports/windows/Printers.h"

#include <functional>

namespace Ledgrove {

/// Opens the report selection above the active window, on the machine as it is with these printers. All three
/// must outlive the action.
std::function<void()> PrintAction(Session& session, Host& outside, PrintServer& printers);

} // namespace Ledgrove
