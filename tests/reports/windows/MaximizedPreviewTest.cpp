#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "PrintDesk.h"
#include "tests/ui/windows/FitTest.h"

using namespace Ledgrove;

namespace {

/// Whether a person who reads row by row comes to `one` before `other`.
bool IsReadBefore(const QWidget& one, const QWidget& other) {
    const auto place = [](const QWidget& widget) {
        return QRect(widget.mapTo(widget.window(), QPoint()), widget.size());
    };
    const QRect first = place(one);
    const QRect second = place(other);
    const int middle = second.center().y();
    const bool sameRow = first.top() <= middle && middle <= first.bottom();
    return sameRow ? first.left() < second.left() : first.top() < second.top();
}

/// Walks with Tab from the printer to the last control. Returns the first control that lies before its
/// predecessor, or "".
QString StopOutOfOrder(const OpenPreview& open) {
    const QWidget* before = &open.Find("cboPrinter");
    open.Find("cboPrinter").setFocus();
    for (int stops = 1; stops < 50; ++stops) {
        open.Press(Qt::Key_Tab);
        const QWidget* focused = open.Window->focusWidget();
        if (focused->objectName() == "cboPrinter")
            return stops > 8 ? QString() : "too few stops";
        if (!IsReadBefore(*before, *focused))
            return focused->objectName();
        before = focused;
    }
    return "no end";
}

void PressMaximize(const OpenPreview& open) {
    open.Find<QPushButton>("bMaxMin").click();
}

} // namespace

class MaximizedPreviewTest : public QObject {
    Q_OBJECT

private slots:
    void placeAndSizeComeBack();
    void headerIsOneRow();
    void detailsBecomeAToolTip();
    void captionFollowsTheWindowsOwnButton();
    void tabFollowsTheEye();
    void enterPrintsNothing();
};

void MaximizedPreviewTest::placeAndSizeComeBack() {
    const OpenPreview open;
    for (const QRect& place : {QRect(20, 40, 730, 520), QRect(55, 30, 700, 500)}) {
        open.Window->setGeometry(place);
        QTRY_COMPARE(open.Window->geometry(), place);
        QCoreApplication::processEvents();
        const QSize preview = open.Find("vsPrinter").size();
        QCOMPARE(open.Find<QPushButton>("bMaxMin").text().remove('&'), "Maximize");
        for (int round = 0; round < 2; ++round) {
            PressMaximize(open);
            QTRY_COMPARE(open.Window->frameGeometry(), open.Window->screen()->availableGeometry());
            PressMaximize(open);
            QVERIFY(!open.Window->isMaximized());
            QTRY_COMPARE(open.Window->geometry(), place);
            QTRY_COMPARE(open.Find("vsPrinter").size(), preview);
        }
    }
}

void MaximizedPreviewTest::headerIsOneRow() {
    const OpenPreview open;
    QVERIFY(open.Find("cboOrientation").y() > open.Find("cboPrinter").y());
    PressMaximize(open);
    QTRY_COMPARE(open.Find("cboOrientation").geometry().center().y(),
                 open.Find("cboPrinter").geometry().center().y());
    QVERIFY(!open.IsShown("imgHdr"));
    QVERIFY(!open.IsShown("lblStatus"));
    QVERIFY(open.IsShown("lblSize"));
    PressMaximize(open);
    QTRY_VERIFY(open.Find("cboOrientation").y() > open.Find("cboPrinter").y());
    QVERIFY(open.IsShown("imgHdr"));
    QVERIFY(open.IsShown("lblStatus"));
}

void MaximizedPreviewTest::detailsBecomeAToolTip() {
    const OpenPreview open(1, [](OpenPreview& desk) { desk.AddPrinters(); });
    QCOMPARE(open.Find("cboPrinter").toolTip(), "Office");
    PressMaximize(open);
    QCOMPARE(open.Find("cboPrinter").toolTip(),
             "Office\nDPI:  600\nPort: ipp://printserver/office\nDriver: Laser 600");
    open.Choose("cboPrinter", 0);
    QCOMPARE(open.Find("cboPrinter").toolTip(),
             "Lab\nDPI: not known\nPort: socket://lab\nDriver: Generic PCL");
    PressMaximize(open);
    QCOMPARE(open.Find("cboPrinter").toolTip(), "Lab");
}

void MaximizedPreviewTest::captionFollowsTheWindowsOwnButton() {
    const OpenPreview open;
    const auto& button = open.Find<QPushButton>("bMaxMin");
    open.Window->showMaximized();
    QCOMPARE(button.text().remove('&'), "Minimize");
    QVERIFY(!open.IsShown("imgHdr"));
    open.Window->showNormal();
    QCOMPARE(button.text().remove('&'), "Maximize");
    QVERIFY(open.IsShown("imgHdr"));
}

void MaximizedPreviewTest::tabFollowsTheEye() {
    const OpenPreview open(3);
    open.Press(Qt::Key_PageDown); // on page 2, both arrows are enabled
    QCOMPARE(StopOutOfOrder(open), QString());
    PressMaximize(open);
    QTRY_VERIFY(open.Find("cboOrientation").x() > open.Find("cboPrinter").x() + 100);
    QCOMPARE(StopOutOfOrder(open), QString());
}

void MaximizedPreviewTest::enterPrintsNothing() {
    const OpenPreview open(2, [](OpenPreview& desk) { desk.AddPrinters(); });
    for (const char* control : {"vsPrinter", "cboPrinter", "cboOrientation", "cboZoom", "txtCopies"}) {
        open.Find(control).setFocus();
        open.Press(Qt::Key_Return);
        open.Press(Qt::Key_Enter);
        QVERIFY2(open.Server.Jobs.empty(), control);
        QVERIFY2(open.Window->isVisible(), control);
        QVERIFY2(!open.Window->isMaximized(), control);
    }
    open.Find("cmdPrint").setFocus();
    open.Press(Qt::Key_Return);
    QCOMPARE(open.Server.Jobs.size(), std::size_t(1));
}

QTEST_MAIN(MaximizedPreviewTest)
#include "MaximizedPreviewTest.moc"
