#include "PrintDesk.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryFile>
#include <QTimer>

namespace Ledgrove {

namespace {

QString RunOn(const QByteArray& pdf, const QString& program, const QStringList& options) {
    QTemporaryFile file;
    if (!file.open() || file.write(pdf) != pdf.size() || !file.flush())
        qFatal("no space for a PDF");
    QProcess process;
    process.start(program, options + QStringList{file.fileName()} +
                               (program == "pdftotext" ? QStringList{"-"} : QStringList()));
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s does not read the PDF: %s", qPrintable(program), process.readAllStandardError().data());
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

std::string ScriptedServer::Send(const PrintJob& job) {
    if (Refusal.empty())
        Jobs.push_back({job, BytesOf(QString::fromStdString(job.PdfFile))});
    return Refusal;
}

PrintDesk::PrintDesk()
    : Machine{Server, [this](QWidget&) { return LogoToChoose; },
              [this](QWidget&) {
                  ++PdfAsked;
                  return PdfToChoose;
              },
              [] { return QDate(2026, 11, 20); }} {}

void PrintDesk::AddPrinters() {
    Server.Printers = {{"Lab", "socket://lab", "Generic PCL"},
                       {"Office", "ipp://printserver/office", "Laser 600", true}};
    Server.Known["Office"].Resolution = 600;
}

void PrintDesk::Bring(const QString& file) const {
    if (!QFile::copy(LEDGROVE_SOURCE_DIR "/data/" + file, Folder.filePath(file)))
        qFatal("%s is not shipped", qPrintable(file));
}

ComparisonDesk::ComparisonDesk() {
    AddPrinters();
    MainScreen& screen = State.Screen;
    screen.ecIncome.Text = "$72,000";
    screen.ecPctDown.Text = "10.00%";
    screen.ecStdHome.Text = "$200,000";
    screen.ecGMHHome.Text = "$206,000";
    screen.ecStdUtil.Text = "$2,400";
    screen.ecGMHUtil.Text = "$1,700";
}

OpenPreview::OpenPreview(int pages, const Prepare& prepare)
    : Pages(pages) {
    if (prepare)
        prepare(*this);
    const auto write = [this](PrintDocument& document) {
        ++Compositions;
        for (int page = 1; page <= Pages; ++page) {
            if (page > 1)
                document.NewPage();
            document.Paragraph("Sheet " + std::to_string(page));
        }
    };
    Window = std::make_unique<frmPrint>(PreviewParts{write, Machine}, State, Outside);
    Form = Window.get();
    Window->show();
    if (!QTest::qWaitForWindowActive(Window.get()))
        qFatal("the preview does not become active");
}

void OpenPreview::Choose(const char* list, int index) const {
    Find<QComboBox>(list).setCurrentIndex(index);
}

QString OpenPreview::Chosen(const char* list) const {
    return Find<QComboBox>(list).currentText();
}

QString PdfText(const QByteArray& pdf) {
    return RunOn(pdf, "pdftotext", {"-layout"});
}

QString PdfInfo(const QByteArray& pdf) {
    return RunOn(pdf, "pdfinfo", {"-f", "1", "-l", "-1"});
}

QByteArray BytesOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool WhileOpen(const char* window, const std::function<void()>& press,
               const std::function<void(QWidget&)>& act) {
    bool opened = false;
    QTimer::singleShot(0, [&] {
        QWidget* open = QApplication::activeModalWidget();
        if (!open || open->objectName() != window)
            return;
        opened = true;
        act(*open);
    });
    press();
    QCoreApplication::processEvents();
    return opened;
}

} // namespace Ledgrove
