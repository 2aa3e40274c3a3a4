#pragma once

#include "ui/windows/frmMain.h"

namespace Ledgrove {

/// The actions that open the dialogs of the main window. A dialog that could not be filled does not open,
/// because closing it would save values that were not read. `session` and `outside` must outlive the actions.
MainActions DialogActions(Session& session, Host& outside);

} // namespace Ledgrove
