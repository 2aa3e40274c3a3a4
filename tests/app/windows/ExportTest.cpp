#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>
#include <functional>

#include "DesktopDesk.h"
#include "app/windows/ExportCommands.h"
#include "app/windows/frmExportPdf.h"

using namespace Ledgrove;

namespace {

/// Exports the report while `act` works on the dialog that asks for the paper. False if no dialog opened.
bool Export(OpenDesktop& open, const std::function<void(frmExportPdf&)>& act) {
    bool opened = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = dynamic_cast<frmExportPdf*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        opened = true;
        act(*dialog);
        QTRY_VERIFY(!dialog->isVisible());
    });
    ExportPdf(open.Context());
    return opened;
}

void Confirm(frmExportPdf& dialog) {
    ClickAt(*dialog.findChild<QPushButton*>("bOK"));
}

void Choose(frmExportPdf& dialog, const ReportPaper& paper) {
    dialog.findChild<QComboBox*>("cboPaper")->setCurrentIndex(static_cast<int>(paper.Size));
    dialog.findChild<QComboBox*>("cboOrientation")->setCurrentIndex(static_cast<int>(paper.Orientation));
}

/// The size of the first page, as "612 x 792 pts (letter)".
QString PageSize(const QString& pdf) {
    QProcess process;
    process.start("pdfinfo", {pdf});
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("pdfinfo does not read %s", qPrintable(pdf));
    const QString text = QString::fromUtf8(process.readAllStandardOutput());
    return QRegularExpression("Page size: *(.*)").match(text).captured(1);
}

/// The dialog alone.
struct OpenPaper : SettingsDesk, FormDriver {
    explicit OpenPaper(const ReportPaper& paper = {})
        : Window(paper, State, Outside) {
        Form = &Window;
        Window.show();
        if (!QTest::qWaitForWindowActive(&Window))
            qFatal("the dialog does not become active");
    }

    frmExportPdf Window;
};

} // namespace

class ExportTest : public QObject {
    Q_OBJECT

private slots:
    void pdfHoldsTheReport();
    void pdfHasTheChosenPaper_data();
    void pdfHasTheChosenPaper();
    void cancelledPaperChangesNothing();
    void paperDialogShowsItsLists();
    void paperDialogKeys();
    void csvHoldsInputsAndResults();
    void nothingIsWrittenWithoutAName();
    void unwritableFileIsReported();
    void shownTabIsCopied();
    void refusedEntryStopsTheExport();
};

void ExportTest::pdfHoldsTheReport() {
    OpenDesktop open;
    open.NameToGive = open.PathOf("out.pdf");
    QVERIFY(Export(open, Confirm));
    QVERIFY(BytesOf(open.NameToGive).startsWith("%PDF-"));
    QCOMPARE(open.Asked.Suffix, ".pdf");
    QVERIFY(open.Outside.TakeTexts().empty());
}

void ExportTest::pdfHasTheChosenPaper_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QString>("points");
    QTest::newRow("letter") << 0 << 0 << "612 x 792 pts (letter)"; // 8.5 and 11 times 72
    QTest::newRow("letter landscape") << 0 << 1 << "792 x 612 pts (letter)";
    QTest::newRow("A4") << 1 << 0 << "595 x 842 pts (A4)"; // 11906 and 16838 twips, 20 to the point
    QTest::newRow("A4 landscape") << 1 << 1 << "842 x 595 pts (A4)";
    QTest::newRow("legal") << 2 << 0 << "612 x 1008 pts"; // 14 times 72
    QTest::newRow("legal landscape") << 2 << 1 << "1008 x 612 pts";
}

void ExportTest::pdfHasTheChosenPaper() {
    QFETCH(int, size);
    QFETCH(int, orientation);
    QFETCH(QString, points);
    const ReportPaper paper{static_cast<PaperSize>(size), static_cast<PageOrientation>(orientation)};
    OpenDesktop open;
    open.NameToGive = open.PathOf("out.pdf");
    QVERIFY(Export(open, [&](frmExportPdf& dialog) {
        QCOMPARE(dialog.Paper(), ReportPaper());
        Choose(dialog, paper);
        Confirm(dialog);
    }));
    QVERIFY2(PageSize(open.NameToGive).startsWith(points), qPrintable(PageSize(open.NameToGive)));
    // The next export begins with this paper.
    QVERIFY(Export(open, [&](frmExportPdf& dialog) {
        QCOMPARE(dialog.Paper(), paper);
        dialog.reject();
    }));
}

