#pragma once

#include <functional>

#include "engine/Session.h"
#include "reports/windows/RangePrint.h"
#include "ui/windows/ModelsContext.h"

namespace Ledgrove {

/// The list of all saved houses for the buyer of the session that `state` gives. The houses are read from the
/// settings file for each list.
ModelsContext MakeModelsContext(std::function<Session()> state, RangePrinter print);

} // namespace Ledgrove
