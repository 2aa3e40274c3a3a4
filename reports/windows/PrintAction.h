#pragma once

#include "engine/Host.h"
#include "engine/Session.h"

#include <functional>

namespace Ledgrove {

/// Opens the report selection above the active window, on the machine's own printers. `session` and `outside`
/// must outlive the action.
std::function<void()> PrintAction(Session& session, Host& outside);

} // namespace Ledgrove
