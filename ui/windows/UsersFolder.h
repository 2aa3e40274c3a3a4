#pragma once

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Ledgrove {

/// The user's folder of this kind, where file dialogs begin; the home where there is none, since they would
/// else begin in whatever folder the program was started from.
inline QString UsersFolder(QStandardPaths::StandardLocation kind) {
    const QString folder = QStandardPaths::writableLocation(kind);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

} // namespace Ledgrove
