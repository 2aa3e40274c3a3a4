#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QScreen>
#include <QSet>

#include "DialogTest.h"

using namespace Ledgrove;

namespace {

/// Every field has a different spoken name, which is words.
void CheckFieldNames(QWidget& form) {
    QSet<QString> spoken;
    const auto fields = form.findChildren<QLineEdit*>();
    for (QLineEdit* field : fields) {
        spoken += SpokenName(*field);
        QVERIFY(!SpokenName(*field).isEmpty());
    }
    QCOMPARE(spoken.size(), fields.size());
    QCOMPARE(SpokenCodeNames(form), QStringList());
}

void CheckCentred(const QWidget& form) {
    const QSize room = form.screen()->geometry().size() - form.size();
    QCOMPARE(form.pos() - form.screen()->geometry().topLeft(), QPoint(room.width() / 2, room.height() / 2));
}

} // namespace

class DialogAccessTest : public QObject {
    Q_OBJECT

private slots:
    void mnemonicsAreUnique();
    void mnemonicsReachTheirFields();
    void fieldsAreNamedCaptionAndColumn();
    void tabOrderOfTheHousesFollowsTheLayout();
    void tabOrderOfTheAssumptionsFollowsTheLayout();
    void tabOrderOfTheOptionsFollowsTheLayout();
    void enterPressesOnlyTheFocusedButton();
    void dialogsAreCentred();
};

void DialogAccessTest::mnemonicsAreUnique() {
    QCOMPARE(Mnemonics(*OpenHouses().Window), "ACDEHINORSU");
    QCOMPARE(Mnemonics(*OpenAssumptions().Window), "ABCEFGHILMOPRTVY");
    QCOMPARE(Mnemonics(*OpenOptions().Window), "12CHO");
}

