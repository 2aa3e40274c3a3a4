#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "reports/windows/PrintOutside.h"
#include "ui/InsightQuestions.h"

#include <functional>
#include <string>
#include <vector>

namespace Ledgrove {

/// Previews the answers to these questions about the session; `figure` is what "Where does this number come
/// from?" is about.
using InsightPrinter = std::function<void(const std::vector<InsightQuestion>&, const std::string& figure)>;

/// Opens the report's preview with the answers above `above`, and prints from there on `machine`. Reports
/// through `outside` why there are no answers.
void PreviewInsight(Session& session, Host& outside, const PrintOutside& machine,
                    const std::vector<InsightQuestion>& questions, const std::string& figure, QWidget* above);

/// The same above the active window, with these printers and the real file dialog. The three references must
/// outlive the function.
InsightPrinter InsightPrintAction(Session& session, Host& outside, PrintServer& printers);

} // namespace Ledgrove
