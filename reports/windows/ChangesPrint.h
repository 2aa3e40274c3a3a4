#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "reports/windows/PrintOutside.h"
#include "ui/ChangesAnswer.h"

#include <functional>

namespace Ledgrove {

/// Previews an answer of the window "What changed?".
using ChangesPrinter = std::function<void(const ChangesAnswer&)>;

/// Opens the report's preview with the answer above `above`, and prints from there on `machine`. The logo is
/// that of the print options.
void PreviewChanges(Session& session, Host& outside, const PrintOutside& machine, const ChangesAnswer& answer,
                    QWidget* above);

/// The same above the active window, with these printers and the real file dialog. The three references must
/// outlive the function.
ChangesPrinter ChangesPrintAction(Session& session, Host& outside, PrintServer& printers);

} // namespace Ledgrove
