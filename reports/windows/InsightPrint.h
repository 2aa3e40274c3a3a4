#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "reports/InsightReport.h"
#include "reports/windows/PrintOutside.h"

#include <functional>

namespace Ledgrove {

/// Previews the answers to the request's questions about the session.
using InsightPrinter = std::function<void(const InsightRequest&)>;

/// Opens the report's preview with the answers above `above`, and prints from there on `machine`. The logo is
/// that of the print options. Reports through `outside` why it cannot answer.
void PreviewInsight(Session& session, Host& outside, const PrintOutside& machine, InsightRequest request,
                    QWidget* above);

/// The same above the active window, with these printers and the real file dialog. The three references must
/// outlive the function.
InsightPrinter InsightPrintAction(Session& session, Host& outside, PrintServer& printers);

} // namespace Ledgrove
