#pragma once

#include "app/windows/CurrentFile.h"
#include "app/windows/ExportCommands.h"

namespace Ledgrove {

/// Puts the menu bar into the window. Everything that its buttons do is there too, done by the same buttons.
/// What `context` refers to must outlive the window.
void BuildMainMenu(CurrentFile& file, const ExportContext& context);

} // namespace Ledgrove
