#pragma once

#include <string>

#include "insight/Sheet.h"

namespace Ledgrove {

/// Appends a sheet for people: its sentence, then its table in aligned columns.
void AppendSheetText(std::string& out, const Sheet& sheet);

/// The same as a text of its own.
std::string SheetText(const Sheet& sheet);

} // namespace Ledgrove
