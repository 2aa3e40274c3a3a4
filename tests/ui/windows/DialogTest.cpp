#include "DialogTest.h"

#include <QDir>
#include <QFile>

#include "ui/StartUp.h"

namespace Ledgrove {

SettingsDesk::SettingsDesk() {
    QFile::copy(LEDGROVE_SOURCE_DIR "/data/Ledgrove.ini", Folder.filePath("Ledgrove.ini"));
    if (Module1::LoadMainScreen(State, Outside, Folder.path().toStdString()))
        qFatal("the shipped settings do not load");
    Outside.Messages.clear();
}

QByteArray SettingsDesk::Settings() const {
    QFile file(Folder.filePath("Ledgrove.ini"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the settings cannot be read");
    return file.readAll();
}

void SettingsDesk::WriteSettings(const QByteArray& content) const {
    QFile file(Folder.filePath("Ledgrove.ini"));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("the settings cannot be written");
}

QByteArrayList SettingsDesk::Lines(const QByteArray& key) const {
    QByteArrayList found;
    for (const QByteArray& line : Settings().split('\n')) {
        if (line.startsWith(key + "="))
            found += line.trimmed();
    }
    return found;
}

void SettingsDesk::MakeUnwritable() const {
    QDir(Folder.path()).mkdir("Pennaro2.INI");
}

void FillHouses(HouseScenarios& record, SettingsDesk& desk) {
    if (Module1::OpenHouseScenarios(record, desk.State, desk.Outside))
        qFatal("the houses do not load");
}

void FillAssumptions(AssumptionsScreen& record, SettingsDesk& desk) {
    if (Module1::FillAssumptions(record, desk.State))
        qFatal("the assumptions do not load");
}

void FillOptions(OptionsScreen& record, SettingsDesk& desk) {
    if (Module1::FillOptions(record, desk.State))
        qFatal("the options do not load");
}

} // namespace Ledgrove
