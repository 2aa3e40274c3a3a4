#pragma once

#include <QString>

#include "ui/windows/ChartPlace.h"

namespace Ledgrove {

/// Loads the chart library from `folder`/modules. It stays loaded until the program ends.
ChartSource LoadCharts(const QString& folder);

} // namespace Ledgrove
