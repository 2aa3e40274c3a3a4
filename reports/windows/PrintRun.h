#pragma once

#include "reports/windows/Printers.h"

#include <QString>

class QWidget;

namespace Ledgrove {

struct PrintRequest {
    const PrintDocument& Document; ///< ended
    PrinterDevice Device;
    std::string PaperName;
    int Copies = 1;  ///< a PDF file holds one whatever is asked
    QString PdfFile; ///< where the device is "Print to PDF"
};

/// Prints with a progress dialog above `parent`; its "Cancel" leaves nothing printed. Gives a sentence when
/// the printing failed, else "".
QString RunPrint(const PrintRequest& request, PrintServer& server, QWidget& parent);

} // namespace Ledgrove
