#include "reports/windows/PrintRun.h"

#include "reports/windows/PdfOutput.h"
#include "reports/windows/PrinterSend.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressDialog>

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
        auto* const label = new QLabel;
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText); // a printer's name may look like HTML
        m_dialog.setLabel(label);
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

} // namespace

QString RunPrint(const PrintRequest& request, PrintServer& server, QWidget& parent) {
    ProgressTeller progress(request, parent);
    if (IsPdf(request.Device))
        return WritePdf(request.Document, request.PdfFile,
                        [&progress](std::size_t page) { return progress.Tell(page); });
    return SendToPrinter(
        {"The report",
         {request.Device.Name, request.Document.Title, {}, request.PaperName, request.Copies},
         [&](const QString& file) {
             return WritePdf(request.Document, file,
                             [&progress](std::size_t page) { return progress.Tell(page); });
         },
         [&progress] { return progress.WasStopped(); }},
        server);
}

} // namespace Ledgrove
