#include "reports/windows/PrinterSend.h"

#include <QTemporaryDir>

namespace Ledgrove {

namespace {

QString NotTaken(const PrinterSending& sending, std::string reason) {
    while (reason.ends_with('.'))
        reason.pop_back();
    return QString("%1 was not printed: the printer \"%2\" did not accept it (%3). Choose another "
                   "printer, or try again when this one is ready.")
        .arg(sending.What, QString::fromStdString(sending.Job.Printer), QString::fromStdString(reason));
}

} // namespace

QString SendToPrinter(const PrinterSending& sending, PrintServer& server) {
    const QTemporaryDir folder;
    if (!folder.isValid())
        return QString("%1 was not printed: no temporary folder could be created (%2).")
            .arg(sending.What, folder.errorString());
    const QString file = folder.filePath("print.pdf");
    const QString fault = sending.Write(file);
    if (!fault.isEmpty() || (sending.WasStopped && sending.WasStopped()))
        return fault;
    PrintJob job = sending.Job;
    job.PdfFile = file.toStdString();
    const std::string reason = server.Send(job);
    return reason.empty() ? QString() : NotTaken(sending, reason);
}

} // namespace Ledgrove
