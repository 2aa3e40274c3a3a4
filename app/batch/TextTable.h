#pragma once

#include <string>

#include "app/batch/Comparison.h"

namespace Ledgrove {

/// The comparison as a table for people: inputs, results of both homes side by side, messages and data check.
std::string ResultTable(const Comparison& comparison);

/// The refusal as one sentence, with its line end.
std::string RefusalText(const Refusal& refusal);

} // namespace Ledgrove
