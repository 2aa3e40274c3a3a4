#pragma once

#include "app/batch/InputRecord.h"
#include "engine/MainScreen.h"

namespace Ledgrove {

/// What the screen's input controls hold, such that entering it into a fresh screen gives the same inputs: an
/// empty field is absent, since a present empty text would count as 0.
InputRecord ScreenInputs(const MainScreen& screen);

} // namespace Ledgrove
