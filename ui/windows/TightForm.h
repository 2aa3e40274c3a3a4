#pragma once

#include <QWidget>

namespace Ledgrove {

/// Makes a form need less room in this direction: half the space between its controls, and narrower fields
/// and pick lists. Call it once for each direction.
void Tighten(QWidget& form, Qt::Orientation direction);

} // namespace Ledgrove
