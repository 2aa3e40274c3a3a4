#pragma once

#include <string>

// The names of results as documents.
namespace Ledgrove {

/// The JSON schema (draft 2020-12) of what `ledgrove-cli compare` writes for one comparison.
std::string ResultSchema();

/// The rows of a Markdown table: every result with its unit, its meaning and whether it is among the
/// columns of a price list's results when --columns is not given.
std::string ResultRows();

} // namespace Ledgrove