void DialogAccessTest::mnemonicsReachTheirFields() {
    OpenAssumptions assumptions;
    const std::pair<Qt::Key, const char*> fields[] = {{Qt::Key_P, "PMI_Multiplier1"},
                                                      {Qt::Key_F, "FER1"},
                                                      {Qt::Key_B, "BER1"},
                                                      {Qt::Key_E, "ecRealEstateTaxPct"},
                                                      {Qt::Key_I, "ecInsurancePct"},
                                                      {Qt::Key_R, "ecPV_Rate"},
                                                      {Qt::Key_T, "ecPV_Term"},
                                                      {Qt::Key_L, "ecLowEnd1"},
                                                      {Qt::Key_G, "ecHighEnd1"},
                                                      {Qt::Key_A, "ecRate1"},
                                                      {Qt::Key_Y, "ecYrsInHome"}};
    for (const auto& [key, field] : fields) {
        assumptions.Press(key, Qt::AltModifier);
        QCOMPARE(assumptions.Focused(), field);
    }
    OpenHouses houses;
    houses.Find("bOK").setFocus();
    houses.Press(Qt::Key_R, Qt::AltModifier);
    QCOMPARE(houses.Focused(), "lbHomes");
    houses.Press(Qt::Key_E, Qt::AltModifier);
    QTRY_COMPARE(houses.Focused(), "ecStdCost");
    houses.Press(Qt::Key_U, Qt::AltModifier);
    QCOMPARE(houses.Focused(), "ecStdUtil");
    houses.Press(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(houses.Focused(), "ecStdCost");
    houses.Press(Qt::Key_I, Qt::AltModifier);
    QTRY_VERIFY(!houses.Shown.Editing);
    QCOMPARE(houses.Focused(), "lbHomes");
}

void DialogAccessTest::fieldsAreNamedCaptionAndColumn() {
    OpenHouses houses;
    CheckFieldNames(*houses.Window);
    QCOMPARE(SpokenName(houses.Find("lbHomes")), "House Scenarios");
    QCOMPARE(SpokenName(houses.Find("ecStdCost")), "Sticker Price, Base Home");
    QCOMPARE(SpokenName(houses.Find("ecGMHUtil")), "Annual Utility Cost, GREENMARK Home");
    OpenAssumptions assumptions;
    CheckFieldNames(*assumptions.Window);
    QCOMPARE(SpokenName(assumptions.Find("PMI_Multiplier3")), "PMI Multiplier, 15%");
    QCOMPARE(SpokenName(assumptions.Find("BER5")), "Back End Ratio, FHA EEM");
    QCOMPARE(SpokenName(assumptions.Find("ecHighEnd2")), "High End, Row 2");
    QCOMPARE(SpokenName(assumptions.Find("ecInsurancePct")), "Home Owner's Insurance");
    QCOMPARE(SpokenName(assumptions.Find("ecExpUpgrValue")), "Calculated Value of Upgrade");
    OpenOptions options;
    CheckFieldNames(*options.Window);
    QCOMPARE(SpokenName(options.Find("ecFeat2")), "Option 2");
}

void DialogAccessTest::tabOrderOfTheHousesFollowsTheLayout() {
    OpenHouses open;
    const QStringList view = {"lbHomes", "bAdd", "bEdit", "bDelete", "bOK", "bCancel", "bHelp", "lbHomes"};
    QCOMPARE(open.TabWalk("lbHomes", view.size()), view);
    ClickAt(open.Find("bEdit"));
    const QStringList edit = {"ecStdCost", "ecGMHCost",   "ecStdUtil", "ecGMHUtil",
                              "bDoneEdit", "bCancelEdit", "ecStdCost"};
    QCOMPARE(open.TabWalk("ecStdCost", edit.size()), edit);
}

void DialogAccessTest::tabOrderOfTheAssumptionsFollowsTheLayout() {
    OpenAssumptions open;
    QStringList expected;
    for (int row = 1; row <= 4; ++row)
        expected += QString("PMI_Multiplier%1").arg(row);
    for (int row = 1; row <= 7; ++row)
        expected += {QString("FER%1").arg(row), QString("BER%1").arg(row)};
    expected += {"ecRealEstateTaxPct", "ecInsurancePct", "optUsePVVars0", "ecPV_Rate", "ecPV_Term"};
    for (int row = 1; row <= 6; ++row) {
        expected += QString("ecLowEnd%1").arg(row);
        if (row < 6)
            expected += QString("ecHighEnd%1").arg(row);
        expected += QString("ecRate%1").arg(row);
    }
    expected += {"ecYrsInHome", "bOK", "bCancel", "bHelp", "PMI_Multiplier1"};
    QCOMPARE(open.Focused(), "PMI_Multiplier1");
    QCOMPARE(open.TabWalk("PMI_Multiplier1", expected.size()), expected);
}

void DialogAccessTest::tabOrderOfTheOptionsFollowsTheLayout() {
    OpenOptions open;
    const QStringList expected = {"ecFeat1", "ecFeat2", "bOK", "bCancel", "bHelp", "ecFeat1"};
    QCOMPARE(open.TabWalk("ecFeat1", expected.size()), expected);
}

void DialogAccessTest::enterPressesOnlyTheFocusedButton() {
    OpenOptions open;
    for (int i = 0; i < 2; ++i)
        open.Press(i == 0 ? Qt::Key_Return : Qt::Key_Enter);
    QVERIFY(open.IsOpen());
    QCOMPARE(open.Focused(), "bOK");
    open.Find("bCancel").setFocus();
    open.Press(Qt::Key_Return);
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.Window->result(), int(QDialog::Rejected));
    OpenHouses houses;
    houses.Find("bHelp").setFocus();
    houses.Press(Qt::Key_Return);
    QVERIFY(houses.IsOpen());
    for (const QPushButton* button : houses.Window->findChildren<QPushButton*>())
        QVERIFY(!button->isDefault());
}

void DialogAccessTest::dialogsAreCentred() {
    CheckCentred(*OpenHouses().Window);
    CheckCentred(*OpenAssumptions().Window);
    CheckCentred(*OpenOptions().Window);
}

QTEST_MAIN(DialogAccessTest)
#include "DialogAccessTest.moc"
