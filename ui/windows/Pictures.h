#pragma once

#include <QPixmap>

namespace Ledgrove {

/// Small pictures, drawn at `size` pixels of a normal screen and sharp on finer ones.
QPixmap HousePicture(int size);
QPixmap FinancingPicture(int size);

} // namespace Ledgrove
