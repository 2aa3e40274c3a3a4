#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/Host.h"
#include "engine/Session.h"

// The result columns of a price list.
namespace Ledgrove {

/// Whether a column with this heading is a result, so that an earlier run's output can be an input.
bool IsResultColumn(std::string_view heading);

/// Appends the headings of the results, with a separator before each except the first; "error" comes last.
void AppendResultHeadings(std::string& out, char separator = ',');

/// Appends the results of an accepted comparison, up to the empty error.
void AppendCsvResults(std::string& out, const Session& session, const std::vector<Message>& messages,
                      char separator = ',');

/// Appends empty results and the error.
void AppendCsvError(std::string& out, std::string_view error, char separator = ',');

} // namespace Ledgrove
