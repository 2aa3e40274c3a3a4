#pragma once

#include "app/windows/CurrentFile.h"
#include "app/windows/ExportCommands.h"

namespace Ledgrove {

/// Adds the menu bar to the window. It contains all commands of the window's buttons and presses those
/// buttons. The objects in `context` must outlive the window.
void BuildMainMenu(CurrentFile& file, const ExportContext& context);

} // namespace Ledgrove
