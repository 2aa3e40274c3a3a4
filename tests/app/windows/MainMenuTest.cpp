#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTabBar>

#include "DesktopDesk.h"
#include "ui/windows/ResultPanels.h"

using namespace Ledgrove;

namespace {

QMenu* MenuNamed(const OpenDesktop& open, const QString& title) {
    for (QAction* action : open.Window->menuBar()->actions()) {
        if (action->text().remove('&') == title)
            return action->menu();
    }
    qFatal("there is no menu %s", qPrintable(title));
}

QAction* Command(const OpenDesktop& open, const QString& menu, const QString& text) {
    for (QAction* action : MenuNamed(open, menu)->actions()) {
        if (action->text().remove('&').section('\t', 0, 0) == text)
            return action;
    }
    qFatal("there is no %s in %s", qPrintable(text), qPrintable(menu));
}

QStringList TextsOf(const QList<QAction*>& actions) {
    QStringList texts;
    for (const QAction* action : actions) {
        if (!action->isSeparator())
            texts += action->text();
    }
    return texts;
}

} // namespace

class MainMenuTest : public QObject {
    Q_OBJECT

private slots:
    void noMnemonicClashesInWindowOrMenus();
    void everyCommandHasItsLetter();
    void shortcutsAreUnique();
    void buttonsAreReachable();
    void commandsLeaveTheFieldFirst();
    void tabsAreChosen();
    void editCommandsWorkOnTheField();
    void undoTakesBackTypingThenEntries();
    void undoInTheMiddleOfAFigureDoesNotMixIt();
    void openingAFileIsNotUndone();
    void menuBarKeepsTheSelection();
    void editCommandsAreOffWithoutAField();
    void arrowKeysStayInTheMenuBar();
    void recentFilesAreListed();
    void exportsAreThere();
};

void MainMenuTest::noMnemonicClashesInWindowOrMenus() {
    OpenDesktop open;
    QStringList texts = MnemonicTexts(*open.Window);
    const QTabBar* bar = open.Find<ResultPanels>("SSTab1").tabBar();
    for (int i = 0; i < bar->count(); ++i)
        texts += bar->tabText(i);
    texts += TextsOf(open.Window->menuBar()->actions());
    // Seventeen mnemonics of the window, and the five of File, Edit, View, Tools and Help.
    QCOMPARE(Mnemonics(texts), "ABCDEFGHILMNOPRSTUVWXY");
    for (const QMenu* menu : open.Window->menuBar()->findChildren<QMenu*>()) {
        const QString letters = Mnemonics(TextsOf(menu->actions()));
        QVERIFY2(!letters.contains(' '), qPrintable(letters));
    }
}

void MainMenuTest::everyCommandHasItsLetter() {
    OpenDesktop open;
    for (const char* menu : {"File", "Edit", "View", "Tools", "Help"}) {
        for (const QString& text : TextsOf(MenuNamed(open, menu)->actions()))
            QVERIFY2(!MnemonicOf(text).isNull(), qPrintable(text));
    }
}

void MainMenuTest::shortcutsAreUnique() {
    OpenDesktop open;
    QSet<QString> given;
    for (const QAction* action : open.Window->findChildren<QAction*>()) {
        const QString keys = action->shortcut().toString();
        QVERIFY2(keys.isEmpty() || !given.contains(keys), qPrintable(keys));
        given += keys;
    }
    for (const char* usual : {"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+P", "Ctrl+Q", "Ctrl+Z", "Ctrl+C", "Ctrl+V"})
        QVERIFY2(given.contains(usual), usual);
}

