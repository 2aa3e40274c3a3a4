#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>

#include "PrintDesk.h"
#include "ui/windows/FileQuestions.h"

using namespace Ledgrove;

Q_DECLARE_METATYPE(Ledgrove::PrinterState)

namespace {

void WithPrinters(OpenPreview& desk) {
    desk.AddPrinters();
}

void PressPrint(const OpenPreview& open) {
    open.Find<QPushButton>("cmdPrint").click();
}

/// Checks that the preview is shown again and can print again.
void CheckReady(const OpenPreview& open) {
    QVERIFY(open.Find("cmdPrint").isEnabled());
    QVERIFY(open.Find("vsPrinter").isEnabled());
    QVERIFY(open.Window->isVisible());
    QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == open.Window.get());
}

} // namespace

class PrintingTest : public QObject {
    Q_OBJECT

private slots:
    void reportGoesToTheChosenPrinter();
    void printingComposesAgainAndEndsInPreview();
    void landscapeTurnsTheSheet();
    void printersPaperIsNamed();
    void refusedCopiesPrintNothing_data();
    void refusedCopiesPrintNothing();
    void copiesAreAWholeNumber_data();
    void copiesAreAWholeNumber();
    void pdfIsWrittenToTheChosenFile();
    void dismissedFileChooserPrintsNothing();
    void unwritablePdfIsReported();
    void refusedJobIsReported();
    void unusablePrinterIsReportedBeforeComposing_data();
    void unusablePrinterIsReportedBeforeComposing();
    void pausedPrinterIsAskedAbout();
    void pausedPrinterDoesNotStopPdf();
    void printerThatVanishesWhileSendingIsReported();
    void progressNamesPageAndPrinter();
    void cancelPrintsNothing();
    void cancelLeavesNoPdf();
    void aDoubleClickPrintsOnce();
    void namesGetTheirEnding();
    void chooserAsksForPdf();
};

void PrintingTest::reportGoesToTheChosenPrinter() {
    OpenPreview open(3, WithPrinters);
    open.Type("txtCopies", "2");
    PressPrint(open);
    QCOMPARE(open.Server.Jobs.size(), std::size_t(1));
    const ScriptedServer::Sent& sent = open.Server.Jobs.front();
    QCOMPARE(sent.Job.Printer, std::string("Office"));
    QCOMPARE(sent.Job.Title, std::string("Summary Report"));
    QCOMPARE(sent.Job.PaperName, std::string("na_letter_8.5x11in"));
    QCOMPARE(sent.Job.Copies, 2);
    QVERIFY(PdfInfo(sent.Pdf).contains(QRegularExpression("Pages: +3\n")));
    QVERIFY(PdfInfo(sent.Pdf).contains("612 x 792 pts")); // 8.5 x 72, 11 x 72
    const QStringList pages = PdfText(sent.Pdf).split('\f', Qt::SkipEmptyParts);
    QCOMPARE(pages.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(pages[i].contains(QString("Sheet %1").arg(i + 1)));
        QVERIFY(pages[i].contains("Printed on 11/20/2026"));
        QVERIFY(pages[i].contains(QString("Page %1").arg(i + 1)));
    }
    // the file is deleted after it was sent
    QVERIFY(!QFile::exists(QString::fromStdString(sent.Job.PdfFile)));
    QVERIFY(open.Outside.Messages.empty());
    open.Choose("cboPrinter", 0);
    PressPrint(open);
    QCOMPARE(open.Server.Jobs.back().Job.Printer, std::string("Lab"));
}

void PrintingTest::printingComposesAgainAndEndsInPreview() {
    OpenPreview open(2, WithPrinters);
    open.Press(Qt::Key_PageDown);
    open.Pages = 3; // the screens change before printing
    PressPrint(open);
    QCOMPARE(open.Compositions, 2);
    QVERIFY(PdfInfo(open.Server.Jobs.front().Pdf).contains(QRegularExpression("Pages: +3\n")));
    CheckReady(open);
    QCOMPARE(open.Place(), "Page 2 of 3");
    QCOMPARE(open.Window->focusWidget(), &open.Find("cmdPrint"));
}

