#pragma once

#include <string>

#include "engine/Session.h"

namespace Ledgrove {

/// The session's comparison in the format of `ledgrove-cli compare --format csv`: a heading row and one row
/// of inputs and main results.
std::string ComparisonCsv(const Session& session);

} // namespace Ledgrove
