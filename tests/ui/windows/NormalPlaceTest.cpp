#include "ui/windows/NormalPlace.h"

#include <QScreen>
#include <QWidget>
#include <QtTest>

using namespace Ledgrove;

namespace {

const QRect usual(70, 60, 300, 200);

/// A window at `usual`, whose place has settled.
struct SettledWindow {
    SettledWindow()
        : Place(*new NormalPlace(Window)) {
        Window.setGeometry(usual);
        Window.show();
        if (!QTest::qWaitForWindowExposed(&Window))
            qFatal("the window is not exposed");
        Settle();
    }

    static void Settle() { QTest::qWait(300); }
    void Maximize() { Window.setWindowState(Qt::WindowMaximized); }
    void Restore() { Window.setWindowState(Qt::WindowNoState); }

    QWidget Window;
    NormalPlace& Place; ///< belongs to the window
};

} // namespace

class NormalPlaceTest : public QObject {
    Q_OBJECT

private slots:
    void aSizeThatComesBeforeTheStateIsNotNormal();
    void aMovedAndResizedWindowComesBack();
    void aWindowThatWasJustMovedComesBackIfItsPlaceIsKept();
    void maximizingAgainAtOnceKeepsThePlace();
    void minimizingTheMaximizedWindowKeepsThePlace();
    void aMovedWindowStaysWhereItIs();
};

void NormalPlaceTest::aSizeThatComesBeforeTheStateIsNotNormal() {
    SettledWindow open;
    for (int round = 0; round < 4; ++round) {
        open.Window.setGeometry(open.Window.screen()->availableGeometry());
        open.Maximize();
        QVERIFY(open.Window.isMaximized());
        open.Restore();
        QTRY_COMPARE(open.Window.geometry(), usual);
        SettledWindow::Settle();
        QCOMPARE(open.Window.geometry(), usual);
    }
}

void NormalPlaceTest::aMovedAndResizedWindowComesBack() {
    SettledWindow open;
    const QRect moved(110, 90, 260, 180);
    open.Window.setGeometry(moved);
    SettledWindow::Settle();
    open.Window.setGeometry(open.Window.screen()->availableGeometry());
    open.Maximize();
    open.Restore();
    QTRY_COMPARE(open.Window.geometry(), moved);
}

void NormalPlaceTest::aWindowThatWasJustMovedComesBackIfItsPlaceIsKept() {
    SettledWindow open;
    const QRect moved(110, 90, 260, 180);
    open.Window.setGeometry(moved);
    open.Place.Keep();
    open.Maximize();
    open.Place.Keep(); // a maximized window has no normal place
    open.Restore();
    QTRY_COMPARE(open.Window.geometry(), moved);
}

void NormalPlaceTest::maximizingAgainAtOnceKeepsThePlace() {
    SettledWindow open;
    open.Window.setGeometry(open.Window.screen()->availableGeometry());
    for (int round = 0; round < 2; ++round) {
        open.Maximize();
        open.Restore();
        open.Place.Keep();
    }
    QVERIFY(open.Window.geometry() != usual);
    open.Window.setGeometry(open.Window.screen()->availableGeometry());
    QTRY_COMPARE(open.Window.geometry(), usual);
}

void NormalPlaceTest::minimizingTheMaximizedWindowKeepsThePlace() {
    SettledWindow open;
    open.Window.setGeometry(open.Window.screen()->availableGeometry());
    open.Maximize();
    open.Window.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    open.Maximize();
    open.Restore();
    QTRY_COMPARE(open.Window.geometry(), usual);
}

void NormalPlaceTest::aMovedWindowStaysWhereItIs() {
    SettledWindow open;
    open.Window.move(5, 6);
    SettledWindow::Settle();
    QCOMPARE(open.Window.pos(), QPoint(5, 6));
}

QTEST_MAIN(NormalPlaceTest)
#include "NormalPlaceTest.moc"
