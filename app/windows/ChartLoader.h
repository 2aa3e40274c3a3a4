#pragma once

#include <QString>

#include "ui/windows/ChartPlace.h"

namespace Ledgrove {

/// Loads the charts' library from `folder`/modules. Loaded once, it stays for the program's life.
ChartSource LoadCharts(const QString& folder);

} // namespace Ledgrove
