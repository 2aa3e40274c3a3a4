#include <QTest>

#include "InsightDesk.h"

using namespace Ledgrove;

/// Entries beside an open Insight window: what counts as entered, and what one step of Undo is.
class InsightEntryTest : public QObject {
    Q_OBJECT

private slots:
    void anEntryIsOneStepOfUndo();
    void aRefusedFieldIsNotOverwritten();
    void whatIsBeingTypedDoesNotCount();
    void textsThatAreEnteredTogetherWarnTogether();
    void aRefusedTextIsNoStepOfUndo();
};

void InsightEntryTest::anEntryIsOneStepOfUndo() {
    InsightDesk desk;
    desk.Open.Window->Enter({{"ecGMHHome", "$210,000"}, {"ecGMHUtil", "$1,000"}});
    QCOMPARE(desk.Open.FieldText("ecGMHUtil"), "$1,000");
    desk.Open.Window->Undo();
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), "$206,000");
    QCOMPARE(desk.Open.FieldText("ecGMHUtil"), "$1,700");
}

void InsightEntryTest::aRefusedFieldIsNotOverwritten() {
    InsightDesk desk;
    desk.Open.Type("ecGMHHome", "abc");
    desk.Open.Window->Enter({{"ecGMHHome", "$210,000"}});
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), "abc");
}

void InsightEntryTest::whatIsBeingTypedDoesNotCount() {
    InsightDesk desk;
    desk.Show(InsightQuestion::InShort);
    const QString inShort = desk.Sentence();
    desk.Show(InsightQuestion::HowFar);
    const QString howFar = desk.Sentence();
    for (const QString& typed : {QString("8"), QString("abc")}) {
        desk.Open.Type("ecIncome", typed);
        desk.Show(InsightQuestion::InShort);
        QCOMPARE(desk.Sentence(), inShort);
        desk.Show(InsightQuestion::HowFar);
        QCOMPARE(desk.Sentence(), howFar);
    }
    desk.Open.Enter("ecIncome", "8");
    desk.Show(InsightQuestion::InShort);
    QVERIFY(desk.Sentence() != inShort);
}

void InsightEntryTest::textsThatAreEnteredTogetherWarnTogether() {
    InsightDesk desk;
    desk.Open.Window->Enter({{"cboGMHMortOption", "Fannie Mae EEM"}});
    desk.Open.Outside.Messages.clear();
    // Saving $1,365 a year is worth more than $14,345, but saving $700 is not.
    desk.Open.Window->Enter({{"ecGMHHome", "$214,345"}, {"ecGMHUtil", "$1,035"}});
    QVERIFY(desk.Open.State.GMHCase.PVSavings > 14345);
    QCOMPARE(desk.Open.Outside.Messages.size(), 0U);
    desk.Open.Window->Undo();
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), "$206,000");
    QCOMPARE(desk.Open.FieldText("ecGMHUtil"), "$1,700");
    // Now the notice is due: one notice, and one step although it interrupts the entry.
    desk.Open.Window->Enter({{"ecGMHHome", "$214,345"}, {"ecGMHUtil", "$1,600"}});
    QCOMPARE(desk.Open.Outside.Messages.size(), 1U);
    desk.Open.Window->Undo();
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), "$206,000");
    QCOMPARE(desk.Open.FieldText("ecGMHUtil"), "$1,700");
}

void InsightEntryTest::aRefusedTextIsNoStepOfUndo() {
    InsightDesk desk;
    desk.Open.Enter("ecIncome", "abc");
    desk.Open.Enter("ecIncome", "80000");
    QCOMPARE(desk.Open.FieldText("ecIncome"), "$80,000");
    desk.Open.Window->Undo();
    QCOMPARE(desk.Open.FieldText("ecIncome"), "$72,000");
}

QTEST_MAIN(InsightEntryTest)
#include "InsightEntryTest.moc"
