#pragma once

#include "app/batch/InputRecord.h"
#include "engine/MainScreen.h"

namespace Ledgrove {

/// The contents of the screen's input controls. Entering them on a new screen gives the same inputs. An empty
/// field is left out, because an empty text in the record would count as 0; so are the name of a house that
/// is "Custom" and the conversion of a percentage that does not depend on it.
InputRecord ScreenInputs(const MainScreen& screen);

} // namespace Ledgrove
