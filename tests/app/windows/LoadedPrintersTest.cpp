#include <QTemporaryDir>
#include <QTest>

#include "app/batch/Comparison.h"
#include "app/windows/LoadedPrinters.h"

using namespace Ledgrove;

class LoadedPrintersTest : public QObject {
    Q_OBJECT

private slots:
    void withoutTheLibraryPdfStillWorks();
    void theLibraryIsFoundInTheProgramsFolder();
};

void LoadedPrintersTest::withoutTheLibraryPdfStillWorks() {
    const QTemporaryDir folder;
    CollectingHost host;
    LoadedPrinters printers(folder.path(), host);
    const auto devices = AllDevices(printers);
    QCOMPARE(devices.size(), std::size_t{1});
    QVERIFY(IsPdf(devices[0]));
    QCOMPARE(host.Messages().size(), std::size_t{1});
    const QString said = QString::fromStdString(host.Messages()[0].Text);
    QVERIFY2(said.startsWith("The printers of this computer are not available, because \"" + folder.path() +
                             "/modules/ledgrove-printers.so\" does not load: "),
             qPrintable(said));
    QVERIFY2(said.endsWith("\"Print to PDF\" still works."), qPrintable(said));
    QCOMPARE(printers.Send({"Office", "Report", folder.filePath("report.pdf").toStdString(), "A4", 1}),
             std::string("the printers of this computer are not available"));
    QVERIFY(printers.Condition("Office").State == PrinterState::NoService);
}

void LoadedPrintersTest::theLibraryIsFoundInTheProgramsFolder() {
    // A server that does not answer has no printers, and a job that is sent to it gets its error message.
    const QTemporaryDir folder;
    qputenv("CUPS_SERVER", folder.filePath("nobody").toUtf8());
    CollectingHost host;
    LoadedPrinters printers(LEDGROVE_PROGRAM_FOLDER, host);
    QVERIFY(printers.Devices().empty());
    QVERIFY(host.Messages().empty());
    const std::string reason =
        printers.Send({"Office", "Report", folder.filePath("report.pdf").toStdString(), "A4", 1});
    QVERIFY(!reason.empty());
    QVERIFY2(reason != "the printers of this computer are not available", "the library did not load");
    QVERIFY(printers.Condition("Office").State == PrinterState::NoService);
}

QTEST_MAIN(LoadedPrintersTest)
#include "LoadedPrintersTest.moc"
