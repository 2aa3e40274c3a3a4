#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyleHints>
#include <algorithm>

#include "DialogTest.h"

using namespace Ledgrove;

namespace {

QByteArrayList SortedLines(const QByteArray& settings) {
    QByteArrayList lines = settings.split('\n');
    std::sort(lines.begin(), lines.end());
    return lines;
}

std::vector<std::string> LabelTexts(const MainScreen& screen) {
    std::vector<std::string> texts;
    for (const auto& [name, member] : LabelTable())
        texts.push_back((screen.*member).Text);
    return texts;
}

} // namespace

class AssumptionsDialogTest : public QObject {
    Q_OBJECT

private slots:
    void showsTheShippedAssumptions_data();
    void showsTheShippedAssumptions();
    void showsItsFixedTexts();
    void lastHighEndIsHiddenByWords();
    void fewerBracketsMoveTheWordsUp();
    void confirmingUntouchedChangesOnlyNumberFormats();
    void confirmedValuesReachFileAndMemory();
    void ownVariablesAreSaved();
    void highEndSetsTheNextLowEnd_data();
    void highEndSetsTheNextLowEnd();
    void lowEndIsFormattedButNotChecked();
    void realEstateRateOfOneHalfDependsOnTheWayOut();
    void presentValueRateIsShownAsWholePercent();
    void multiplierStaysAsTyped();
    void clickSelectsExceptInTheTaxRows();
    void refusedFieldKeepsOkFromActing();
    void cancelWritesNothing_data();
    void cancelWritesNothing();
    void unwritableFolderKeepsTheDialogOpen();
    void activationShowsTheUpgradesValue();
    void dialogFitsASmallScreen();
    void dialogFitsWithALongLoanTypeName();
};

void AssumptionsDialogTest::showsTheShippedAssumptions_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    const std::pair<const char*, const char*> rows[] = {{"ecLowEnd1", "$0"},
                                                        {"ecHighEnd1", "$57,000"},
                                                        {"ecRate1", "10.00%"},
                                                        {"ecLowEnd2", "$57,001"},
                                                        {"ecLowEnd6", "$544,651"},
                                                        {"ecHighEnd6", ""},
                                                        {"ecRate6", "35.00%"},
                                                        {"FER1", "28.00%"},
                                                        {"BER7", "41.00%"},
                                                        {"PMI_Multiplier1", "0.0087"},
                                                        {"PMI_Multiplier4", "0.0023"},
                                                        {"ecPV_Rate", "6.24%"},
                                                        {"ecPV_Term", "30"},
                                                        {"ecYrsInHome", "7"},
                                                        {"ecRealEstateTaxPct", "0.90%"},
                                                        {"ecInsurancePct", "0.65%"},
                                                        {"ecExpUpgrValue", "$0"}};
    for (const auto& [field, text] : rows)
        QTest::addRow("%s", field) << field << text;
}

void AssumptionsDialogTest::showsTheShippedAssumptions() {
    QFETCH(QString, field);
    QFETCH(QString, text);
    OpenAssumptions open;
    QCOMPARE(open.FieldText(field), text);
}

void AssumptionsDialogTest::showsItsFixedTexts() {
    OpenAssumptions open;
    QCOMPARE(open.Window->windowTitle(), "Financial Assumptions");
    QVERIFY(open.Window->isModal());
    QStringList shown;
    for (const QLabel* label : open.Window->findChildren<QLabel*>())
        shown += label->buddy() ? label->text().remove('&') : label->text();
    for (const QGroupBox* group : open.Window->findChildren<QGroupBox*>())
        shown += group->title();
    for (const QAbstractButton* button : open.Window->findChildren<QAbstractButton*>())
        shown += button->objectName().startsWith('b') ? button->text() : button->text().remove('&');
    const char* texts[] = {"PMI Multipliers",
                           "Percent Down (less than)",
                           "PMI Multiplier",
                           "5%",
                           "10%",
                           "15%",
                           "20%",
                           "Present Value of Energy Savings",
                           "To calculate PV of energy savings use:",
                           "Mortgage rate and term",
                           "These variables",
                           "Rate:",
                           "Term:",
                           "years",
                           "Variables used to calculate the PV of the energy savings.",
                           "(Fannie Mae refers to this as the Energy Savings Value)",
                           "Mortgage Qualifier Ratios",
                           "Front End Ratio",
                           "Back End Ratio",
                           "Conventional",
                           "VA EEM",
                           "Note:",
                           "Mortgage qualifier ratios can vary. Defaults are set to a single value for "
                           "simplification. Check with "
                           "your local lender for current values.",
                           "Taxes and Insurance",
                           "Real Estate Taxes:",
                           "of House Value",
                           "Home Owner's Insurance:",
                           "Income Tax Rate Schedule",
                           "or greater",
                           "Other Financial Variables",
                           "Anticipated Years in Home:",
                           "Calculated Value of Upgrade:",
                           "&OK",
                           "&Cancel",
                           "&Help"};
    for (const char* text : texts)
        QVERIFY2(shown.contains(text), text);
}

