#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
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
    void theAnswersTextIsSelectedByKeys_data();
    void theAnswersTextIsSelectedByKeys();
    void aNoteIsReachedByTab();
    void theFocusOfATextIsVisible();
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

void InsightKeysTest::theAnswersTextIsSelectedByKeys_data() {
    QTest::addColumn<int>("row");
    for (int row = 0; row <= static_cast<int>(InsightQuestions.size()); ++row)
        QTest::addRow("question %d", row) << row;
}

void InsightKeysTest::theAnswersTextIsSelectedByKeys() {
    QFETCH(int, row);
    InsightDesk desk;
    desk.Window->show();
    auto& questions = desk.Find<QListWidget>("Questions");
    questions.setCurrentRow(row);
    questions.setFocus();
    GoTo(desk);
    const bool isModels = row == questions.count() - 1;
    auto& text = desk.Find<QLabel>(isModels ? "ModelsSentence" : "Sentence");
    QTRY_VERIFY(!text.text().isEmpty());
    QTest::keyClick(&questions, Qt::Key_Tab);
    QCOMPARE(desk.Window->focusWidget()->objectName(), text.objectName());
    QTest::keyClick(&text, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&text, Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(text.selectedText().simplified(), text.text().simplified());
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text().simplified(), text.text().simplified());
}

void InsightKeysTest::aNoteIsReachedByTab() {
    InsightDesk desk;
    desk.Show(InsightQuestion::Sale);
    GoTo(desk);
    QVERIFY(desk.Find<QLabel>("Note").isVisible());
    QStringList stops;
    for (int stop = 0; stop < 40 && !stops.contains("bPrint"); ++stop) {
        stops += desk.Window->focusWidget()->objectName();
        QTest::keyClick(desk.Window->focusWidget(), Qt::Key_Tab);
    }
    QVERIFY2(stops.indexOf("AnswerTable") >= 0, qPrintable(stops.join(' ')));
    QCOMPARE(stops.indexOf("Note"), stops.indexOf("AnswerTable") + 1);
    QVERIFY(stops.indexOf("Note") < stops.indexOf("bPrint"));
}

void InsightKeysTest::theFocusOfATextIsVisible() {
    InsightDesk desk;
    desk.Show(InsightQuestion::InShort);
    GoTo(desk);
    auto& text = desk.Find<QLabel>("Sentence");
    const QImage before = text.grab().toImage();
    QTest::keyClick(desk.Window->focusWidget(), Qt::Key_Tab);
    QVERIFY(text.hasFocus());
    const QImage after = text.grab().toImage();
    // A frame reaches the right edge, a cursor within the text does not.
    const int edge = before.width() - 2;
    QVERIFY(before.copy(edge, 0, 2, before.height()) != after.copy(edge, 0, 2, before.height()));
}

QTEST_MAIN(InsightKeysTest)
#include "InsightKeysTest.moc"
