#pragma once

#include <QWidget>

namespace Ledgrove {

/// Makes a form need less room in this direction: half the space between its controls, and narrower fields
/// and pick lists. A second call for a direction halves the space again.
void Tighten(QWidget& form, Qt::Orientation direction);

} // namespace Ledgrove
