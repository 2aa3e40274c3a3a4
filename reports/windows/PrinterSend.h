#pragma once

#include "engine/Host.h"
#include "reports/windows/Printers.h"

#include <QString>
#include <functional>

namespace Ledgrove {

/// A document to be sent to a printer.
struct PrinterSending {
    QString What; ///< as the start of a sentence: "The report"
    PrintJob Job; ///< SendToPrinter fills in its PdfFile
    /// Writes the PDF to this path. Returns a message if it cannot be written, else "".
    std::function<QString(const QString& file)> Write;
    /// Called when the PDF is written; if it returns true, nothing is sent. May be empty.
    std::function<bool()> WasStopped;
};

/// Whether `what` ("The report") is to be sent to this printer. Asks the user if the printer is paused, and
/// shows a message if it cannot print now. Call it before the document is composed.
bool MayPrint(const std::string& what, const std::string& printer, PrintServer& server, Host& outside);

/// Writes the PDF into a temporary folder and sends it when it is complete, so that a stopped print leaves no
/// pages at the printer. Returns a message if a fault prevented printing, else "".
QString SendToPrinter(const PrinterSending& sending, PrintServer& server);

} // namespace Ledgrove
