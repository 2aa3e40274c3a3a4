#pragma once

#include "reports/windows/Printers.h"

#include <QString>

class QWidget;

namespace Ledgrove {

struct PrintRequest {
    const PrintDocument& Document; ///< ended
    PrinterDevice Device;
    std::string PaperName;
    int Copies = 1;  ///< a PDF file always holds one copy
    QString PdfFile; ///< if the device is "Print to PDF"
};

/// Prints with a progress dialog above `parent`; if the user presses "Cancel", nothing is printed. Returns a
/// message if printing failed, else "".
QString RunPrint(const PrintRequest& request, PrintServer& server, QWidget& parent);

} // namespace Ledgrove
