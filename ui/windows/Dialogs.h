#pragma once

#include "ui/windows/frmMain.h"

namespace Ledgrove {

/// What opens the dialogs of the main window. A dialog that could not be filled does not open, since closing
/// it would save what was not read. `session` and `outside` must outlive the actions.
MainActions DialogActions(Session& session, Host& outside);

} // namespace Ledgrove
