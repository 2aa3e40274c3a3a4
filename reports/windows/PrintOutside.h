#pragma once

#include "reports/windows/Printers.h"

#include <QDate>
#include <QFileDialog>
#include <QString>
#include <functional>
#include <memory>

// What the report's windows ask of the machine.
namespace Ledgrove {

/// Lets the user choose a file, asking above `parent`; "" when none was chosen.
using FileChooser = std::function<QString(QWidget& parent)>;

struct PrintOutside {
    PrintServer& Server;
    FileChooser ChooseLogo;
    FileChooser ChoosePdf;
    std::function<QDate()> Today;
};

/// The machine as it is. A PDF file is called `pdfName` until the user calls it otherwise.
PrintOutside RealOutside(PrintServer& server, const QString& pdfName = "Summary Report.pdf");

std::unique_ptr<QFileDialog> LogoDialog(QWidget& parent);
std::unique_ptr<QFileDialog> PdfDialog(QWidget& parent, const QString& pdfName = "Summary Report.pdf");

} // namespace Ledgrove
