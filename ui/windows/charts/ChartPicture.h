#pragma once

#include <QByteArray>
#include <QSize>

#include "ui/windows/ChartWidget.h"

namespace Ledgrove {

/// The chart as the bytes of a picture file, dark on white. `size` is in pixels of 1/96 inch; a PNG has two
/// dots per pixel.
QByteArray ChartPicture(const ChartFigures& figures, PictureFormat format, const QSize& size);

} // namespace Ledgrove
