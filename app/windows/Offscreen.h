#pragma once

#include <QtGlobal>

namespace Ledgrove {

/// For programs that draw without a window, before their application object: no display is needed, and none
/// is asked even where there is one. The toolkit's remarks about a desktop that is not there are nothing to a
/// script; faults come as sentences of ours.
inline void WorkOffscreen() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

} // namespace Ledgrove
