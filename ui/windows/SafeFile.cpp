#include "ui/windows/SafeFile.h"

#include <QDir>

#include "base/FileKind.h"
#include "ui/windows/CommitWhole.h"

namespace Ledgrove {

namespace {

QString Unsaved(const QString& path, const QString& reason) {
    return QString("\"%1\" cannot be saved: %2. Any old file is unchanged. Choose another name or folder, "
                   "or free some space there.")
        .arg(QDir::toNativeSeparators(path), reason);
}

} // namespace

QString WriteWholeFile(const QString& path, const QByteArray& content) {
    // The new file would take the place of a pipe or a device.
    if (const std::string reason = NotAFile(QFile::encodeName(path).toStdString()); !reason.empty())
        return Unsaved(path, QString::fromStdString(reason));
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && CommitWhole(file))
        return {};
    return Unsaved(path, file.errorString());
}

} // namespace Ledgrove
