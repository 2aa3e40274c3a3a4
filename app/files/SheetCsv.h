#pragma once

#include <string>

#include "insight/Sheet.h"

namespace Ledgrove {

/// The sheet's table as CSV: a heading row, then amounts with cents and without signs, other cells as shown.
/// The format is that of the exported comparison.
std::string SheetCsv(const Sheet& sheet);

} // namespace Ledgrove