void AssumptionsDialogTest::lastHighEndIsHiddenByWords() {
    OpenAssumptions open;
    QVERIFY(open.Find("ecHighEnd5").isVisible());
    QVERIFY(!open.Find("ecHighEnd6").isVisible());
    open.Type("ecLowEnd6", "544651");
    open.Press(Qt::Key_Tab);
    QCOMPARE(open.Focused(), "ecRate6");
}

void AssumptionsDialogTest::fewerBracketsMoveTheWordsUp() {
    OpenAssumptions open([](SettingsDesk& desk) { desk.State.TaxBrackets.resize(4); });
    QVERIFY(open.Find("ecHighEnd3").isVisible());
    QVERIFY(!open.Find("ecHighEnd4").isVisible());
    QVERIFY(open.Find("ecHighEnd6").isVisible());
}

void AssumptionsDialogTest::confirmingUntouchedChangesOnlyNumberFormats() {
    OpenAssumptions open;
    const std::vector<std::string> results = LabelTexts(open.State.Screen);
    // The loan type lines move to the end; the tax rates get two decimal places.
    QByteArray expected = open.Settings();
    for (const char* rate : {"10", "12", "22", "24", "32", "35"})
        expected.replace(QByteArray(",") + rate + "\r\n", QByteArray(",") + rate + ".00\r\n");
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.IsOpen());
    QCOMPARE(SortedLines(open.Settings()), SortedLines(expected));
    QCOMPARE(LabelTexts(open.State.Screen), results);

    const QByteArray once = open.Settings();
    open.Window->show();
    QVERIFY(QTest::qWaitForWindowActive(open.Window.get()));
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.Settings(), once);
    QVERIFY(open.Outside.Messages.empty());
}

void AssumptionsDialogTest::confirmedValuesReachFileAndMemory() {
    OpenAssumptions open;
    open.State.Screen.ecIncome.Text = "$72,000";
    const std::pair<const char*, const char*> entries[] = {
        {"FER1", "33%"}, {"PMI_Multiplier2", "0.005"}, {"ecYrsInHome", "12"}, {"ecRate2", "13"}};
    for (const auto& [field, text] : entries) {
        open.Type(field, text);
        open.Press(Qt::Key_Return);
    }
    QCOMPARE(open.State.Assumptions.YearsInHome, 7);
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.Lines("LOANTYPE").front(), "LOANTYPE=1,Conventional,,0.330,0.360,,,,FALSE");
    QCOMPARE(open.Lines("PMI_MULT2"), QByteArrayList{"PMI_MULT2=0.005"});
    QCOMPARE(open.Lines("YEARS_IN_HOME"), QByteArrayList{"YEARS_IN_HOME=12"});
    QCOMPARE(open.Lines("TAXCAT")[1], "TAXCAT=133000,13.00");
    QCOMPARE(open.State.Assumptions.YearsInHome, 12);
    QCOMPARE(open.State.TaxBrackets[1].Rate, 13.0F);
    QCOMPARE(open.State.Screen.lblStdInc.Text, "$1,980"); // 72,000 x 0.33 / 12
}

