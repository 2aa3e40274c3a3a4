#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "insight/Range.h"
#include "reports/windows/PrintOutside.h"

#include <functional>

namespace Ledgrove {

/// Previews a list of houses that was computed for the session.
using RangePrinter = std::function<void(const Range&)>;

/// Opens the report's preview with the list, in landscape, above `above`, and prints from there on `machine`.
void PreviewRange(Session& session, Host& outside, const PrintOutside& machine, const Range& range,
                  QWidget* above);

/// The same above the active window, with these printers and the real file dialog. The three references must
/// outlive the function.
RangePrinter RangePrintAction(Session& session, Host& outside, PrintServer& printers);

} // namespace Ledgrove
