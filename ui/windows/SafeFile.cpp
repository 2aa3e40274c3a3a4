#include "ui/windows/SafeFile.h"

#include <QDir>

#include "ui/windows/CommitWhole.h"

namespace Ledgrove {

QString WriteWholeFile(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && CommitWhole(file))
        return {};
    return QString("\"%1\" cannot be saved: %2. Any old file is unchanged. Choose another name or folder, "
                   "or free some space there.")
        .arg(QDir::toNativeSeparators(path), file.errorString());
}

} // namespace Ledgrove
