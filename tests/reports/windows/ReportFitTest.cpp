#include <QPushButton>

#include "PrintDesk.h"
#include "reports/windows/FrmPrintOptions.h"
#include "reports/windows/frmReportSelection.h"
#include "tests/ui/windows/FitTest.h"

using namespace Ledgrove;

namespace {

/// The first of these buttons that is not wholly in view, or "".
QString HiddenButton(const QWidget& window, std::initializer_list<const char*> buttons) {
    for (const char* button : buttons) {
        if (!IsWholeInView(*window.findChild<QPushButton*>(button)))
            return button;
    }
    return {};
}

/// The first control of the preview window that is not wholly in view, or "".
QString HiddenInPreview(const OpenPreview& open) {
    for (const char* control : {"cboPrinter", "cboOrientation", "lblSize", "vsPrinter", "bNextPage",
                                "cboZoom", "bChgPage", "bMaxMin", "txtCopies", "cmdPrint", "cmdClose"}) {
        if (!IsWholeInView(open.Find(control)))
            return control;
    }
    return {};
}

void Maximize(const OpenPreview& open) {
    open.Find<QPushButton>("bMaxMin").click();
    const QRect screen = open.Window->screen()->availableGeometry();
    if (!QTest::qWaitFor([&] { return open.Window->frameGeometry() == screen; }))
        qFatal("the window does not fill the screen");
    QCoreApplication::processEvents();
}

void Open(QWidget& window) {
    window.show();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("the window does not become active");
}

} // namespace

/// Runs once for each screen; see CMakeLists.txt.
class ReportFitTest : public QObject {
    Q_OBJECT

private slots:
    void theSelectionFits();
    void theHeaderFits();
    void thePreviewFits();
    void theMaximizedPreviewHasItsSize();
    void largeLettersCutNothing();
};

void ReportFitTest::theSelectionFits() {
    PrintDesk desk;
    frmReportSelection window(desk.State, desk.Outside, desk.Machine);
    Open(window);
    QVERIFY2(IsOnScreen(window), qPrintable(PlaceOf(window)));
    QCOMPARE(HiddenButton(window, {"cmdReportHeader", "bPrint", "bCancel", "bHelp"}), QString());
    QVERIFY(!Scrolls(window));
    QCOMPARE(HiddenStop({&window}), QString());
}

void ReportFitTest::theHeaderFits() {
    PrintDesk desk;
    HeaderOptions record;
    QVERIFY(!Module1::FillHeaderOptions(record, desk.State));
    FrmPrintOptions window(record, ReportDesk{desk.State, desk.Outside, desk.Machine});
    Open(window);
    QVERIFY2(IsOnScreen(window), qPrintable(PlaceOf(window)));
    QCOMPARE(HiddenButton(window, {"bOK", "bCancel", "bHelp"}), QString());
    QVERIFY(!HasRoom({800, 600}) || !Scrolls(window));
    QCOMPARE(HiddenStop({&window}), QString());
}

void ReportFitTest::thePreviewFits() {
    const OpenPreview open(2);
    QVERIFY2(IsOnScreen(*open.Form), qPrintable(PlaceOf(*open.Form)));
    QCOMPARE(HiddenButton(*open.Form, {"bChgPage", "bMaxMin", "cmdPrint", "cmdClose"}), QString());
    QVERIFY(IsWholeInView(open.Find("cboPrinter")));
    QVERIFY(IsWholeInView(open.Find("bNextPage")));
}

void ReportFitTest::theMaximizedPreviewHasItsSize() {
    const OpenPreview open(2);
    Maximize(open);
    QCOMPARE(HiddenInPreview(open), QString());
    // 600 and 1300 twips at 15 for each pixel
    QCOMPARE(open.Find("vsPrinter").size(), open.Window->size() - QSize(40, 87));
}

void ReportFitTest::largeLettersCutNothing() {
    if (!HasRoom({1366, 768}))
        QSKIP("letters of this size need a larger screen");
    const QFont usual = QApplication::font();
    for (const double scale : {1.5, 2.0}) {
        QFont large = usual;
        large.setPointSizeF(usual.pointSizeF() * scale);
        QApplication::setFont(large);
        const OpenPreview open(2);
        QApplication::setFont(usual);
        QCOMPARE(HiddenInPreview(open), QString());
        Maximize(open);
        QCOMPARE(HiddenInPreview(open), QString());
    }
}

QTEST_MAIN(ReportFitTest)
#include "ReportFitTest.moc"