void AssumptionsDialogTest::ownVariablesAreSaved() {
    OpenAssumptions open;
    QVERIFY(open.Find<QRadioButton>("optUsePVVars0").isChecked());
    open.Press(Qt::Key_V, Qt::AltModifier);
    QTRY_VERIFY(open.Shown.optUsePVVars);
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.Lines("PVSAVINGS_FLAG"), QByteArrayList{"PVSAVINGS_FLAG=TRUE"});
    QVERIFY(open.State.Assumptions.UsePVVars);
}

void AssumptionsDialogTest::highEndSetsTheNextLowEnd_data() {
    QTest::addColumn<QString>("way");
    for (const char* way : {"Enter", "Tab", "click"})
        QTest::addRow("%s", way) << way;
}

void AssumptionsDialogTest::highEndSetsTheNextLowEnd() {
    QFETCH(QString, way);
    OpenAssumptions open;
    open.Type("ecHighEnd2", "50000");
    if (way == "click")
        ClickAt(open.Find("ecYrsInHome"));
    else
        open.Press(way == "Enter" ? Qt::Key_Return : Qt::Key_Tab);
    QCOMPARE(open.FieldText("ecHighEnd2"), "$50,000");
    QCOMPARE(open.FieldText("ecLowEnd3"), "$50,001");
}

void AssumptionsDialogTest::lowEndIsFormattedButNotChecked() {
    OpenAssumptions open;
    open.Type("ecLowEnd2", "1234");
    open.Press(Qt::Key_Return);
    QVERIFY(open.IsOpen());
    QCOMPARE(open.FieldText("ecLowEnd2"), "1234");
    ClickAt(open.Find("ecYrsInHome"));
    QCOMPARE(open.FieldText("ecLowEnd2"), "$1,234");
    open.Type("ecLowEnd2", "abc");
    ClickAt(open.Find("ecYrsInHome"));
    QCOMPARE(open.FieldText("ecLowEnd2"), "$0");
    QVERIFY(open.Outside.Messages.empty());
}

void AssumptionsDialogTest::realEstateRateOfOneHalfDependsOnTheWayOut() {
    OpenAssumptions open;
    open.Type("ecRealEstateTaxPct", "0.5");
    open.Press(Qt::Key_Return);
    QCOMPARE(open.FieldText("ecRealEstateTaxPct"), "0.50%");
    open.Type("ecRealEstateTaxPct", "0.5");
    ClickAt(open.Find("ecYrsInHome"));
    QCOMPARE(open.FieldText("ecRealEstateTaxPct"), "50.00%");
}

void AssumptionsDialogTest::presentValueRateIsShownAsWholePercent() {
    OpenAssumptions open;
    open.Type("ecPV_Rate", "0.07");
    ClickAt(open.Find("ecYrsInHome"));
    QCOMPARE(open.FieldText("ecPV_Rate"), "0.07%");
    open.Type("ecPV_Rate", "7.5");
    open.Press(Qt::Key_Return);
    QCOMPARE(open.FieldText("ecPV_Rate"), "7.50%");
    open.Type("ecPV_Rate", "-1");
    ClickAt(open.Find("ecYrsInHome"));
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"You must enter a positive number here."});
    QCOMPARE(open.Focused(), "ecPV_Rate");
}

void AssumptionsDialogTest::multiplierStaysAsTyped() {
    OpenAssumptions open;
    open.Type("PMI_Multiplier1", "0.25");
    open.Press(Qt::Key_Return);
    QCOMPARE(open.FieldText("PMI_Multiplier1"), "0.25");
    QCOMPARE(open.Focused(), "PMI_Multiplier2");
}

void AssumptionsDialogTest::clickSelectsExceptInTheTaxRows() {
    OpenAssumptions open;
    for (const char* field : {"ecInsurancePct", "FER2", "PMI_Multiplier3", "ecPV_Term"}) {
        ClickAt(open.Find(field));
        QVERIFY2(open.Find<QLineEdit>(field).hasSelectedText(), field);
    }
    // The click that enters a tax row's field selects because it gives the focus; a further click does not.
    for (const char* field : {"ecRate2", "ecHighEnd2"}) {
        ClickAt(open.Find(field));
        QVERIFY2(open.Find<QLineEdit>(field).hasSelectedText(), field);
        QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 10);
        ClickAt(open.Find(field));
        QVERIFY2(!open.Find<QLineEdit>(field).hasSelectedText(), field);
    }
    ClickAt(open.Find("ecLowEnd2"));
    QVERIFY(!open.Find<QLineEdit>("ecLowEnd2").hasSelectedText());
    open.Find("ecRate3").setFocus(Qt::TabFocusReason);
    QVERIFY(open.Find<QLineEdit>("ecRate3").hasSelectedText());
}