void MainMenuTest::buttonsAreReachable() {
    QStringList opened;
    MainActions actions;
    actions.Houses = [&opened] { opened += "houses"; };
    actions.Assumptions = [&opened] { opened += "assumptions"; };
    actions.Options = [&opened] { opened += "options"; };
    actions.Print = [&opened] { opened += "print"; };
    OpenDesktop open(actions);
    Command(open, "Tools", "House Scenarios…")->trigger();
    Command(open, "Tools", "Financial Assumptions…")->trigger();
    Command(open, "Tools", "Options…")->trigger();
    Command(open, "File", "Print Reports…")->trigger();
    QCOMPARE(opened, QStringList({"houses", "assumptions", "options", "print"}));
    open.Outside.Messages.clear();
    Command(open, "Help", "Disclaimer")->trigger();
    QCOMPARE(open.Outside.Messages.front().Title, std::string("GREENMARK Ledgrove Disclaimer"));
}

void MainMenuTest::commandsLeaveTheFieldFirst() {
    int opened = 0;
    MainActions actions;
    actions.Options = [&opened] { ++opened; };
    OpenDesktop open(actions);
    open.Type("ecIncome", "abc");
    Command(open, "Tools", "Options…")->trigger();
    QCOMPARE(opened, 0);
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"You must enter a number here."});
    QCOMPARE(open.Focused(), "ecIncome");
    open.Type("ecIncome", "72000");
    Command(open, "Tools", "Options…")->trigger();
    QCOMPARE(opened, 1);
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
}

