#pragma once

#include "reports/PreviewState.h"
#include "reports/PrinterWords.h"

#include <string>
#include <vector>

// The printers that the report can go to.
namespace Ledgrove {

/// A PDF file for a printer. Copies are collated: pages 1, 2, 1, 2.
struct PrintJob {
    std::string Printer; ///< its name
    std::string Title;
    std::string PdfFile; ///< full path
    std::string PaperName;
    int Copies = 1;
};

/// The print server's interface for the windows.
class PrintServer {
public:
    virtual ~PrintServer() = default;

    /// All printers of the server; empty if there is no server.
    virtual std::vector<PrinterDevice> Devices() = 0;
    virtual PrinterDetails Details(const std::string& printer) = 0;
    /// Whether the printer can print now. Asks the server each time.
    virtual PrinterCondition Condition(const std::string& printer) = 0;
    /// Why the server refused the job, in the server's words; "" if it accepted the job.
    virtual std::string Send(const PrintJob& job) = 0;
};

/// The device that always exists: a PDF file, whose name the program asks for when it prints.
PrinterDevice PdfDevice();
PrinterDetails PdfDetails();
bool IsPdf(const PrinterDevice& device);

/// The server's printers, followed by "Print to PDF".
std::vector<PrinterDevice> AllDevices(PrintServer& server);

/// The index of the server's default printer; otherwise of its first printer; otherwise of "Print to PDF".
std::size_t DefaultDevice(const std::vector<PrinterDevice>& devices);

} // namespace Ledgrove
