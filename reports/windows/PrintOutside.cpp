#include "reports/windows/PrintOutside.h"

#include <QStringList>

#include "ui/windows/FileQuestions.h"
#include "ui/windows/UsersFolder.h"

namespace Ledgrove {

namespace {

/// The description and the patterns of a filter, separated by a bar.
constexpr const char* logoFilter = "Pictures (*.bmp,*.ico,*.rle,*.wmf) | *.bmp;*.ico;*.rle;*.wmf";

/// The filter in Qt's format.
QString ToolkitFilter(const char* filter) {
    const QStringList parts = QString(filter).split('|');
    return parts[0].trimmed() + " (" + parts[1].trimmed().replace(';', ' ') + ")";
}

QString Chosen(QFileDialog& dialog) {
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

std::unique_ptr<QFileDialog> LogoDialog(QWidget& parent) {
    auto dialog = std::make_unique<QFileDialog>(&parent, "Builder Logo Selection");
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setDefaultSuffix(".BMP");
    // The description already names the patterns.
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setNameFilter(ToolkitFilter(logoFilter));
    return dialog;
}

std::unique_ptr<QFileDialog> PdfDialog(QWidget& parent, const QString& pdfName) {
    auto dialog = std::make_unique<QFileDialog>(&parent, "Print to PDF");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    // The name gets its ending and its question afterwards: Qt would leave "Dr. Smith" without the ending.
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setNameFilter("PDF files (*.pdf)");
    dialog->setDirectory(UsersFolder(QStandardPaths::DocumentsLocation));
    dialog->selectFile(pdfName);
    return dialog;
}

PrintOutside RealOutside(PrintServer& server, const QString& pdfName) {
    return {server, [](QWidget& parent) { return Chosen(*LogoDialog(parent)); },
            [pdfName](QWidget& parent) {
                return NameToWrite(parent, Chosen(*PdfDialog(parent, pdfName)), ".pdf");
            },
            [] { return QDate::currentDate(); }};
}

} // namespace Ledgrove
