#pragma once

#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace Ledgrove {

/// Gives a window of answers its first size: so many lines of its text high, or less on a small screen.
inline void GiveNaturalSize(QWidget& window, int lines) {
    constexpr int letters = 190;
    const QRect room = window.screen()->availableGeometry();
    const QFontMetrics metrics = window.fontMetrics();
    const int line = metrics.height();
    // The window manager adds a frame.
    window.resize(std::min(metrics.averageCharWidth() * letters, room.width() - 2 * line),
                  std::min(line * lines, room.height() - 3 * line));
}

} // namespace Ledgrove
