#include "reports/windows/PrintRun.h"

#include "reports/windows/PdfOutput.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <QTemporaryDir>

namespace Ledgrove {

namespace {

class ProgressTeller {
public:
    ProgressTeller(const PrintRequest& request, QWidget& parent)
        : m_request(request)
        , m_dialog(&parent) {
        m_dialog.setObjectName("PrintProgress");
        m_dialog.setWindowTitle(QString::fromStdString(request.Document.Title));
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setCancelButtonText("Cancel");
        m_dialog.setRange(0, static_cast<int>(request.Document.PageCount()));
        m_dialog.setAutoReset(false);
        m_dialog.setAutoClose(false);
        m_dialog.setMinimumDuration(0);
    }

    bool Tell(std::size_t page) {
        m_dialog.setLabelText(
            QString::fromStdString(ProgressText(page, m_request.Document.Title, m_request.Device)));
        m_dialog.setValue(static_cast<int>(page) - 1);
        m_dialog.show();
        QCoreApplication::processEvents();
        return !WasStopped();
    }

    bool WasStopped() const { return m_dialog.wasCanceled(); }

private:
    const PrintRequest& m_request;
    QProgressDialog m_dialog;
};

QString NotTaken(const PrintRequest& request, std::string reason) {
    while (reason.ends_with('.'))
        reason.pop_back();
    return QString("The report was not printed: the printer \"%1\" did not take it (%2). Choose another "
                   "printer, or try again when this one is ready.")
        .arg(QString::fromStdString(request.Device.Name), QString::fromStdString(reason));
}

QString SendToPrinter(const PrintRequest& request, PrintServer& server, ProgressTeller& progress) {
    // A printer gets the report only when it is whole, so that a stopped one leaves no pages there.
    const QTemporaryDir folder;
    if (!folder.isValid())
        return "The report was not printed: there is no room for it in the folder of temporary files (" +
               folder.errorString() + ").";
    const QString file = folder.filePath("report.pdf");
    const QString fault =
        WritePdf(request.Document, file, [&progress](std::size_t page) { return progress.Tell(page); });
    if (!fault.isEmpty() || progress.WasStopped())
        return fault;
    const std::string reason = server.Send(
        {request.Device.Name, request.Document.Title, file.toStdString(), request.PaperName, request.Copies});
    return reason.empty() ? QString() : NotTaken(request, reason);
}

} // namespace

QString RunPrint(const PrintRequest& request, PrintServer& server, QWidget& parent) {
    ProgressTeller progress(request, parent);
    if (IsPdf(request.Device))
        return WritePdf(request.Document, request.PdfFile,
                        [&progress](std::size_t page) { return progress.Tell(page); });
    return SendToPrinter(request, server, progress);
}

} // namespace Ledgrove
