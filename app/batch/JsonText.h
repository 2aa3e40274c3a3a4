#pragma once

#include <string>

#include "app/batch/Comparison.h"

// Results as JSON text, appended to a buffer: building a tree of a hundred values for each comparison would
// cost more than the comparison.
namespace Ledgrove {

/// One object: fields, labels, Scenario, StdCase, GMHCase, messages, dataCheck. No line end.
void AppendResultJson(std::string& out, const Comparison& comparison);

/// {"error": {"line", "control", "value", "message"}}. No line end.
void AppendRefusalJson(std::string& out, const Refusal& refusal);

} // namespace Ledgrove
