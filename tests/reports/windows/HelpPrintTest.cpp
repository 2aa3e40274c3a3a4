#include "reports/windows/HelpPrint.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>

#include "PrintDesk.h"

using namespace Ledgrove;

namespace {

constexpr const char* dialogName = "HelpPrintDialog";

/// A help of several pages above a window, with scripted printers.
struct HelpDesk : PrintDesk {
    HelpDesk() {
        QString html = "<h1>Top of the help</h1>";
        for (int i = 1; i <= 200; ++i)
            html += QString("<p>Paragraph %1.</p>").arg(i);
        Help.setHtml(html + "<p>The end of the help.</p>");
    }

    /// Opens the dialog and runs `act` on it; false if the dialog does not open.
    bool Print(const std::function<void(QWidget&)>& act) {
        return WhileOpen(
            dialogName, [this] { PrintHelpDocument(Help, Above, Outside, Machine); }, act);
    }

    QTextDocument Help;
    QWidget Above;
};

void Press(QWidget& dialog, const char* button) {
    dialog.findChild<QPushButton*>(button)->click();
}

void PressPrint(QWidget& dialog) {
    Press(dialog, "bPrintHelpNow");
}

/// The darkest and the lightest pixel of the PDF's first page, and whether any pixel is coloured.
struct Shades {
    int Darkest = 255;
    int Lightest = 0;
    int MostColour = 0; ///< the largest difference between a pixel's red, green and blue
};

Shades ShadesOf(const QByteArray& pdf) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("help.pdf"));
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size())
        qFatal("no space for a PDF");
    file.close();
    QProcess process;
    process.start("pdftoppm", {"-png", "-singlefile", "-r", "50", file.fileName(), folder.filePath("page")});
    process.waitForFinished();
    const QImage page(folder.filePath("page.png"));
    if (page.isNull())
        qFatal("pdftoppm does not paint the PDF");
    Shades shades;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QColor pixel = page.pixelColor(x, y);
            const auto [least, most] = std::minmax({pixel.red(), pixel.green(), pixel.blue()});
            shades.Darkest = std::min(shades.Darkest, most);
            shades.Lightest = std::max(shades.Lightest, least);
            shades.MostColour = std::max(shades.MostColour, most - least);
        }
    }
    return shades;
}

} // namespace

class HelpPrintTest : public QObject {
    Q_OBJECT

private slots:
    void helpGoesToTheDefaultPrinterOnLetterPaper();
    void anotherPrinterCanBeChosen();
    void dialogShowsTheNumberOfPages();
    void pagesAreNumbered();
    void cancelPrintsNothing();
    void withoutPrintersThereIsPdf();
    void dismissedFileChooserWritesNothing();
    void unwritablePdfIsReported();
    void refusedJobIsReported();
    void pausedPrinterIsAskedAbout();
    void blackOnWhiteWithEveryPalette();
    void picturesAreNotFetched();
    void keyboardAndNames();
    void pdfHasTheHelpsName();
};

void HelpPrintTest::helpGoesToTheDefaultPrinterOnLetterPaper() {
    HelpDesk desk;
    desk.AddPrinters();
    QVERIFY(desk.Print(PressPrint));
    QCOMPARE(desk.Server.Jobs.size(), std::size_t(1));
    const ScriptedServer::Sent& sent = desk.Server.Jobs.front();
    QCOMPARE(sent.Job.Printer, std::string("Office"));
    QCOMPARE(sent.Job.Title, std::string("Ledgrove Help"));
    QCOMPARE(sent.Job.PaperName, std::string("na_letter_8.5x11in"));
    QCOMPARE(sent.Job.Copies, 1);
    QVERIFY(PdfInfo(sent.Pdf).contains("612 x 792 pts")); // 8.5 x 72, 11 x 72
    const QString text = PdfText(sent.Pdf);
    QVERIFY(text.contains("Top of the help"));
    for (int i = 1; i <= 200; ++i)
        QVERIFY2(text.contains(QString("Paragraph %1.").arg(i)), qPrintable(QString::number(i)));
    QVERIFY(text.contains("The end of the help."));
    // the file is deleted after it was sent
    QVERIFY(!QFile::exists(QString::fromStdString(sent.Job.PdfFile)));
    QVERIFY(desk.Outside.Messages.empty());
}