void PrintingTest::landscapeTurnsTheSheet() {
    OpenPreview open(1, WithPrinters);
    open.Choose("cboOrientation", 1);
    PressPrint(open);
    QVERIFY(PdfInfo(open.Server.Jobs.front().Pdf).contains("792 x 612 pts"));
}

void PrintingTest::printersPaperIsNamed() {
    OpenPreview open(1, [](OpenPreview& desk) {
        desk.AddPrinters();
        desk.Server.Known["Office"].DefaultPaper = Paper{"iso_a4_210x297mm", 11906, 16838};
    });
    PressPrint(open);
    QCOMPARE(open.Server.Jobs.front().Job.PaperName, std::string("iso_a4_210x297mm"));
    QVERIFY(PdfInfo(open.Server.Jobs.front().Pdf).contains("(A4)"));
}

void PrintingTest::refusedCopiesPrintNothing_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("told");
    QTest::addRow("not a number") << "two"
                                  << "You must enter a number here.";
    QTest::addRow("negative") << "-3"
                              << "You must enter a positive number here.";
}

void PrintingTest::refusedCopiesPrintNothing() {
    QFETCH(QString, typed);
    QFETCH(QString, told);
    OpenPreview open(1, WithPrinters);
    open.Type("txtCopies", typed);
    open.Find("cmdPrint").setFocus();
    QVERIFY(open.Outside.Messages.empty()); // only printing refuses it
    QCOMPARE(open.FieldText("txtCopies"), typed);
    PressPrint(open);
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    const Message& message = open.Outside.Messages.front();
    QCOMPARE(QString::fromStdString(message.Text), told);
    QCOMPARE(message.Title, std::string("Ledgrove"));
    QCOMPARE(message.Icon, MessageIcon::Information);
    QVERIFY(open.Server.Jobs.empty());
    QCOMPARE(open.Compositions, 1);
    QCOMPARE(open.Focused(), "txtCopies");
    QCOMPARE(open.FieldText("txtCopies"), typed);
    QCOMPARE(open.Find<QLineEdit>("txtCopies").selectedText(), typed);
    CheckReady(open);
}

void PrintingTest::copiesAreAWholeNumber_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("copies");
    QTest::addRow("usual") << "1200"
                           << "1,200" << 1200;
    QTest::addRow("none") << "0"
                          << "1" << 1;
    QTest::addRow("empty") << ""
                           << "1" << 1;
    QTest::addRow("half a copy") << "2.5"
                                 << "3" << 3; // halves go up
    QTest::addRow("percent") << "12%"
                             << "1" << 1; // the Whole format reads it as 0
    QTest::addRow("too many") << "10000"
                              << "9,999" << 9999;
}

void PrintingTest::copiesAreAWholeNumber() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(int, copies);
    OpenPreview left(1, WithPrinters);
    left.Type("txtCopies", typed);
    left.Press(Qt::Key_Tab);
    QCOMPARE(left.Focused(), "cmdPrint");
    QCOMPARE(left.FieldText("txtCopies"), shown);
    OpenPreview open(1, WithPrinters);
    open.Type("txtCopies", typed);
    PressPrint(open); // the focus is still in the field
    QCOMPARE(open.FieldText("txtCopies"), shown);
    QCOMPARE(open.Server.Jobs.front().Job.Copies, copies);
    QVERIFY(open.Outside.Messages.empty());
}

void PrintingTest::pdfIsWrittenToTheChosenFile() {
    OpenPreview open(3);
    open.PdfToChoose = open.Folder.filePath("Kim Park.pdf");
    PressPrint(open);
    QCOMPARE(open.PdfAsked, 1);
    const QByteArray pdf = BytesOf(open.PdfToChoose);
    QVERIFY(PdfInfo(pdf).contains(QRegularExpression("Pages: +3\n")));
    QVERIFY(PdfInfo(pdf).contains(QRegularExpression("Title: +Summary Report\n")));
    QVERIFY(PdfText(pdf).contains("Sheet 3"));
    QVERIFY(open.Server.Jobs.empty());
    QVERIFY(open.Outside.Messages.empty());
    CheckReady(open);
}

