#pragma once

#include <QtGlobal>

namespace Ledgrove {

/// For programs that draw without a window. Call it before creating the application object. Qt then does not
/// use a display, even if there is one. Qt's warnings about a missing desktop are silenced, because scripts
/// do not need them; our own messages report faults.
inline void WorkOffscreen() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

} // namespace Ledgrove
