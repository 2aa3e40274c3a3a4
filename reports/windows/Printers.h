#pragma once

#include "reports/PreviewState.h"

#include <string>
#include <vector>

// The printers that the report can go to.
namespace Ledgrove {

/// A PDF file on its way to a printer.
struct PrintJob {
    std::string Printer; ///< its name
    std::string Title;
    std::string PdfFile; ///< full path
    std::string PaperName;
    int Copies = 1;
};

/// The print server as the windows need it.
class PrintServer {
public:
    virtual ~PrintServer() = default;

    /// Every printer it has; none where there is no server.
    virtual std::vector<PrinterDevice> Devices() = 0;
    virtual PrinterDetails Details(const std::string& printer) = 0;
    /// Why the job was not taken, in the server's words; "" when it was.
    virtual std::string Send(const PrintJob& job) = 0;
};

/// The device that is always there: a PDF file whose name is asked for when it is printed.
PrinterDevice PdfDevice();
PrinterDetails PdfDetails();
bool IsPdf(const PrinterDevice& device);

/// The server's printers and "Print to PDF" behind them.
std::vector<PrinterDevice> AllDevices(PrintServer& server);

/// The index of the server's default printer, else of its first one, else of "Print to PDF".
std::size_t DefaultDevice(const std::vector<PrinterDevice>& devices);

} // namespace Ledgrove