void PrintingTest::dismissedFileChooserPrintsNothing() {
    OpenPreview open;
    PressPrint(open);
    QCOMPARE(open.PdfAsked, 1);
    QCOMPARE(open.Compositions, 1);
    QVERIFY(open.Outside.Messages.empty());
    CheckReady(open);
}

void PrintingTest::unwritablePdfIsReported() {
    OpenPreview open;
    open.PdfToChoose = open.Folder.filePath("nowhere/report.pdf");
    PressPrint(open);
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.front().Icon, MessageIcon::Exclamation);
    QVERIFY(open.Outside.Messages.front().Text.find("nowhere/report.pdf") != std::string::npos);
    CheckReady(open);
    open.Outside.Messages.clear();
    open.PdfToChoose = "/dev/null";
    PressPrint(open);
    QCOMPARE(open.Outside.TakeTexts(),
             std::vector<std::string>{"The report was not written: \"/dev/null\" cannot be "
                                      "written (it is not an ordinary file). Choose another "
                                      "place for it."});
}

void PrintingTest::refusedJobIsReported() {
    OpenPreview open(1, WithPrinters);
    open.Server.Refusal = "The printer or class does not exist.";
    PressPrint(open);
    QCOMPARE(
        open.Outside.TakeTexts(),
        std::vector<std::string>{"The report was not printed: the printer \"Office\" did not accept it (The "
                                 "printer or class does not exist). Choose another printer, or try again "
                                 "when this one is ready."});
    CheckReady(open);
}

void PrintingTest::unusablePrinterIsReportedBeforeComposing_data() {
    QTest::addColumn<PrinterState>("state");
    QTest::addColumn<QString>("told");
    QTest::addRow("service") << PrinterState::NoService << "the print service is not running";
    QTest::addRow("removed") << PrinterState::Removed << "is no longer there. Choose another printer.";
    QTest::addRow("refusing") << PrinterState::Refusing << "does not accept jobs now (Being moved).";
}

void PrintingTest::unusablePrinterIsReportedBeforeComposing() {
    QFETCH(PrinterState, state);
    QFETCH(QString, told);
    OpenPreview open(1, WithPrinters);
    open.Server.Now = {state, "Being moved"};
    PressPrint(open);
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.front().Icon, MessageIcon::Exclamation);
    QCOMPARE(open.Outside.Messages.front().Buttons, MessageButtons::Ok);
    const QString text = QString::fromStdString(open.Outside.Messages.front().Text);
    QVERIFY2(text.startsWith("The report was not printed: the printer \"Office\" "), qPrintable(text));
    QVERIFY2(text.contains(told), qPrintable(text));
    QCOMPARE(open.Compositions, 1);
    QVERIFY(open.Server.Jobs.empty());
    CheckReady(open);
    open.Server.Now = {};
    PressPrint(open);
    QCOMPARE(open.Server.Jobs.size(), std::size_t(1));
}

void PrintingTest::pausedPrinterIsAskedAbout() {
    OpenPreview open(1, WithPrinters);
    open.Server.Now = {PrinterState::Paused, {}};
    open.Outside.Answer = MessageAnswer::No;
    PressPrint(open);
    QCOMPARE(open.Compositions, 1);
    QVERIFY(open.Server.Jobs.empty());
    CheckReady(open);
    const Message& question = open.Outside.Messages.front();
    QCOMPARE(question.Text,
             std::string("The printer \"Office\" is paused. The report waits there until someone resumes the "
                         "printer. Print it anyway?"));
    QCOMPARE(question.Icon, MessageIcon::Question);
    QCOMPARE(question.Buttons, MessageButtons::YesNo);
    open.Outside.Answer = MessageAnswer::Yes;
    PressPrint(open);
    QCOMPARE(open.Compositions, 2);
    QCOMPARE(open.Server.Jobs.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(2)); // one question for each print
}

