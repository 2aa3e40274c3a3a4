#pragma once

#include <string>

#include "engine/Session.h"

namespace Ledgrove {

/// The session's comparison as `ledgrove-cli compare --format csv` writes it: a heading row, one row of the
/// inputs and the main results.
std::string ComparisonCsv(const Session& session);

} // namespace Ledgrove
