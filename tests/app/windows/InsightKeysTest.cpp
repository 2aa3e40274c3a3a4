#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include "InsightDesk.h"

using namespace Ledgrove;

namespace {

/// Gives the keyboard to the Insight window.
void GoTo(InsightDesk& desk) {
    desk.Window->activateWindow();
    if (!QTest::qWaitForWindowActive(desk.Window.get()))
        qFatal("the window does not become active");
}

void PressUndo(const InsightDesk& desk) {
    QTest::keyClick(desk.Window->focusWidget(), Qt::Key_Z, Qt::ControlModifier);
}

void PressRedo(const InsightDesk& desk) {
    QTest::keyClick(desk.Window->focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

} // namespace

class InsightKeysTest : public QObject {
    Q_OBJECT

private slots:
    void whatWasTriedIsUndone();
    void aFieldUndoesItsTypingFirst();
};

void InsightKeysTest::whatWasTriedIsUndone() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    auto& table = desk.Find<SheetView>("AnswerTable");
    const QString price = desk.Cell(0, 2);
    table.setCurrentIndex(desk.Table().index(0, 2));
    GoTo(desk);
    table.setFocus();
    desk.Find<QPushButton>("bEnter").click();
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), price);
    PressUndo(desk);
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), "$206,000");
    PressRedo(desk);
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), price);
}

void InsightKeysTest::aFieldUndoesItsTypingFirst() {
    InsightDesk desk;
    desk.Open.Enter("ecGMHHome", "210000");
    desk.Show(InsightQuestion::EnergyPrices);
    GoTo(desk);
    auto& growth = desk.Find<QLineEdit>("GROWTH_UTILITIES");
    const QString before = growth.text();
    growth.setFocus();
    QTest::keyClicks(&growth, "7");
    QCOMPARE(growth.text(), "7");
    PressUndo(desk);
    QCOMPARE(growth.text(), before);
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), "$210,000");
    PressUndo(desk);
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), "$206,000");
}

QTEST_MAIN(InsightKeysTest)
#include "InsightKeysTest.moc"
