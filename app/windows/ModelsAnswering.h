#pragma once

#include "engine/Session.h"
#include "reports/windows/RangePrint.h"
#include "ui/windows/ModelsContext.h"

namespace Ledgrove {

/// The list of all saved houses for the buyer of the session, which must outlive the context. The houses are
/// read from the settings file for each list.
ModelsContext MakeModelsContext(const Session& session, RangePrinter print);

} // namespace Ledgrove
