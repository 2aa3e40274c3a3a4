#pragma once

#include <QString>

#include "insight/Sheet.h"

namespace Ledgrove {

/// The table as a spreadsheet takes it from the clipboard: tabs between the cells, numbers without signs and
/// with the digits that single precision holds. Percentages are numbers of percent: "6.5%" becomes 6.5.
QString SheetAsRange(const Sheet& sheet);

} // namespace Ledgrove
