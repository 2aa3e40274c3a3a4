#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>

#include "WindowTest.h"
#include "ui/windows/ResultPanels.h"

using namespace Ledgrove;

namespace {

const std::string notANumber = "You must enter a number here.";

void EnterHomes(const OpenWindow& open) {
    const std::pair<const char*, const char*> entries[] = {
        {"ecIncome", "72000"},   {"ecMonthlyDebt", "350"}, {"ecPctDown", "10"},  {"ecStdHome", "200000"},
        {"ecGMHHome", "206000"}, {"ecStdUtil", "2400"},    {"ecGMHUtil", "1700"}};
    for (const auto& [field, text] : entries) {
        open.Type(field, text);
        open.Press(Qt::Key_Return);
    }
}

void ClickTabBar(const OpenWindow& open, int tab) {
    QTabBar* bar = open.Window->findChild<ResultPanels*>()->tabBar();
    const QPoint middle = bar->mapTo(open.Window.get(), bar->tabRect(tab).center());
    QTest::mouseClick(open.Window->windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
}

bool PanelShown(const OpenWindow& open, int tab) {
    return open.Find(qPrintable(QString("DetlFrame%1").arg(tab))).isVisible();
}

} // namespace

class MainWindowEntryTest : public QObject {
    Q_OBJECT

private slots:
    void enterCommitsMovesOnAndUpdatesLabels();
    void oneEntryRecalculatesAndShowsOnce_data();
    void oneEntryRecalculatesAndShowsOnce();
    void passingThroughAFieldCommitsNothing();
    void aTextTypedAsItIsShownIsShownAsAChange();
    void aLongNumberShowsItsBeginning_data();
    void aLongNumberShowsItsBeginning();
    void everyInputReachesTheResults();
    void refusalReturnsFocusWithOneMessage();
    void pressOnAnotherControlAfterRefusalChangesNothing();
    void pointIntoEmptyPercentDownGives4846();
    void pointIntoFilledPercentDownIsTyped();
    void dollarAmountInPercentDownIsConverted();
    void arrowsMoveBetweenFields();
    void arrowsMoveFromPickLists();
    void arrowsInsideAnOpenListStayThere();
    void arrowOutOfARefusedFieldStays();
    void baseOptionRefillsTheLabelledList();
    void fannieMaeMessageAppearsEveryTime();
    void termIsMirrored();
    void downPaymentOptionSwapsColours();
    void tabChangeRunsTheDataCheckAndShowsThePanel();
    void backToWelcomeRunsNoDataCheck();
    void sameTabAgainDoesNothing();
    void leftAndRightSwitchTabs();
    void tabClickCommitsTheFieldFirst();
    void disclaimerIsShown();
};

void MainWindowEntryTest::enterCommitsMovesOnAndUpdatesLabels() {
    OpenWindow open;
    open.Type("ecStdHome", "200000");
    QCOMPARE(open.LabelText("lblStdHome"), "$0");
    open.Press(Qt::Key_Return);
    QCOMPARE(open.FieldText("ecStdHome"), "$200,000");
    QCOMPARE(open.LabelText("lblStdHome"), "$200,000");
    QCOMPARE(open.Focused(), "ecGMHHome");
}

namespace {

/// What an event makes the window do, on a tab whose panel does not yield.
struct Counts {
    explicit Counts(const OpenWindow& open)
        : m_open(open)
        , m_shown(open.Window.get(), &frmMain::Refreshed)
        , m_yieldsBefore(open.Outside.Yields) {}
    int Recalculations() const { return m_open.Outside.Yields - m_yieldsBefore; }
    int Shown() const { return static_cast<int>(m_shown.count()); }

private:
    const OpenWindow& m_open;
    QSignalSpy m_shown;
    int m_yieldsBefore;
};

} // namespace

void MainWindowEntryTest::oneEntryRecalculatesAndShowsOnce_data() {
    QTest::addColumn<QString>("leaving");
    for (const char* leaving : {"Enter", "Tab", "Down", "click"})
        QTest::newRow(leaving) << leaving;
}

void MainWindowEntryTest::oneEntryRecalculatesAndShowsOnce() {
    QFETCH(QString, leaving);
    OpenWindow open;
    EnterHomes(open);
    ClickTabBar(open, 4);
    open.Type("ecStdHome", "210000");
    const Counts counts(open);
    if (leaving == "click")
        ClickAt(open.Find("ecGMHHome"));
    else
        open.Press(leaving == "Enter" ? Qt::Key_Return : leaving == "Tab" ? Qt::Key_Tab : Qt::Key_Down);
    QCOMPARE(open.Focused(), "ecGMHHome");
    QCOMPARE(open.LabelText("lblStdHome"), "$210,000");
    QCOMPARE(counts.Recalculations(), 1);
    QCOMPARE(counts.Shown(), 1);
}

void MainWindowEntryTest::aTextTypedAsItIsShownIsShownAsAChange() {
    OpenWindow open;
    EnterHomes(open);
    open.Find("ecFixedDown").setFocus();
    const Counts counts(open);
    open.Type("ecFixedDown", "$0"); // an empty field counts as 0, so no figure changes
    open.Find("ecIncome").setFocus();
    QCOMPARE(counts.Recalculations(), 0);
    QCOMPARE(counts.Shown(), 1);
}

void MainWindowEntryTest::aLongNumberShowsItsBeginning_data() {
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("Down") << int(Qt::Key_Down);
}

void MainWindowEntryTest::aLongNumberShowsItsBeginning() {
    QFETCH(int, key);
    OpenWindow open;
    open.Type("ecIncome", "123456789012345678901234");
    open.Press(Qt::Key(key));
    QCOMPARE(open.Find<QLineEdit>("ecIncome").cursorPosition(), 0);
}

void MainWindowEntryTest::passingThroughAFieldCommitsNothing() {
    OpenWindow open;
    EnterHomes(open);
    ClickTabBar(open, 4);
    open.Find("ecStdHome").setFocus();
    const Counts counts(open);
    open.Find("ecGMHHome").setFocus();
    QCOMPARE(counts.Recalculations(), 0);
    QCOMPARE(counts.Shown(), 0);
}

void MainWindowEntryTest::everyInputReachesTheResults() {
    OpenWindow open;
    EnterHomes(open);
    QVERIFY(open.Outside.Messages.empty());
    QCOMPARE(open.FieldText("ecPctDown"), "10.00%");
    QCOMPARE(open.LabelText("lblStdDown"), "$20,000");      // 10 % of 200,000
    QCOMPARE(open.LabelText("lblStdMortgage"), "$180,000"); // 200,000 - 20,000
    QCOMPARE(open.LabelText("lblgmhDown"), "$20,600");      // 10 % of 206,000
    QCOMPARE(open.LabelText("lblGMHMort"), "$185,400");
    QCOMPARE(open.LabelText("lblStdUtilMo"), "$200"); // 2,400 / 12
    QCOMPARE(open.LabelText("lblUtilSavMo"), "$58");  // (2,400 - 1,700) / 12 = 58.33
    QCOMPARE(open.LabelText("lblUtilSavYr"), "$700");
    // 180,000 over 360 months at 6.5 % / 12: 180,000 x 0.00632068 = 1,137.72
    QCOMPARE(open.LabelText("lblStdMortPayment"), "$1,138");
}

void MainWindowEntryTest::refusalReturnsFocusWithOneMessage() {
    OpenWindow open;
    open.Type("ecIncome", "abc");
    ClickAt(open.Find("ecGMHUtil"));
    QCOMPARE(open.Outside.TakeTexts(), std::vector{notANumber});
    QCOMPARE(open.Focused(), "ecIncome");
    QCOMPARE(open.FieldText("ecIncome"), "abc");
    QCOMPARE(open.FieldText("ecGMHUtil"), "");
}

void MainWindowEntryTest::pressOnAnotherControlAfterRefusalChangesNothing() {
    OpenWindow open;
    for (const char* control : {"bDisclaimer", "optDownPayment1", "chkDoTax0", "cboStdMortOption"}) {
        open.Type("ecIncome", "abc");
        ClickAt(open.Find(control));
        QCOMPARE(open.Outside.TakeTexts(), std::vector{notANumber});
        QCOMPARE(open.Focused(), "ecIncome");
    }
    open.Type("ecIncome", "abc");
    ClickTabBar(open, 4);
    QCOMPARE(open.Outside.TakeTexts(), std::vector{notANumber});
    QVERIFY(open.Find<QRadioButton>("optDownPayment0").isChecked());
    QVERIFY(open.Find<QCheckBox>("chkDoTax0").isChecked());
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(open.State.Screen.SSTab1, 0);
    QVERIFY(PanelShown(open, 0));
}

void MainWindowEntryTest::pointIntoEmptyPercentDownGives4846() {
    OpenWindow open;
    open.Type("ecPctDown", ".");
    QCOMPARE(open.FieldText("ecPctDown"), "4846");
    open.Type("ecPctDown", "");
    QTest::keyClicks(&open.Find("ecPctDown"), ".5");
    QCOMPARE(open.FieldText("ecPctDown"), "48465");
}

void MainWindowEntryTest::pointIntoFilledPercentDownIsTyped() {
    OpenWindow open;
    open.Type("ecPctDown", "5.5");
    QCOMPARE(open.FieldText("ecPctDown"), "5.5");
}

void MainWindowEntryTest::dollarAmountInPercentDownIsConverted() {
    OpenWindow open;
    EnterHomes(open);
    open.Type("ecPctDown", "30000");
    open.Press(Qt::Key_Return);
    QCOMPARE(open.FieldText("ecPctDown"), "15.00%"); // 30,000 of 200,000
}

void MainWindowEntryTest::arrowsMoveBetweenFields() {
    OpenWindow open;
    open.Find("ecIncome").setFocus();
    open.Press(Qt::Key_Down);
    QCOMPARE(open.Focused(), "ecMonthlyDebt");
    open.Press(Qt::Key_Up);
    QCOMPARE(open.Focused(), "ecIncome");
    QCOMPARE(open.FieldText("ecMonthlyDebt"), "$0");
}

void MainWindowEntryTest::arrowsMoveFromPickLists() {
    OpenWindow open;
    open.Find("cboStdMortOption").setFocus();
    open.Press(Qt::Key_Down);
    QCOMPARE(open.Focused(), "cboGMHMortOption");
    open.Press(Qt::Key_Up);
    open.Press(Qt::Key_Up);
    QCOMPARE(open.Focused(), "cboMortTerm");
    QCOMPARE(open.Find<QComboBox>("cboStdMortOption").currentText(), "Conventional");
    QCOMPARE(open.Find<QComboBox>("cboMortTerm").currentText(), "30 years");
}

void MainWindowEntryTest::arrowsInsideAnOpenListStayThere() {
    OpenWindow open;
    auto& list = open.Find<QComboBox>("cboMortTerm");
    list.setFocus();
    open.Press(Qt::Key_Down, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup->windowHandle(), Qt::Key_Down);
    QTest::keyClick(popup->windowHandle(), Qt::Key_Return);
    QCOMPARE(list.currentText(), "35 years");
    QCOMPARE(open.State.Screen.xMortTerm, 35);
    QCOMPARE(open.Focused(), "cboMortTerm");
}

void MainWindowEntryTest::arrowOutOfARefusedFieldStays() {
    OpenWindow open;
    open.Type("ecIncome", "abc");
    open.Press(Qt::Key_Down);
    QCOMPARE(open.Outside.TakeTexts(), std::vector{notANumber});
    QCOMPARE(open.Focused(), "ecIncome");
}

void MainWindowEntryTest::baseOptionRefillsTheLabelledList() {
    OpenWindow open;
    open.Choose("cboStdMortOption", "FHA");
    auto& labelled = open.Find<QComboBox>("cboGMHMortOption");
    QCOMPARE(labelled.currentText(), "FHA");
    QCOMPARE(labelled.count(), 2);
    QCOMPARE(labelled.itemText(1), "FHA EEM");
    open.Choose("cboStdMortOption", "VA");
    QCOMPARE(labelled.currentText(), "VA");
    QCOMPARE(labelled.itemText(1), "VA EEM");
}

void MainWindowEntryTest::fannieMaeMessageAppearsEveryTime() {
    OpenWindow open;
    open.Choose("cboGMHMortOption", "Fannie Mae EEM");
    open.Choose("cboGMHMortOption", "Fannie Mae EEM");
    int shown = 0;
    for (const std::string& text : open.Outside.TakeTexts())
        shown += text.starts_with("Fannie Mae offers two types") ? 1 : 0;
    QCOMPARE(shown, 2);
}

void MainWindowEntryTest::termIsMirrored() {
    OpenWindow open;
    open.Choose("cboMortTerm", "40 years");
    QCOMPARE(open.FieldText("ecGMHTerm"), "40 years");
    QCOMPARE(open.State.Screen.xMortTerm, 40);
}

void MainWindowEntryTest::downPaymentOptionSwapsColours() {
    OpenWindow open;
    const auto colour = [&](const char* field) { return open.Find(field).palette().color(QPalette::Text); };
    const QColor grey(128, 128, 128);
    const QColor own = open.Window->palette().color(QPalette::Text);
    QCOMPARE(colour("ecPctDown"), own);
    QCOMPARE(colour("ecFixedDown"), grey);
    ClickAt(open.Find("optDownPayment1"));
    QCOMPARE(open.State.Screen.optDownPayment, 1);
    QCOMPARE(colour("ecPctDown"), grey);
    QCOMPARE(colour("ecFixedDown"), own);
    QVERIFY(open.Find("ecPctDown").isEnabled());
}

void MainWindowEntryTest::tabChangeRunsTheDataCheckAndShowsThePanel() {
    OpenWindow open;
    for (int tab = 1; tab < TabCount; ++tab) {
        ClickTabBar(open, tab);
        QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
        QCOMPARE(open.Outside.Messages.front().Title, std::string("Ledgrove Data Check"));
        open.Outside.Messages.clear();
        for (int other = 0; other < TabCount; ++other)
            QCOMPARE(PanelShown(open, other), other == tab);
    }
}

void MainWindowEntryTest::backToWelcomeRunsNoDataCheck() {
    OpenWindow open;
    ClickTabBar(open, 1);
    open.Outside.Messages.clear();
    ClickTabBar(open, 0);
    QVERIFY(open.Outside.Messages.empty());
    QVERIFY(PanelShown(open, 0));
}

void MainWindowEntryTest::sameTabAgainDoesNothing() {
    OpenWindow open;
    ClickTabBar(open, 1);
    open.Outside.Messages.clear();
    ClickTabBar(open, 1);
    QVERIFY(open.Outside.Messages.empty());
    QVERIFY(PanelShown(open, 1));
}

void MainWindowEntryTest::leftAndRightSwitchTabs() {
    OpenWindow open;
    ClickTabBar(open, 1);
    open.Press(Qt::Key_Right);
    QCOMPARE(open.State.Screen.SSTab1, 2);
    open.Press(Qt::Key_Left);
    QCOMPARE(open.State.Screen.SSTab1, 1);
}

void MainWindowEntryTest::tabClickCommitsTheFieldFirst() {
    OpenWindow open;
    EnterHomes(open);
    open.Type("ecIncome", "80000");
    ClickTabBar(open, 3);
    QCOMPARE(open.FieldText("ecIncome"), "$80,000");
    // 80,000 x 0.28 / 12 = 1,866.67; 80,000 x 0.36 / 12 - 350 = 2,050
    QCOMPARE(open.LabelText("lblStdInc"), "$1,867");
}

void MainWindowEntryTest::disclaimerIsShown() {
    OpenWindow open;
    ClickAt(open.Find("bDisclaimer"));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.front().Title, std::string("GREENMARK Ledgrove Disclaimer"));
    QCOMPARE(open.Outside.Messages.front().Icon, MessageIcon::Information);
}

QTEST_MAIN(MainWindowEntryTest)
#include "MainWindowEntryTest.moc"
