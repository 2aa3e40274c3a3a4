#pragma once

#include "reports/windows/Printers.h"

#include <QString>
#include <functional>

namespace Ledgrove {

/// Something on its way to a printer.
struct PrinterSending {
    QString What; ///< as a sentence begins with it: "The report"
    PrintJob Job; ///< its PdfFile is filled in
    /// Writes the PDF to this path. Gives a sentence when it cannot be written, else "".
    std::function<QString(const QString& file)> Write;
    /// Asked when the PDF is written; true leaves the printer alone. May be empty.
    std::function<bool()> WasStopped;
};

/// Writes the PDF into a temporary folder and sends it when it is whole, so that a stopped one leaves no
/// pages at the printer. Gives a sentence when nothing was printed by a fault, else "".
QString SendToPrinter(const PrinterSending& sending, PrintServer& server);

} // namespace Ledgrove
