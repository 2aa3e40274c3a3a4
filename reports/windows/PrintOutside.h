#pragma once

#include "reports/ReportChoices.h"
#include "reports/windows/Printers.h"

#include <QDate>
#include <QFileDialog>
#include <QString>
#include <functional>
#include <memory>

// What the report's windows need from the system.
namespace Ledgrove {

/// Lets the user choose a file in a dialog above `parent`; "" if none was chosen.
using FileChooser = std::function<QString(QWidget& parent)>;

struct PrintOutside {
    PrintServer& Server;
    FileChooser ChooseLogo;
    FileChooser ChoosePdf;
    std::function<QDate()> Today;
    SectionMemory Sections = {};
};

/// The real printers and file dialogs. `pdfName` is the suggested name of a PDF file.
PrintOutside RealOutside(PrintServer& server, const QString& pdfName = "Summary Report.pdf");

std::unique_ptr<QFileDialog> LogoDialog(QWidget& parent);
std::unique_ptr<QFileDialog> PdfDialog(QWidget& parent, const QString& pdfName = "Summary Report.pdf");

} // namespace Ledgrove
