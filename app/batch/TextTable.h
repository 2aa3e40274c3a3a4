#pragma once

#include <string>

#include "app/batch/Comparison.h"

namespace Ledgrove {

/// The comparison as a table for people: inputs, the results of both homes side by side, messages and data
/// check.
std::string ResultTable(const Comparison& comparison);

} // namespace Ledgrove
