#include "app/windows/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <utility>

namespace Ledgrove {

namespace {

constexpr const char* key = "RecentFiles";

QString FullName(const QString& file) {
    return QFileInfo(file).absoluteFilePath();
}

} // namespace

RecentFiles::RecentFiles(QString store)
    : m_store(std::move(store)) {}

QStringList RecentFiles::Names() const {
    // Read again each time, because another window of the program may have added a name.
    return QSettings(m_store, QSettings::IniFormat).value(key).toStringList().mid(0, Most);
}

void RecentFiles::Add(const QString& file) {
    QStringList names = Names();
    names.removeAll(FullName(file));
    names.prepend(FullName(file));
    Keep(names.mid(0, Most));
}

void RecentFiles::Remove(const QString& file) {
    QStringList names = Names();
    names.removeAll(FullName(file));
    Keep(names);
}

void RecentFiles::Clear() {
    Keep({});
}

void RecentFiles::Keep(const QStringList& names) {
    QSettings(m_store, QSettings::IniFormat).setValue(key, names);
}

QString RecentFilesStore() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/recent.ini";
}

} // namespace Ledgrove
