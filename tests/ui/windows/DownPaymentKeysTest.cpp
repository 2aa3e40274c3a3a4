#include <QRadioButton>

#include "WindowTest.h"

using namespace Ledgrove;

// The down payment by keys alone: Enter, Tab and Down lead to the field in force, and no control keeps Enter.
class DownPaymentKeysTest : public QObject {
    Q_OBJECT

private slots:
    void theFirstEntriesOfTheGuide();
    void monthlyDebtLeadsToTheFieldInForce_data();
    void monthlyDebtLeadsToTheFieldInForce();
    void aChosenOptionLeadsToItsField();
    void theOrderDoesNotDependOnThePast();
    void aRefusedPressLeavesTheChosenOptionInTheOrder();
    void enterNeverSticks();
};

void DownPaymentKeysTest::theFirstEntriesOfTheGuide() {
    OpenWindow open;
    open.Find("ecIncome").setFocus();
    for (const char* text : {"90000", "450", "10"}) {
        QTest::keyClicks(open.Window->focusWidget(), text);
        open.Press(Qt::Key_Return);
    }
    QCOMPARE(open.FieldText("ecIncome"), "$90,000");
    QCOMPARE(open.FieldText("ecMonthlyDebt"), "$450");
    QCOMPARE(open.FieldText("ecPctDown"), "10.00%");
}

void DownPaymentKeysTest::monthlyDebtLeadsToTheFieldInForce_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("option");
    QTest::addColumn<QString>("field");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down}) {
        const QByteArray name = QKeySequence(key).toString().toUtf8();
        QTest::newRow(name + ", percent") << key << 0 << "ecPctDown";
        QTest::newRow(name + ", fixed") << key << 1 << "ecFixedDown";
    }
}

void DownPaymentKeysTest::monthlyDebtLeadsToTheFieldInForce() {
    QFETCH(Qt::Key, key);
    QFETCH(int, option);
    QFETCH(QString, field);
    OpenWindow open;
    ClickAt(open.Find(QString("optDownPayment%1").arg(option)));
    open.Find("ecMonthlyDebt").setFocus();
    open.Press(key);
    QCOMPARE(open.Focused(), field);
    open.Press(key);
    QCOMPARE(open.Focused(), QString("optDownPayment%1").arg(option));
    open.Press(Qt::Key_Up);
    QCOMPARE(open.Focused(), field);
    open.Press(Qt::Key_Up);
    QCOMPARE(open.Focused(), "ecMonthlyDebt");
}

void DownPaymentKeysTest::aChosenOptionLeadsToItsField() {
    OpenWindow open;
    open.Find("ecPctDown").setFocus();
    open.Press(Qt::Key_Tab);
    QCOMPARE(open.Focused(), "optDownPayment0");
    open.Press(Qt::Key_Right);
    QCOMPARE(open.Focused(), "optDownPayment1");
    QCOMPARE(open.State.Screen.optDownPayment, 1);
    open.Press(Qt::Key_Tab);
    QCOMPARE(open.Focused(), "ecFixedDown");
    // From now on, the order is that of the fixed amount.
    open.Press(Qt::Key_Up);
    QCOMPARE(open.Focused(), "ecMonthlyDebt");
    QCOMPARE(open.TabWalk("ecMonthlyDebt", 5),
             QStringList({"ecMonthlyDebt", "ecFixedDown", "optDownPayment1", "ecPctDown", "chkDoTax0"}));
}

void DownPaymentKeysTest::theOrderDoesNotDependOnThePast() {
    OpenWindow open;
    for (const int option : {1, 0, 1, 0})
        ClickAt(open.Find(QString("optDownPayment%1").arg(option)));
    QCOMPARE(open.TabWalk("ecMonthlyDebt", 5),
             QStringList({"ecMonthlyDebt", "ecPctDown", "optDownPayment0", "ecFixedDown", "chkDoTax0"}));
}

void DownPaymentKeysTest::aRefusedPressLeavesTheChosenOptionInTheOrder() {
    OpenWindow open;
    open.Type("ecMonthlyDebt", "abc");
    ClickAt(open.Find("optDownPayment1"));
    QCOMPARE(open.State.Screen.optDownPayment, 0);
    open.Type("ecMonthlyDebt", "5");
    QCOMPARE(open.TabWalk("ecMonthlyDebt", 4),
             QStringList({"ecMonthlyDebt", "ecPctDown", "optDownPayment0", "ecFixedDown"}));
}

void DownPaymentKeysTest::enterNeverSticks() {
    OpenWindow open;
    const QStringList order = {"ecPctDown", "optDownPayment0", "ecFixedDown", "chkDoTax0", "ecStdHome"};
    open.Find("ecPctDown").setFocus();
    for (const QString& control : order) {
        QCOMPARE(open.Focused(), control);
        open.Press(Qt::Key_Return);
    }
    for (const char* list : {"cboMortTerm", "cboStdMortOption", "cboGMHMortOption"}) {
        open.Find(list).setFocus();
        open.Press(Qt::Key_Enter);
        QVERIFY(open.Focused() != list);
    }
}

QTEST_MAIN(DownPaymentKeysTest)
#include "DownPaymentKeysTest.moc"
