#pragma once

#include <string>
#include <string_view>

// The cells of price lists, as spreadsheets read and write them.
namespace Ledgrove {

/// Puts an apostrophe before a cell that a spreadsheet would run as a formula: it begins with a tab or a
/// carriage return, or after blanks with "=", "+", "-" or "@", and is not a number.
std::string DefusedCell(std::string_view cell);

/// Appends `cell` as CSV, made safe by DefusedCell, and in quotes if necessary.
void AppendCsvCell(std::string& out, std::string_view cell, char separator = ',');

} // namespace Ledgrove
