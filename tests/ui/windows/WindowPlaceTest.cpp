#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

#include "ui/windows/ScrolledForm.h"
#include "ui/windows/TightForm.h"
#include "ui/windows/WindowPlace.h"

using namespace Ledgrove;

namespace {

/// A view of 300 x 200 on a column of 20 fields, each 30 pixels high and 400 wide.
struct Column {
    Column() {
        auto* layout = new QVBoxLayout(Form);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        for (int i = 0; i < 20; ++i) {
            auto* field = new QLineEdit;
            field->setFixedSize(400, 30);
            layout->addWidget(field);
            Fields += field;
        }
        View = new ScrolledForm(Form, &Window);
        View->resize(300, 200);
        Window.resize(300, 200);
        Window.show();
    }
    bool IsActive() { return QTest::qWaitForWindowActive(&Window); }
    int Down() const { return View->verticalScrollBar()->value(); }
    int Across() const { return View->horizontalScrollBar()->value(); }
    bool Shows(int field) const { return !Fields[field]->visibleRegion().isEmpty(); }

    QWidget Window;
    QWidget* Form = new QWidget;
    QList<QLineEdit*> Fields;
    ScrolledForm* View;
};

} // namespace

class WindowPlaceTest : public QObject {
    Q_OBJECT

private slots:
    void aWindowGoesToTheMiddle_data();
    void aWindowGoesToTheMiddle();
    void roomLeavesTheFrame();
    void aFractionalScaleGetsOnePixelMore();
    void focusBringsAFieldIntoView();
    void aWideControlShowsItsBeginning();
    void aTabStripComesWithItsPage();
    void aPressDoesNotMoveTheForm();
    void theScrolledFormHidesItself();
    void aTightFormHasHalfTheSpace();
};

void WindowPlaceTest::aWindowGoesToTheMiddle_data() {
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QRect>("whole");
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QPoint>("place");
    const QRect large(0, 0, 1366, 768);
    const QRect small(0, 0, 800, 600);
    const QRect tiny(0, 0, 683, 384);
    const QRect second(1366, 100, 800, 600);
    // (1366 - 1041) / 2 = 162, (768 - 654) / 2 = 57
    QTest::newRow("large screen") << large << large << QSize(1041, 654) << QPoint(162, 57);
    // The frame is 5 wider and 37 higher: 800 - 790 - 5 = 5 is the middle; 600 - 546 - 37 = 17 is above the
    // middle, 27.
    QTest::newRow("bottom edge") << small << small << QSize(790, 546) << QPoint(5, 17);
    // The middle would be (683 - 1041) / 2 = -179, (384 - 654) / 2 = -135.
    QTest::newRow("too large") << tiny << tiny << QSize(1041, 654) << QPoint(0, 0);
    // A panel of 40 pixels at the top. The middle of the whole screen is (768 - 700) / 2 = 34.
    QTest::newRow("panel at the top")
        << QRect(0, 40, 1366, 728) << large << QSize(400, 700) << QPoint(483, 40);
    QTest::newRow("second screen") << second << second << QSize(402, 147)
                                   << QPoint(1366 + (800 - 402) / 2, 100 + (600 - 147) / 2);
}

void WindowPlaceTest::aWindowGoesToTheMiddle() {
    QFETCH(QRect, available);
    QFETCH(QRect, whole);
    QFETCH(QSize, window);
    QTEST(PlaceWithin(available, whole, window), "place");
}

void WindowPlaceTest::roomLeavesTheFrame() {
    // 5 on each side, 37 for the title bar and the lower edge
    QCOMPARE(RoomWithin({0, 0, 800, 600}), QSize(790, 563));
}

// 401 x 1.5 = 601.5 pixels of the screen; 601 of them would be 400.7.
void WindowPlaceTest::aFractionalScaleGetsOnePixelMore() {
    QCOMPARE(SizeAtScale({401, 301}, 1.5), QSize(402, 302));
    QCOMPARE(SizeAtScale({401, 301}, 1.25), QSize(402, 302));
    QCOMPARE(SizeAtScale({401, 301}, 1), QSize(401, 301));
    QCOMPARE(SizeAtScale({401, 301}, 2), QSize(401, 301));
}

