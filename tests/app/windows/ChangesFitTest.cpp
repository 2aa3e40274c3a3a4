#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "ChangesDesk.h"
#include "tests/ui/windows/FitTest.h"

using namespace Ledgrove;

/// Runs once for each screen; see CMakeLists.txt.
class ChangesFitTest : public QObject {
    Q_OBJECT

private slots:
    void theWindowFits();
};

void ChangesFitTest::theWindowFits() {
    ChangesDesk desk;
    desk.Keep("A version with a name that is much too long for the lists of a small screen");
    desk.Open.Enter("ecGMHHome", "204000");
    desk.Open.Enter("ecIncome", "62000");
    desk.Show();
    QVERIFY(QTest::qWaitForWindowActive(desk.Window.get()));
    desk.Window->move(0, 0);
    QVERIFY2(IsOnScreen(*desk.Window), qPrintable(PlaceOf(*desk.Window)));
    for (const char* button : {"bPrint", "bCopy", "bSavePicture", "bHelp", "bClose"})
        QVERIFY2(IsWholeInView(desk.Find<QPushButton>(button)), button);
    // The heights of texts that break are settled in several rounds.
    for (int round = 0; round < 5; ++round)
        QCoreApplication::processEvents();
    // It may scroll downwards only.
    QCOMPARE(desk.Find<QScrollArea>("Scrolled").horizontalScrollBar()->maximum(), 0);
    for (const char* table : {"InputTable", "FigureTable", "PartTable"})
        QVERIFY2(desk.Find<SheetView>(table).horizontalScrollBar()->maximum() == 0, table);
    QCOMPARE(HiddenStop({desk.Window.get()}), QString());
}

QTEST_MAIN(ChangesFitTest)
#include "ChangesFitTest.moc"
