// The house scenario dialog with the number of saved houses that the argument gives. Prints milliseconds:
// from reading the houses to the painted dialog, and for the save.

#include "app/batch/Comparison.h"
#include "bench/Sample.h"
#include "settings/HouseListFile.h"
#include "ui/HouseScenarios.h"
#include "ui/windows/FormFont.h"
#include "ui/windows/frmHomeSelection.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <cstdlib>

using namespace Ledgrove;

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    UseFormFont();
    const int lots = argc > 1 ? std::atoi(argv[1]) : 10000;
    const QTemporaryDir folder;
    QFile::copy(LEDGROVE_DATA_DIR "/Ledgrove.ini", folder.filePath("Ledgrove.ini"));
    Session session = Bench::SampleSession();
    session.Folder = folder.path().toStdString();
    HouseList houses;
    for (int lot = 1; lot <= lots; ++lot)
        houses.push_back({"Lot " + std::to_string(lot), 200000, 2400, 206000, 1700});
    Module1::WriteHomeList(SettingsFile(session.Folder), houses);

    CollectingHost host;
    QElapsedTimer timer;
    timer.start();
    HouseScenarios record;
    Module1::OpenHouseScenarios(record, session, host);
    frmHomeSelection dialog(record, session, host, nullptr);
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return 2;
    dialog.repaint();
    const double opened = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    timer.restart();
    Module1::SaveHouseScenarios(record, session);
    std::printf("%.1f %.1f\n", opened, static_cast<double>(timer.nsecsElapsed()) / 1e6);
}