void AssumptionsDialogTest::refusedFieldKeepsOkFromActing() {
    OpenAssumptions open;
    const QByteArray before = open.Settings();
    open.Type("BER2", "abc");
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"You must enter a number here."});
    QCOMPARE(open.Focused(), "BER2");
    open.Press(Qt::Key_O, Qt::AltModifier);
    QCOMPARE(open.Outside.TakeTexts().size(), std::size_t(1));
    QVERIFY(open.IsOpen());
    QCOMPARE(open.Settings(), before);
}

void AssumptionsDialogTest::cancelWritesNothing_data() {
    QTest::addColumn<QString>("way");
    for (const char* way : {"bCancel", "Alt+C", "Escape", "close button"})
        QTest::addRow("%s", way) << way;
}

void AssumptionsDialogTest::cancelWritesNothing() {
    QFETCH(QString, way);
    OpenAssumptions open;
    const QByteArray before = open.Settings();
    open.Type("ecYrsInHome", "12");
    open.Press(Qt::Key_Return);
    open.Type("FER1", "-5");
    if (way == "bCancel")
        ClickAt(open.Find("bCancel"));
    else if (way == "Alt+C")
        open.Press(Qt::Key_C, Qt::AltModifier);
    else if (way == "Escape")
        open.Press(Qt::Key_Escape);
    else
        open.Window->close();
    QTRY_VERIFY(!open.IsOpen());
    QVERIFY(open.Outside.Messages.empty());
    QCOMPARE(open.Settings(), before);
    QCOMPARE(open.State.Assumptions.YearsInHome, 7);
    QCOMPARE(open.State.LoanTypes[0].FrontRatio, 0.28F);
}

void AssumptionsDialogTest::unwritableFolderKeepsTheDialogOpen() {
    OpenAssumptions open;
    const QByteArray before = open.Settings();
    open.Type("ecYrsInHome", "12");
    open.MakeUnwritable();
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    const Message& message = open.Outside.Messages.front();
    QCOMPARE(message.Title, std::string("Ledgrove"));
    QCOMPARE(message.Icon, MessageIcon::Exclamation);
    QVERIFY(message.Text.find(open.Folder.path().toStdString()) != std::string::npos);
    QVERIFY(open.IsOpen());
    QCOMPARE(open.FieldText("ecYrsInHome"), "12");
    QCOMPARE(open.Settings(), before);
    QCOMPARE(open.State.Assumptions.YearsInHome, 7);
}

void AssumptionsDialogTest::activationShowsTheUpgradesValue() {
    OpenAssumptions open;
    QVERIFY(open.Find<QLineEdit>("ecExpUpgrValue").isReadOnly());
    open.State.Scenario.PriceDifference = 8000;
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(open.Window.get(), &activation);
    QCOMPARE(open.FieldText("ecExpUpgrValue"), "$8,000");
}

void AssumptionsDialogTest::dialogFitsASmallScreen() {
    OpenAssumptions open;
    const QSize needed = open.Window->minimumSizeHint();
    QVERIFY2(needed.width() <= 1366 && needed.height() <= 700, qPrintable(QString::number(needed.height())));
}

void AssumptionsDialogTest::dialogFitsWithALongLoanTypeName() {
    const std::string name(200, 'W');
    OpenAssumptions open([&](SettingsDesk& desk) { desk.State.LoanTypes[2].Name = name; });
    QVERIFY(open.Window->width() <= 1366);
    QCOMPARE(open.LabelText("lblLoanType3"), QString::fromStdString(name));
}

QTEST_MAIN(AssumptionsDialogTest)
#include "AssumptionsDialogTest.moc"