void PrintingTest::pausedPrinterDoesNotStopPdf() {
    OpenPreview open;
    open.Server.Now = {PrinterState::NoService, {}};
    open.PdfToChoose = open.Folder.filePath("report.pdf");
    PressPrint(open);
    QVERIFY(open.Outside.Messages.empty());
    QVERIFY(QFile::exists(open.PdfToChoose));
}

void PrintingTest::printerThatVanishesWhileSendingIsReported() {
    OpenPreview open(1, WithPrinters);
    open.Server.Refusal = "client-error-not-found";
    QVERIFY(WhileOpen(
        "PrintProgress", [&open] { PressPrint(open); },
        [&open](QWidget&) { open.Server.Now.State = PrinterState::Removed; }));
    QCOMPARE(
        open.Outside.TakeTexts(),
        std::vector<std::string>{"The report was not printed: the printer \"Office\" is no longer there. "
                                 "Choose another printer."});
}

void PrintingTest::progressNamesPageAndPrinter() {
    OpenPreview open(2, WithPrinters);
    QString label;
    QString button;
    QVERIFY(WhileOpen(
        "PrintProgress", [&open] { PressPrint(open); },
        [&](QWidget& progress) {
            label = progress.findChild<QLabel*>()->text();
            button = progress.findChild<QPushButton*>()->text();
            QVERIFY(!open.Find("cmdPrint").isEnabled());
        }));
    QCOMPARE(label, "Now printing Page 1 of\nSummary Report\non the Office on ipp://printserver/office");
    QCOMPARE(button, "Cancel");
    QCOMPARE(open.Server.Jobs.size(), std::size_t(1));
}

void PrintingTest::cancelPrintsNothing() {
    OpenPreview open(3, WithPrinters);
    QVERIFY(WhileOpen(
        "PrintProgress", [&open] { PressPrint(open); },
        [](QWidget& progress) { progress.findChild<QPushButton*>()->click(); }));
    QVERIFY(open.Server.Jobs.empty());
    QVERIFY(open.Outside.Messages.empty());
    CheckReady(open);
}

void PrintingTest::cancelLeavesNoPdf() {
    OpenPreview open(3);
    open.PdfToChoose = open.Folder.filePath("report.pdf");
    QVERIFY(WhileOpen(
        "PrintProgress", [&open] { PressPrint(open); },
        [](QWidget& progress) { progress.findChild<QPushButton*>()->click(); }));
    QVERIFY(!QFile::exists(open.PdfToChoose));
    QVERIFY(open.Outside.Messages.empty());
    CheckReady(open);
}

void PrintingTest::aDoubleClickPrintsOnce() {
    OpenPreview open(2, WithPrinters);
    QTest::mouseClick(&open.Find("cmdPrint"), Qt::LeftButton);
    QTest::mouseDClick(&open.Find("cmdPrint"), Qt::LeftButton); // its second press
    QCOMPARE(open.Server.Jobs.size(), std::size_t(1));
}

void PrintingTest::namesGetTheirEnding() {
    QWidget parent;
    const QTemporaryDir folder;
    QCOMPARE(NameToWrite(parent, folder.filePath("Dr. Smith"), ".pdf"), folder.filePath("Dr. Smith.pdf"));
    QCOMPARE(NameToWrite(parent, folder.filePath("a.PDF"), ".pdf"), folder.filePath("a.PDF"));
    QCOMPARE(NameToWrite(parent, "", ".pdf"), "");
}

void PrintingTest::chooserAsksForPdf() {
    QWidget parent;
    const auto dialog = PdfDialog(parent);
    QCOMPARE(dialog->windowTitle(), "Print to PDF");
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    QCOMPARE(dialog->defaultSuffix(), ""); // NameToWrite adds it, also to "Dr. Smith"
    QVERIFY(dialog->nameFilters().first().contains("*.pdf"));
}

QTEST_MAIN(PrintingTest)
#include "PrintingTest.moc"
