#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "reports/ReportChoices.h"
#include "reports/windows/Printers.h"

#include <functional>

namespace Ledgrove {

/// An action that opens the report selection above the active window, with these printers and the real file
/// dialogs. The three references must outlive the action.
std::function<void()> PrintAction(Session& session, Host& outside, PrintServer& printers,
                                  const SectionMemory& sections);

} // namespace Ledgrove
