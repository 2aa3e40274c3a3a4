#pragma once

#include <QPixmap>

namespace Ledgrove {

/// Small pictures of `size` logical pixels, sharp on high-resolution screens too.
QPixmap HousePicture(int size);
QPixmap FinancingPicture(int size);

} // namespace Ledgrove
