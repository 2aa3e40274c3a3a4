#include <QPushButton>

#include "app/windows/frmExportPdf.h"
#include "tests/ui/windows/DialogTest.h"
#include "tests/ui/windows/FitTest.h"

using namespace Ledgrove;

/// Runs once for each screen; see CMakeLists.txt.
class ExportFitTest : public QObject {
    Q_OBJECT

private slots:
    void thePaperDialogFits();
};

void ExportFitTest::thePaperDialogFits() {
    SettingsDesk desk;
    frmExportPdf window({}, desk.State, desk.Outside);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY2(IsOnScreen(window), qPrintable(PlaceOf(window)));
    for (const char* button : {"bOK", "bCancel", "bHelp"})
        QVERIFY2(IsWholeInView(*window.findChild<QPushButton*>(button)), button);
    QVERIFY(!Scrolls(window));
    QCOMPARE(HiddenStop({&window}), QString());
}

QTEST_MAIN(ExportFitTest)
#include "ExportFitTest.moc"
