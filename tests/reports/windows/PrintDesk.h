#pragma once

#include "reports/windows/frmPrint.h"
#include "tests/ui/windows/DialogTest.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

// What the tests of the report's windows share.
namespace Ledgrove {

/// A print server as a script: it keeps what it is sent.
class ScriptedServer : public PrintServer {
public:
    struct Sent {
        PrintJob Job;
        QByteArray Pdf;
    };

    std::vector<PrinterDevice> Devices() override { return Printers; }
    PrinterDetails Details(const std::string& printer) override { return Known[printer]; }
    std::string Send(const PrintJob& job) override;

    std::vector<PrinterDevice> Printers;
    std::map<std::string, PrinterDetails> Known;
    std::string Refusal; ///< said to every job while it is not empty
    std::vector<Sent> Jobs;
};

/// The shipped settings, and a machine that answers as told.
struct PrintDesk : SettingsDesk {
    PrintDesk();

    /// Two printers: Lab, and Office with 600 dots per inch, which is the default one.
    void AddPrinters();
    /// Copies a shipped file into the program's folder.
    void Bring(const QString& file) const;

    ScriptedServer Server;
    QString LogoToChoose;
    QString PdfToChoose;
    int PdfAsked = 0;
    PrintOutside Machine;
};

/// The preview in front, of a report that is so many pages long. Its pages say "Sheet 1" and so on.
struct OpenPreview : PrintDesk, FormDriver {
    using Prepare = std::function<void(OpenPreview&)>;

    explicit OpenPreview(int pages = 1, const Prepare& prepare = {});

    QString Place() const { return LabelText("lblPlace"); }
    bool IsShown(const char* control) const { return Find(control).isVisible(); }
    void Choose(const char* list, int index) const;
    QString Chosen(const char* list) const;

    int Pages;
    int Compositions = 0;
    std::unique_ptr<frmPrint> Window;
};

/// The words of a PDF as they stand on its pages, and what is known of it. The bytes must be a whole PDF.
QString PdfText(const QByteArray& pdf);
QString PdfInfo(const QByteArray& pdf);

QByteArray BytesOf(const QString& file);

/// Presses what `press` does, and lets `act` act on the window of this name that opens meanwhile. False when
/// none opened.
bool WhileOpen(const char* window, const std::function<void()>& press,
               const std::function<void(QWidget&)>& act);

} // namespace Ledgrove