void HelpPrintTest::anotherPrinterCanBeChosen() {
    HelpDesk desk;
    desk.AddPrinters();
    QVERIFY(desk.Print([](QWidget& dialog) {
        dialog.findChild<QComboBox*>("cboHelpPrinter")->setCurrentText("Lab");
        PressPrint(dialog);
    }));
    QCOMPARE(desk.Server.Jobs.front().Job.Printer, std::string("Lab"));
}

void HelpPrintTest::dialogShowsTheNumberOfPages() {
    HelpDesk desk;
    desk.AddPrinters();
    QString words;
    QVERIFY(desk.Print([&words](QWidget& dialog) {
        words = dialog.findChild<QLabel*>()->text();
        PressPrint(dialog);
    }));
    const qsizetype pages = PdfText(desk.Server.Jobs.front().Pdf).split('\f', Qt::SkipEmptyParts).size();
    QVERIFY(pages > 1);
    QCOMPARE(words, QString("The whole help takes %1 pages on letter paper.").arg(pages));

    desk.Help.setHtml("<p>Short.</p>");
    QVERIFY(desk.Print([&words](QWidget& dialog) {
        words = dialog.findChild<QLabel*>()->text();
        Press(dialog, "bCancel");
    }));
    QCOMPARE(words, "The whole help takes 1 page on letter paper.");
}

void HelpPrintTest::pagesAreNumbered() {
    HelpDesk desk;
    desk.AddPrinters();
    QVERIFY(desk.Print(PressPrint));
    const QStringList pages = PdfText(desk.Server.Jobs.front().Pdf).split('\f', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < pages.size(); ++i)
        QVERIFY(pages[i].contains(QString("Page %1 of %2").arg(i + 1).arg(pages.size())));
}

void HelpPrintTest::cancelPrintsNothing() {
    HelpDesk desk;
    desk.AddPrinters();
    QVERIFY(desk.Print([](QWidget& dialog) { Press(dialog, "bCancel"); }));
    QVERIFY(desk.Server.Jobs.empty());
    QVERIFY(desk.Print([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }));
    QVERIFY(desk.Server.Jobs.empty());
    QVERIFY(desk.Outside.Messages.empty());
}

void HelpPrintTest::withoutPrintersThereIsPdf() {
    HelpDesk desk;
    desk.PdfToChoose = desk.Folder.filePath("My help.pdf");
    QVERIFY(desk.Print([](QWidget& dialog) {
        QCOMPARE(dialog.findChild<QComboBox*>()->currentText(), "Print to PDF");
        PressPrint(dialog);
    }));
    QCOMPARE(desk.PdfAsked, 1);
    const QByteArray pdf = BytesOf(desk.PdfToChoose);
    QVERIFY(PdfInfo(pdf).contains(QRegularExpression("Title: +Ledgrove Help\n")));
    QVERIFY(PdfText(pdf).contains("The end of the help."));
    QVERIFY(desk.Server.Jobs.empty());
}

void HelpPrintTest::dismissedFileChooserWritesNothing() {
    HelpDesk desk;
    QVERIFY(desk.Print(PressPrint));
    QCOMPARE(desk.PdfAsked, 1);
    QVERIFY(desk.Outside.Messages.empty());
}

void HelpPrintTest::unwritablePdfIsReported() {
    HelpDesk desk;
    desk.PdfToChoose = desk.Folder.filePath("nowhere/help.pdf");
    QVERIFY(desk.Print(PressPrint));
    QCOMPARE(desk.Outside.Messages.size(), std::size_t(1));
    const Message& message = desk.Outside.Messages.front();
    QCOMPARE(message.Icon, MessageIcon::Exclamation);
    QVERIFY(message.Text.starts_with("The help was not written: "));
    QVERIFY(message.Text.find("nowhere/help.pdf") != std::string::npos);
    QVERIFY(message.Text.ends_with("Choose another place for it."));
}

