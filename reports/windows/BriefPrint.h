#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "reports/windows/PrintOutside.h"

#include <functional>

namespace Ledgrove {

/// Opens the report's preview with the buyer's brief above `above`, and prints from there on `machine`.
/// Reports through `outside` why the brief cannot be made.
void PreviewBrief(Session& session, Host& outside, const PrintOutside& machine, QWidget* above);

/// Asks for the names and the logo in the report header's dialog, then opens the preview, both above the
/// active window. Nothing follows if the dialog is cancelled. The three references must outlive the function.
std::function<void()> BriefAction(Session& session, Host& outside, PrintServer& printers);

} // namespace Ledgrove
