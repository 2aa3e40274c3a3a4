#pragma once

#include <QWidget>

namespace Ledgrove {

/// Shows what the program is, its version and its licence.
void ShowAbout(QWidget& above);

} // namespace Ledgrove
