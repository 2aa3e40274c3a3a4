#pragma once

#include <QWidget>

namespace Ledgrove {

/// Shows the window above the others and gives it the keyboard. A minimised window comes back in the size it
/// had, a maximised one stays maximised.
inline void BringToFront(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace Ledgrove