void HelpPrintTest::refusedJobIsReported() {
    HelpDesk desk;
    desk.AddPrinters();
    desk.Server.Refusal = "The printer is not responding.";
    QVERIFY(desk.Print(PressPrint));
    QCOMPARE(desk.Outside.TakeTexts(),
             std::vector<std::string>{
                 "The help was not printed: the printer \"Office\" did not accept it (The printer is not "
                 "responding). Choose another printer, or try again when this one is ready."});
}

void HelpPrintTest::pausedPrinterIsAskedAbout() {
    HelpDesk desk;
    desk.AddPrinters();
    desk.Server.Now.State = PrinterState::Paused;
    desk.Outside.Answer = MessageAnswer::No;
    QVERIFY(desk.Print(PressPrint));
    QVERIFY(desk.Server.Jobs.empty());
    QCOMPARE(desk.Outside.TakeTexts(),
             std::vector<std::string>{"The printer \"Office\" is paused. The help waits there until someone "
                                      "resumes the printer. Print it anyway?"});
    desk.Outside.Answer = MessageAnswer::Yes;
    QVERIFY(desk.Print(PressPrint));
    QCOMPARE(desk.Server.Jobs.size(), std::size_t(1));
}

void HelpPrintTest::blackOnWhiteWithEveryPalette() {
    const QPalette before = QApplication::palette();
    QPalette dark(Qt::yellow, Qt::black);
    dark.setColor(QPalette::Link, Qt::cyan);
    QApplication::setPalette(dark);
    HelpDesk desk;
    desk.AddPrinters();
    desk.Help.setHtml(
        "<body bgcolor=\"#202040\" text=\"white\"><h1>Topic</h1><p>Words and a <a href=\"#x\">link"
        "</a>.</p><table border=\"1\" bgcolor=\"navy\"><tr><td>Cell</td></tr></table></body>");
    const bool printed = desk.Print(PressPrint);
    QApplication::setPalette(before);
    QVERIFY(printed);
    const Shades shades = ShadesOf(desk.Server.Jobs.front().Pdf);
    QCOMPARE(shades.Lightest, 255);
    QVERIFY2(shades.Darkest < 100, qPrintable(QString::number(shades.Darkest)));
    QVERIFY2(shades.MostColour < 16, qPrintable(QString::number(shades.MostColour)));
}

void HelpPrintTest::picturesAreNotFetched() {
    HelpDesk desk;
    desk.AddPrinters();
    desk.Help.setHtml(
        "<p>Before</p><img src=\"file:///dev/zero\"/><img src=\"http://example.invalid/x.png\"/>"
        "<p>Behind</p>");
    QVERIFY(desk.Print(PressPrint)); // reading the first picture would never end
    QVERIFY(PdfText(desk.Server.Jobs.front().Pdf).contains("Behind"));
}

void HelpPrintTest::keyboardAndNames() {
    HelpDesk desk;
    desk.AddPrinters();
    QString mnemonics;
    QStringList names;
    QVERIFY(desk.Print([&](QWidget& dialog) {
        mnemonics = Mnemonics(dialog);
        for (const char* control : {"bPrintHelpNow", "bCancel"})
            names += SpokenName(*dialog.findChild<QWidget*>(control));
        names += dialog.findChild<QComboBox*>()->accessibleDescription();
        names += dialog.windowTitle();
        names += SpokenCodeNames(dialog);
        QTest::keyClick(&dialog, Qt::Key_Return);
    }));
    QCOMPARE(mnemonics, "CPR");
    QCOMPARE(names, QStringList({"Print", "Cancel", "Printer", "Print Help"}));
    QCOMPARE(desk.Server.Jobs.size(), std::size_t(1)); // Enter pressed "Print"
}

void HelpPrintTest::pdfHasTheHelpsName() {
    QWidget parent;
    const auto dialog = PdfDialog(parent, "Ledgrove Help.pdf");
    QVERIFY(dialog->selectedFiles().first().endsWith("/Ledgrove Help.pdf"));
}

QTEST_MAIN(HelpPrintTest)
#include "HelpPrintTest.moc"
