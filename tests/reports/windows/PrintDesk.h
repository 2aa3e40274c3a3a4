#pragma once

#include "reports/windows/frmPrint.h"
#include "tests/ui/windows/DialogTest.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

// Shared by the tests of the report's windows.
namespace Ledgrove {

/// A scripted print server that keeps what it receives.
class ScriptedServer : public PrintServer {
public:
    struct Sent {
        PrintJob Job;
        QByteArray Pdf;
    };

    std::vector<PrinterDevice> Devices() override {
        ++Listed;
        return Printers;
    }
    PrinterDetails Details(const std::string& printer) override {
        ++Asked;
        return Known[printer];
    }
    PrinterCondition Condition(const std::string& /*printer*/) override { return Now; }
    std::string Send(const PrintJob& job) override;

    std::vector<PrinterDevice> Printers;
    std::map<std::string, PrinterDetails> Known;
    PrinterCondition Now; ///< of every printer
    std::string Refusal;  ///< the answer to every job, unless empty
    std::vector<Sent> Jobs;
    int Listed = 0; ///< requests for the list of printers
    int Asked = 0;  ///< requests for a printer's details
};

/// The shipped settings and a scripted computer.
struct PrintDesk : SettingsDesk {
    PrintDesk();

    /// Adds two printers: Lab, and Office with 600 dots per inch, which is the default printer.
    void AddPrinters();
    /// Copies a shipped file into the program's folder.
    void Bring(const QString& file) const;

    ScriptedServer Server;
    QString LogoToChoose;
    QString PdfToChoose;
    int PdfAsked = 0;
    PrintOutside Machine;
};

/// The same with printers and a comparison whose figures are not yet computed.
struct ComparisonDesk : PrintDesk {
    ComparisonDesk();
};

/// The open preview of a report with this number of pages. Its pages say "Sheet 1" and so on.
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

/// The text of a PDF in layout order, and its properties. The bytes must be a complete PDF.
QString PdfText(const QByteArray& pdf);
QString PdfInfo(const QByteArray& pdf);

QByteArray BytesOf(const QString& file);

/// Runs `press` and then `act` on the window of this name that opens. Returns false if no window opened.
bool WhileOpen(const char* window, const std::function<void()>& press,
               const std::function<void(QWidget&)>& act);

} // namespace Ledgrove
