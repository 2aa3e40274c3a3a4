#include "DialogTest.h"

using namespace Ledgrove;

/// The edit mode of the house scenarios.
class HouseEditTest : public QObject {
    Q_OBJECT

private slots:
    void editEnablesTheFieldsAndDisablesTheRest();
    void plausibleEditIsStoredWithoutAsking();
    void implausibleEditAsksAndGoesBack();
    void implausibleEditAsksAndIsStored();
    void refusedAmountIsNotStored();
    void cancelEditShowsTheStoredAmountsWithoutAMessage();
    void escapeCancelsTheEditFirst();
    void enterInAFieldRecalculatesTheMainScreen();
    void closeButtonDoesNotStoreTheEdit();
};

void HouseEditTest::editEnablesTheFieldsAndDisablesTheRest() {
    OpenHouses open;
    open.Press(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE(open.Focused(), "ecStdCost");
    for (const char* name : {"ecStdCost", "ecStdUtil", "ecGMHCost", "ecGMHUtil", "bDoneEdit", "bCancelEdit"})
        QVERIFY2(open.Find(name).isEnabled() && open.Find(name).isVisible(), name);
    for (const char* name : {"lbHomes", "bAdd", "bEdit", "bDelete", "bOK", "bCancel", "bHelp"})
        QVERIFY2(!open.Find(name).isEnabled(), name);
    ClickAt(open.Find("bDoneEdit"));
    for (const char* name : {"lbHomes", "bAdd", "bEdit", "bDelete", "bOK", "bCancel", "bHelp"})
        QVERIFY2(open.Find(name).isEnabled(), name);
    QVERIFY(!open.Find("ecStdCost").isEnabled());
    QVERIFY(!open.Find("bDoneEdit").isVisible());
    QCOMPARE(open.Focused(), "lbHomes");
}

void HouseEditTest::plausibleEditIsStoredWithoutAsking() {
    OpenHouses open;
    ClickAt(open.Find("bEdit"));
    open.Type("ecStdCost", "290000");
    open.Press(Qt::Key_Return);
    QCOMPARE(open.FieldText("ecStdCost"), "$290,000");
    QCOMPARE(open.Focused(), "ecGMHCost");
    ClickAt(open.Find("bDoneEdit"));
    QVERIFY(open.Outside.Messages.empty());
    QVERIFY(!open.Shown.Editing);
    ClickAt(open.Find("bCancel"));
    QCOMPARE(open.Lines("HOMELIST").front(), "HOMELIST=The Alder,290000,2400,293000,1550");
}

void HouseEditTest::implausibleEditAsksAndGoesBack() {
    OpenHouses open;
    open.Outside.Answer = MessageAnswer::No;
    ClickAt(open.Find("bEdit"));
    open.Type("ecStdCost", "0");
    ClickAt(open.Find("bDoneEdit"));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    const Message& question = open.Outside.Messages.front();
    QCOMPARE(question.Title, std::string("Ledgrove Data Check"));
    QVERIFY(question.Text.starts_with("Attention!\r\rCost of Standard Home is missing.\r"));
    QVERIFY(question.Text.ends_with("Continue to save?"));
    QVERIFY(open.Find("ecStdCost").isEnabled());
    QCOMPARE(open.FieldText("ecStdCost"), "$0");
    QCOMPARE(open.Shown.Houses[0].StdCost, 285000.0F);
}

void HouseEditTest::implausibleEditAsksAndIsStored() {
    OpenHouses open;
    open.Outside.Answer = MessageAnswer::Yes;
    ClickAt(open.Find("bEdit"));
    open.Type("ecStdCost", "0");
    ClickAt(open.Find("bDoneEdit"));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QVERIFY(!open.Find("ecStdCost").isEnabled());
    QCOMPARE(open.Shown.Houses[0].StdCost, 0.0F);
}

void HouseEditTest::refusedAmountIsNotStored() {
    OpenHouses open;
    ClickAt(open.Find("bEdit"));
    open.Type("ecGMHUtil", "-5");
    ClickAt(open.Find("bDoneEdit"));
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"You must enter a positive number here."});
    QVERIFY(open.Shown.Editing);
    QCOMPARE(open.Focused(), "ecGMHUtil");
    QCOMPARE(open.FieldText("ecGMHUtil"), "-5");
    open.Press(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(open.Outside.TakeTexts().size(), std::size_t(1));
    QVERIFY(open.Shown.Editing);
}

void HouseEditTest::cancelEditShowsTheStoredAmountsWithoutAMessage() {
    OpenHouses open;
    ClickAt(open.Find("bEdit"));
    open.Type("ecStdUtil", "abc");
    ClickAt(open.Find("bCancelEdit"));
    QVERIFY(open.Outside.Messages.empty());
    QVERIFY(!open.Find("ecStdUtil").isEnabled());
    QCOMPARE(open.FieldText("ecStdUtil"), "$2,400");
    QVERIFY(open.IsOpen());
}

void HouseEditTest::escapeCancelsTheEditFirst() {
    OpenHouses open;
    ClickAt(open.Find("bEdit"));
    open.Type("ecStdUtil", "-1");
    open.Press(Qt::Key_Escape);
    QVERIFY(open.Outside.Messages.empty());
    QVERIFY(open.IsOpen());
    QVERIFY(!open.Find("ecStdUtil").isEnabled());
    QCOMPARE(open.FieldText("ecStdUtil"), "$2,400");
    open.Press(Qt::Key_Escape);
    QVERIFY(!open.IsOpen());
}

void HouseEditTest::enterInAFieldRecalculatesTheMainScreen() {
    OpenHouses open;
    open.State.Screen.ecIncome.Text = "$72,000";
    ClickAt(open.Find("bEdit"));
    open.Press(Qt::Key_Return);
    // 72,000 x 0.28 / 12
    QCOMPARE(open.State.Screen.lblStdInc.Text, "$1,680");
}

void HouseEditTest::closeButtonDoesNotStoreTheEdit() {
    OpenHouses open;
    ClickAt(open.Find("bEdit"));
    open.Type("ecStdCost", "-1");
    open.Window->close();
    QVERIFY(!open.IsOpen());
    QVERIFY(open.Outside.Messages.empty());
    QCOMPARE(open.Lines("HOMELIST").front(), "HOMELIST=The Alder,285000,2400,293000,1550");
}

QTEST_MAIN(HouseEditTest)
#include "HouseEditTest.moc"