void MainMenuTest::tabsAreChosen() {
    OpenDesktop open;
    Command(open, "View", "Affordability")->trigger();
    QCOMPARE(open.State.Screen.SSTab1, 3);
    QVERIFY(Command(open, "View", "Affordability")->isChecked());
    open.Press(Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(open.State.Screen.SSTab1, 1);
    QVERIFY(Command(open, "View", "Cash Flow")->isChecked());
    open.Find<ResultPanels>("SSTab1").setCurrentIndex(4);
    QVERIFY(Command(open, "View", "Summary")->isChecked());
}

void MainMenuTest::editCommandsWorkOnTheField() {
    OpenDesktop open;
    open.Type("ecIncome", "72000");
    Command(open, "Edit", "Select All")->trigger();
    Command(open, "Edit", "Cut")->trigger();
    QCOMPARE(open.FieldText("ecIncome"), "");
    QCOMPARE(QGuiApplication::clipboard()->text(), "72000");
    Command(open, "Edit", "Undo")->trigger();
    QCOMPARE(open.FieldText("ecIncome"), "72000");
    open.Type("ecStdHome", "");
    Command(open, "Edit", "Paste")->trigger();
    QCOMPARE(open.State.Screen.ecStdHome.Text, std::string("72000"));
}

void MainMenuTest::undoTakesBackTypingThenEntries() {
    OpenDesktop open;
    // An empty field that is left becomes $0, which would be a step of its own.
    PutBytes(open.PathOf("a.ledgrove.json"), R"({"ecIncome": 1, "ecStdHome": 200000, "ecGMHHome": 206000})");
    open.File->OpenNamed(open.PathOf("a.ledgrove.json"));
    open.Enter("ecStdHome", "205000");
    open.Enter("ecStdHome", "210000");
    // The down payment option is an entry too.
    open.Find<QAbstractButton>("optDownPayment1").click();
    open.Type("ecGMHHome", "3");
    open.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(open.FieldText("ecGMHHome"), "$206,000");
    QCOMPARE(open.State.Screen.optDownPayment, 1);
    open.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(open.State.Screen.optDownPayment, 0);
    open.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(open.FieldText("ecStdHome"), "$205,000");
    open.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(open.FieldText("ecStdHome"), "$200,000");
    emit MenuNamed(open, "Edit")->aboutToShow();
    QVERIFY(!Command(open, "Edit", "Undo")->isEnabled());
    emit MenuNamed(open, "Edit")->aboutToHide();
    open.Press(Qt::Key_Z, Qt::ControlModifier);
    for (int entry = 0; entry < 3; ++entry)
        open.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(open.FieldText("ecStdHome"), "$210,000");
    QCOMPARE(open.State.Screen.optDownPayment, 1);
    QCOMPARE(open.State.Screen.lblStdHome.Text, std::string("$210,000"));
}

void MainMenuTest::undoInTheMiddleOfAFigureDoesNotMixIt() {
    OpenDesktop open;
    open.Enter("ecStdHome", "200000");
    open.Enter("ecStdHome", "210000");
    open.Find("ecStdHome").setFocus();
    open.Press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(open.FieldText("ecStdHome"), "$200,000");
    QTest::keyClicks(&open.Find("ecStdHome"), "5");
    QCOMPARE(open.FieldText("ecStdHome"), "5");
}

void MainMenuTest::openingAFileIsNotUndone() {
    OpenDesktop open;
    open.Enter("ecStdHome", "200000");
    PutBytes(open.PathOf("a.ledgrove.json"), "{\"ecStdHome\": \"150000\"}");
    open.Answer = SaveAnswer::Discard;
    open.File->OpenNamed(open.PathOf("a.ledgrove.json"));
    QCOMPARE(open.FieldText("ecStdHome"), "$150,000");
    Command(open, "Edit", "Undo")->trigger();
    QCOMPARE(open.FieldText("ecStdHome"), "$150,000");
}

void MainMenuTest::menuBarKeepsTheSelection() {
    OpenDesktop open;
    open.Type("ecIncome", "72000");
    auto& income = open.Find<QLineEdit>("ecIncome");
    income.selectAll();
    open.Window->menuBar()->setFocus(Qt::MenuBarFocusReason);
    QCOMPARE(income.selectedText(), "72000");
    emit MenuNamed(open, "Edit")->aboutToShow();
    QVERIFY(Command(open, "Edit", "Copy")->isEnabled());
    income.setFocus(Qt::MenuBarFocusReason);
    QCOMPARE(income.selectedText(), "72000");
}

void MainMenuTest::editCommandsAreOffWithoutAField() {
    OpenDesktop open;
    open.Find("chkDoTax0").setFocus();
    QMenu* menu = MenuNamed(open, "Edit");
    emit menu->aboutToShow();
    // Leaving the empty field entered 0, which can be undone.
    QVERIFY(Command(open, "Edit", "Undo")->isEnabled());
    for (const char* text : {"Redo", "Cut", "Copy", "Paste", "Select All"})
        QVERIFY2(!Command(open, "Edit", text)->isEnabled(), text);
    QVERIFY(Command(open, "Edit", "Copy Tab as Text")->isEnabled());
}

void MainMenuTest::arrowKeysStayInTheMenuBar() {
    OpenDesktop open;
    QMenuBar& bar = *open.Window->menuBar();
    bar.setFocus(Qt::MenuBarFocusReason);
    bar.setActiveAction(bar.actions().front());
    open.Press(Qt::Key_Down);
    QVERIFY(MenuNamed(open, "File")->isVisible());
    QCOMPARE(open.Focused(), bar.objectName());
    MenuNamed(open, "File")->close();
}

void MainMenuTest::recentFilesAreListed() {
    OpenDesktop open;
    QMenu* recent = Command(open, "File", "Open Recent")->menu();
    QVERIFY(!recent->isEnabled());
    PutBytes(open.PathOf("R&D.ledgrove.json"), R"({"ecIncome": "72000"})");
    open.File->OpenNamed(open.PathOf("R&D.ledgrove.json"));
    open.File->New();
    emit MenuNamed(open, "File")->aboutToShow();
    QVERIFY(recent->isEnabled());
    QCOMPARE(recent->actions().front()->text(), "&1 R&&D.ledgrove.json");
    recent->actions().front()->trigger();
    QCOMPARE(open.FieldText("ecIncome"), "$72,000");
    recent->actions().back()->trigger();
    QVERIFY(open.Recent.Names().isEmpty());
}

void MainMenuTest::exportsAreThere() {
    OpenDesktop open;
    open.NameToGive = open.PathOf("out.csv");
    Command(open, "File", "Export CSV…")->trigger();
    QVERIFY(BytesOf(open.NameToGive).startsWith("ecIncome,"));
    Command(open, "Edit", "Copy Tab as Text")->trigger();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith("1. Enter Homebuyer"));
}

QTEST_MAIN(MainMenuTest)
#include "MainMenuTest.moc"
