#pragma once

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Ledgrove {

/// The user's folder of this kind, where file dialogs start. If there is none, the home folder, because the
/// dialogs would otherwise start in the current folder.
inline QString UsersFolder(QStandardPaths::StandardLocation kind) {
    const QString folder = QStandardPaths::writableLocation(kind);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

} // namespace Ledgrove