void ExportTest::cancelledPaperChangesNothing() {
    OpenDesktop open;
    open.NameToGive = open.PathOf("out.pdf");
    QVERIFY(Export(open, [](frmExportPdf& dialog) {
        Choose(dialog, {PaperSize::Legal, PageOrientation::Landscape});
        ClickAt(*dialog.findChild<QPushButton*>("bCancel"));
    }));
    QVERIFY(open.Asked.Title.isEmpty()); // no file chooser
    QVERIFY(!QFile::exists(open.NameToGive));
    QCOMPARE(LastChoices(open.PathOf("recent.ini")).Paper(), ReportPaper());
}

void ExportTest::paperDialogShowsItsLists() {
    const OpenPaper open({PaperSize::A4, PageOrientation::Landscape});
    QCOMPARE(open.Window.windowTitle(), "Export PDF");
    QVERIFY(open.Window.isModal());
    const auto& sizes = open.Find<QComboBox>("cboPaper");
    QCOMPARE(sizes.count(), 3);
    QCOMPARE(sizes.itemText(0), "Letter");
    QCOMPARE(sizes.currentText(), "A4");
    QCOMPARE(sizes.itemText(2), "Legal");
    const auto& orientations = open.Find<QComboBox>("cboOrientation");
    QCOMPARE(orientations.count(), 2);
    QCOMPARE(orientations.itemText(0), "Portrait");
    QCOMPARE(orientations.currentText(), "Landscape");
}

void ExportTest::paperDialogKeys() {
    OpenPaper open;
    QCOMPARE(Mnemonics(open.Window), "CHKOP");
    QCOMPARE(SpokenCodeNames(open.Window), QStringList());
    const QStringList expected = {"cboPaper", "cboOrientation", "bOK", "bCancel", "bHelp", "cboPaper"};
    QCOMPARE(open.Focused(), "cboPaper");
    QCOMPARE(open.TabWalk("cboPaper", expected.size()), expected);
    for (const char* list : {"cboPaper", "cboOrientation"}) {
        open.Window.show();
        open.Find(list).setFocus();
        open.Press(Qt::Key_Return);
        QVERIFY(!open.Window.isVisible());
        QCOMPARE(open.Window.result(), int(QDialog::Accepted));
    }
    open.Window.show();
    open.Find("bCancel").setFocus();
    open.Press(Qt::Key_Return);
    QVERIFY(!open.Window.isVisible());
    QCOMPARE(open.Window.result(), int(QDialog::Rejected));
}

void ExportTest::csvHoldsInputsAndResults() {
    OpenDesktop open;
    open.Type("ecStdHome", "200000"); // accepted as if the focus had left the field
    open.NameToGive = open.PathOf("out.csv");
    ExportCsv(open.Context());
    const QList<QByteArray> lines = BytesOf(open.NameToGive).split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines[0].startsWith("ecIncome,ecMonthlyDebt,optDownPayment,"));
    QVERIFY(lines[1].contains("\"$200,000\""));
    QVERIFY(lines[2].isEmpty());
}

void ExportTest::nothingIsWrittenWithoutAName() {
    OpenDesktop open;
    LastChoices(open.PathOf("recent.ini")).KeepPaper({}); // so that the file is there
    const auto before = QDir(open.FolderPath()).entryList();
    QVERIFY(Export(open, Confirm));
    ExportCsv(open.Context());
    QCOMPARE(QDir(open.FolderPath()).entryList(), before);
    QVERIFY(open.Outside.TakeTexts().empty());
}

void ExportTest::unwritableFileIsReported() {
    OpenDesktop open;
    open.NameToGive = open.PathOf("none/out.csv");
    ExportCsv(open.Context());
    QVERIFY(open.Outside.TakeTexts().front().find("none/out.csv") != std::string::npos);
    open.NameToGive = open.PathOf("none/out.pdf");
    QVERIFY(Export(open, Confirm));
    QVERIFY(open.Outside.TakeTexts().front().find("none/out.pdf") != std::string::npos);
}

void ExportTest::shownTabIsCopied() {
    OpenDesktop open;
    open.State.Screen.SSTab1 = 1;
    CopyTab(open.Context(), TabForm::Text);
    QVERIFY(QGuiApplication::clipboard()->text().contains("Mortgage Savings             $0       $0\n"));
    CopyTab(open.Context(), TabForm::Spreadsheet);
    QVERIFY(QGuiApplication::clipboard()->text().startsWith("\tMonthly\tYearly\nMortgage Savings\t$0\t$0\n"));
}

void ExportTest::refusedEntryStopsTheExport() {
    OpenDesktop open;
    open.Type("ecIncome", "abc");
    open.NameToGive = open.PathOf("out.csv");
    ExportCsv(open.Context());
    QCOMPARE(BytesOf(open.NameToGive), "(missing)");
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"You must enter a number here."});
    QVERIFY(!Export(open, Confirm));
}

QTEST_MAIN(ExportTest)
#include "ExportTest.moc"
