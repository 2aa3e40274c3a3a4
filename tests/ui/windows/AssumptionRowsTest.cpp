#include <QLabel>
#include <QLineEdit>

#include "DialogTest.h"

using namespace Ledgrove;

// The assumptions dialog when the file's tables do not fit its rows, and when OK cannot save an entry.
class AssumptionRowsTest : public QObject {
    Q_OBJECT

private slots:
    void rowsWithoutALoanTypeStandDisabled();
    void moreBracketsThanRowsShowEveryHighEndAndALine();
    void anUnreadableEntryKeepsTheDialogAtItsField();
};

void AssumptionRowsTest::rowsWithoutALoanTypeStandDisabled() {
    OpenAssumptions open([](SettingsDesk& desk) { desk.State.LoanTypes.resize(3); });
    QCOMPARE(open.LabelText("lblLoanType3"), "Freddie Mac EEM");
    QVERIFY(open.Find("BER3").isVisible());
    QVERIFY(open.Find("BER3").isEnabled());
    QCOMPARE(open.LabelText("lblLoanType4"), "VA EEM");
    for (const char* control : {"lblLoanType4", "FER4", "BER7"}) {
        QVERIFY(open.Find(control).isVisible());
        QVERIFY(!open.Find(control).isEnabled());
    }
}

void AssumptionRowsTest::moreBracketsThanRowsShowEveryHighEndAndALine() {
    OpenAssumptions open([](SettingsDesk& desk) {
        while (desk.State.TaxBrackets.size() < 8)
            desk.State.TaxBrackets.insert(desk.State.TaxBrackets.begin(), {-1, 1000, 5});
    });
    QVERIFY(open.Find("ecHighEnd6").isVisible());
    QCOMPARE(open.FieldText("ecHighEnd6"), "$435,750"); // the fourth of the shipped brackets
    QCOMPARE(open.LabelText("lblFurtherBrackets"), "The settings file keeps 2 further brackets.");
}

void AssumptionRowsTest::anUnreadableEntryKeepsTheDialogAtItsField() {
    OpenAssumptions open;
    const QByteArray before = open.Settings();
    open.Type("PMI_Multiplier2", "0.87%");
    ClickAt(open.Find("bOK"));
    QVERIFY(open.IsOpen());
    QCOMPARE(open.Focused(), "PMI_Multiplier2");
    QCOMPARE(open.Find<QLineEdit>("PMI_Multiplier2").selectedText(), "0.87%");
    QCOMPARE(open.Outside.TakeTexts(),
             std::vector<std::string>{"You must enter a fraction of the loan amount here, without \"%\". For "
                                      "example, 0.0087 is 0.87%."});
    QCOMPARE(open.Settings(), before);
}

QTEST_MAIN(AssumptionRowsTest)
#include "AssumptionRowsTest.moc"