void WindowPlaceTest::focusBringsAFieldIntoView() {
    Column column;
    QVERIFY(column.IsActive());
    QVERIFY(!column.Shows(19));
    column.Fields[19]->setFocus(Qt::OtherFocusReason);
    QVERIFY(column.Shows(19));
    column.Fields[0]->setFocus(Qt::TabFocusReason);
    QCOMPARE(column.Down(), 0);
    for (int i = 0; i < 12; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(column.Fields[12]->hasFocus());
    QCOMPARE(column.Fields[12]->visibleRegion().boundingRect().height(), 30);
}

void WindowPlaceTest::aWideControlShowsItsBeginning() {
    Column column;
    QVERIFY(column.IsActive());
    for (int field : {10, 3, 4}) {
        column.Fields[field]->setFocus(Qt::OtherFocusReason);
        QCOMPARE(column.Across(), 0);
    }
    QTest::keyClick(column.Fields[4], Qt::Key_Tab);
    QCOMPARE(column.Across(), 0);
}

void WindowPlaceTest::aTabStripComesWithItsPage() {
    Column column;
    auto* tabs = new QTabWidget;
    tabs->setFixedHeight(150);
    tabs->addTab(new QWidget, "Page");
    column.Form->layout()->addWidget(tabs);
    QVERIFY(column.IsActive());
    tabs->setFocus(Qt::OtherFocusReason);
    QTRY_COMPARE(column.View->verticalScrollBar()->maximum(),
                 20 * 30 + 150 - column.View->viewport()->height());
    tabs->clearFocus();
    tabs->setFocus(Qt::OtherFocusReason);
    QCOMPARE(tabs->visibleRegion().boundingRect().height(), 150);
}

void WindowPlaceTest::aPressDoesNotMoveTheForm() {
    Column column;
    QVERIFY(column.IsActive());
    column.Fields[0]->setFocus();
    column.View->verticalScrollBar()->setValue(15); // the first field is half hidden
    QTest::mousePress(column.Window.windowHandle(), Qt::LeftButton, {}, {50, 5 + 180});
    QVERIFY(!column.Fields[0]->hasFocus());
    QCOMPARE(column.Down(), 15);
    QTest::mouseRelease(column.Window.windowHandle(), Qt::LeftButton, {}, {50, 5 + 180});
}

void WindowPlaceTest::theScrolledFormHidesItself() {
    Column column;
    QCOMPARE(column.View->focusPolicy(), Qt::NoFocus);
    QCOMPARE(column.View->frameWidth(), 0);
    QVERIFY(!column.Form->autoFillBackground());
    QVERIFY(!column.View->viewport()->autoFillBackground());
    QCOMPARE(column.View->sizeHint(), QSize(400, 20 * 30));
    // A view of just this size has no scroll bars.
    column.View->resize(400, 20 * 30);
    QCOMPARE(column.View->verticalScrollBar()->maximum(), 0);
    QCOMPARE(column.View->horizontalScrollBar()->maximum(), 0);
}

void WindowPlaceTest::aTightFormHasHalfTheSpace() {
    QWidget form;
    auto* grid = new QGridLayout(&form);
    grid->setContentsMargins(8, 10, 8, 10);
    grid->setSpacing(12);
    for (int i = 0; i < 3; ++i) {
        auto* part = new QLabel;
        part->setFixedSize(100, 20);
        grid->addWidget(part, i, i);
    }
    QCOMPARE(form.sizeHint(), QSize(8 + 100 + 12 + 100 + 12 + 100 + 8, 10 + 20 + 12 + 20 + 12 + 20 + 10));
    Tighten(form, Qt::Vertical);
    QCOMPARE(form.sizeHint(), QSize(340, 5 + 20 + 6 + 20 + 6 + 20 + 5));
    Tighten(form, Qt::Horizontal);
    QCOMPARE(form.sizeHint(), QSize(4 + 100 + 6 + 100 + 6 + 100 + 4, 82));
}

QTEST_MAIN(WindowPlaceTest)
#include "WindowPlaceTest.moc"
