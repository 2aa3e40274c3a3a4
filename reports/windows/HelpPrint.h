#pragma once

#include "engine/Host.h"
#include "reports/windows/PrintOutside.h"

class QTextDocument;

namespace Ledgrove {

/// Asks above `above` for one of `machine`'s printers or a PDF file, and prints the help there on letter
/// paper. It reports faults through `outside`.
void PrintHelpDocument(const QTextDocument& help, QWidget& above, Host& outside, const PrintOutside& machine);

} // namespace Ledgrove
