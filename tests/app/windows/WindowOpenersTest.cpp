#include <QApplication>
#include <QListWidget>
#include <QTabWidget>
#include <QTreeWidget>

#include "DesktopDesk.h"
#include "app/windows/ChangesOpener.h"
#include "app/windows/InsightOpener.h"

using namespace Ledgrove;

namespace {

QWidget* WindowNamed(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name)
            return window;
    return nullptr;
}

/// The main window with a comparison, connected to the windows that its commands open.
struct Openers {
    Openers()
        : Open(Actions())
        , Insight(Open.State, Open.Outside, Open.Questions, {}, LEDGROVE_PROGRAM_FOLDER)
        , Changes(Open.State, Open.Outside, Open.Questions, {}, LEDGROVE_PROGRAM_FOLDER) {
        PutBytes(Open.PathOf("a.ledgrove.json"), R"({"ecStdHome": 200000, "ecGMHHome": 206000})");
        Open.File->OpenNamed(Open.PathOf("a.ledgrove.json"));
        Insight.Follow(*Open.Window);
        Changes.Follow(*Open.Window, *Open.File);
    }

    MainActions Actions() {
        MainActions actions;
        actions.Ask = [this](InsightQuestion question) { Insight.Ask(question); };
        actions.ShowInsight = [this](InsightQuestion question) { Insight.Show(question); };
        actions.Explain = [this](const std::string& label) { Insight.Explain(label); };
        return actions;
    }

    OpenDesktop Open;
    InsightOpener Insight;
    ChangesOpener Changes;
};

} // namespace

class WindowOpenersTest : public QObject {
    Q_OBJECT

private slots:
    void aMinimisedWindowComesBack();
    void aLeafBringsTheMainWindowBack();
    void aMaximisedWindowStaysMaximised();
    void theCommandLeavesAnOpenAnswer();
    void theCommandAsksAClosedWindow();
    void theUndoKeyTakesBackAnEntry();
};

void WindowOpenersTest::aMinimisedWindowComesBack() {
    Openers desk;
    desk.Insight.Ask(InsightQuestion::HowFar);
    QWidget& insight = *WindowNamed("frmInsight");
    insight.showMinimized();
    desk.Insight.Ask(InsightQuestion::HowFar);
    QVERIFY(!insight.isMinimized());
    insight.showMinimized();
    desk.Insight.Explain("lblGMHPITI");
    QVERIFY(!insight.isMinimized());
    desk.Open.VersionNames = {"First"};
    QVERIFY(desk.Open.File->KeepVersion());
    desk.Changes.Open();
    QWidget& changes = *WindowNamed("frmChanges");
    changes.showMinimized();
    desk.Changes.Open();
    QVERIFY(!changes.isMinimized());
}

void WindowOpenersTest::aLeafBringsTheMainWindowBack() {
    Openers desk;
    frmMain& main = *desk.Open.Window;
    main.showMinimized();
    main.GoToSource("ecIncome", "");
    QVERIFY(!main.isMinimized());
}

void WindowOpenersTest::aMaximisedWindowStaysMaximised() {
    Openers desk;
    desk.Insight.Ask(InsightQuestion::HowFar);
    QWidget& insight = *WindowNamed("frmInsight");
    insight.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    desk.Insight.Ask(InsightQuestion::WhichLoan);
    QCOMPARE(insight.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized), Qt::WindowMaximized);
}

void WindowOpenersTest::theCommandLeavesAnOpenAnswer() {
    Openers desk;
    desk.Open.Find<QTabWidget>("SSTab1").setCurrentIndex(4);
    desk.Insight.Explain("lblGMHPITI");
    QWidget& insight = *WindowNamed("frmInsight");
    auto& chain = *insight.findChild<QTreeWidget*>("Chain");
    chain.topLevelItem(0)->child(0)->setExpanded(true);
    insight.showMinimized();
    desk.Open.Window->AskInsight();
    QVERIFY(!insight.isMinimized());
    const auto& questions = *insight.findChild<QListWidget*>("Questions");
    QCOMPARE(questions.currentItem()->text(), "Where does this number come from?");
    QVERIFY(chain.topLevelItem(0)->child(0)->isExpanded());
}

void WindowOpenersTest::theCommandAsksAClosedWindow() {
    Openers desk;
    desk.Open.Window->AskInsight();
    QWidget& insight = *WindowNamed("frmInsight");
    const auto& questions = *insight.findChild<QListWidget*>("Questions");
    QCOMPARE(questions.currentItem()->text(), "In short");
    insight.close();
    desk.Open.Find<QTabWidget>("SSTab1").setCurrentIndex(2);
    desk.Open.Window->AskInsight();
    QVERIFY(insight.isVisible());
    QCOMPARE(questions.currentItem()->text(), "Which loan is best?");
}

void WindowOpenersTest::theUndoKeyTakesBackAnEntry() {
    Openers desk;
    desk.Open.Enter("ecStdHome", "205000");
    desk.Insight.Ask(InsightQuestion::HowFar);
    QWidget& insight = *WindowNamed("frmInsight");
    QVERIFY(QTest::qWaitForWindowActive(&insight));
    QTest::keyClick(insight.focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(desk.Open.FieldText("ecStdHome"), "$200,000");
    QTest::keyClick(insight.focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(desk.Open.FieldText("ecStdHome"), "$205,000");
}

QTEST_MAIN(WindowOpenersTest)
#include "WindowOpenersTest.moc"
