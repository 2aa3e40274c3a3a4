#pragma once

#include "app/batch/JsonValues.h"
#include "insight/Explain.h"
#include "insight/Takeaway.h"

namespace Ledgrove::Json {

/// Writes one object.
void WriteTakeaway(Writer& json, const Takeaway& takeaway);

/// Writes one object. Its numbers are exact: an expression that subtracts would magnify what a shorter text
/// leaves out.
void WriteExplanation(Writer& json, const Explanation& explanation);

} // namespace Ledgrove::Json
