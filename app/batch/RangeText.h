#pragma once

#include <string>

#include "insight/Range.h"

// The range for programs.
namespace Ledgrove {

/// Appends one object with "rows". A row without figures has "missing"; without limits, rows lack "price".
/// No line ending.
void AppendRangeJson(std::string& out, const Range& range);

/// Appends a heading row and the rows as CSV, with the numbers of the JSON.
void AppendRangeCsv(std::string& out, const Range& range);

} // namespace Ledgrove
