#include <QGridLayout>
#include <QMenuBar>
#include <QScrollBar>

#include "DialogTest.h"
#include "FitTest.h"
#include "ui/windows/HelpWindow.h"
#include "ui/windows/ResultPanels.h"

using namespace Ledgrove;

namespace {

/// The main window with the program's menu bar, which comes after the window is shown.
struct WindowWithMenu : OpenWindow {
    WindowWithMenu() {
        Window->menuBar()->addMenu("&File");
        QCoreApplication::processEvents();
    }
};

/// Whether a grid of the window has less space than on a large screen.
bool IsTight(const QWidget& window) {
    for (const QGridLayout* grid : window.findChildren<QGridLayout*>()) {
        if (grid->verticalSpacing() < 6 || grid->horizontalSpacing() < 6)
            return true;
    }
    return false;
}

/// Opens one dialog after the other, since each is modal, and runs `check` on it.
void ForEachDialog(const std::function<void(const FormDriver&)>& check) {
    check(OpenAssumptions());
    check(OpenOptions());
    check(OpenHouses());
}

void ForEachWindow(const std::function<void(const FormDriver&)>& check) {
    check(WindowWithMenu());
    ForEachDialog(check);
}

} // namespace

/// Runs once for each screen; see CMakeLists.txt.
class WindowFitTest : public QObject {
    Q_OBJECT

private slots:
    void everyWindowIsOnTheScreen();
    void everyWindowMayBecomeSmall();
    void theHelpIsOnTheScreen();
    void buttonsStayInView();
    void theMenuBarStaysInView();
    void everyStopOfTabComesIntoView();
    void nothingScrollsFrom800By600();
    void aLargeScreenShowsTheNaturalSize();
};

void WindowFitTest::everyWindowIsOnTheScreen() {
    ForEachWindow(
        [](const FormDriver& open) { QVERIFY2(IsOnScreen(*open.Form), qPrintable(PlaceOf(*open.Form))); });
}

void WindowFitTest::everyWindowMayBecomeSmall() {
    // 683 x 384 with the frame: a screen of 1366 x 768 at 200 %
    ForEachWindow([](const FormDriver& open) {
        const QSize smallest = open.Form->minimumSizeHint();
        QVERIFY(smallest.width() <= 683 - 2 - 2);
        QVERIFY(smallest.height() <= 384 - 30 - 2);
    });
}

void WindowFitTest::theHelpIsOnTheScreen() {
    const HelpWindow help(nullptr);
    QVERIFY(help.width() <= help.screen()->size().width() - 2 - 2);
    QVERIFY(help.height() <= help.screen()->size().height() - 30 - 2);
}

void WindowFitTest::buttonsStayInView() {
    ForEachDialog([](const FormDriver& open) {
        for (const char* button : {"bOK", "bCancel", "bHelp"})
            QVERIFY2(IsWholeInView(open.Find(button)), button);
    });
}

void WindowFitTest::theMenuBarStaysInView() {
    const WindowWithMenu main;
    QScrollBar* bar = FormOf(*main.Form).verticalScrollBar();
    bar->setValue(bar->maximum());
    QVERIFY(IsWholeInView(*main.Window->menuBar()));
}

void WindowFitTest::everyStopOfTabComesIntoView() {
    ForEachWindow([](const FormDriver& open) { QCOMPARE(HiddenStop(open), QString()); });
}

void WindowFitTest::nothingScrollsFrom800By600() {
    if (!HasRoom({800, 600}))
        QSKIP("the screen is smaller");
    ForEachWindow(
        [](const FormDriver& open) { QVERIFY2(!Scrolls(*open.Form), qPrintable(PlaceOf(*open.Form))); });
    const WindowWithMenu main;
    auto& tabs = main.Find<ResultPanels>("SSTab1");
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        QCoreApplication::processEvents();
        QVERIFY2(!Scrolls(*main.Form), qPrintable(QString::number(tab)));
    }
}

void WindowFitTest::aLargeScreenShowsTheNaturalSize() {
    if (!HasRoom({1366, 768}))
        QSKIP("the screen is smaller");
    ForEachWindow([](const FormDriver& open) {
        const QWidget& window = *open.Form;
        const QSize screen = window.screen()->size();
        QCOMPARE(window.x(), (screen.width() - window.width()) / 2);
        QCOMPARE(window.y(), (screen.height() - window.height()) / 2);
        QVERIFY2(!IsTight(window), qPrintable(window.objectName()));
    });
}

QTEST_MAIN(WindowFitTest)
#include "WindowFitTest.moc"
