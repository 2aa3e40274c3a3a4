#include "reports/windows/PrinterSend.h"

#include <QTemporaryDir>
#include <utility>

namespace Ledgrove {

namespace {

QString NotTaken(const PrinterSending& sending, std::string refusal, PrintServer& server) {
    PrinterCondition condition = server.Condition(sending.Job.Printer);
    if (condition.State == PrinterState::Ready || condition.State == PrinterState::Paused)
        condition.Reason = std::move(refusal);
    return QString::fromStdString(NotPrinted(sending.What.toStdString(), sending.Job.Printer, condition));
}

} // namespace

bool MayPrint(const std::string& what, const std::string& printer, PrintServer& server, Host& outside) {
    const PrinterCondition condition = server.Condition(printer);
    switch (condition.State) {
    case PrinterState::Ready:
        return true;
    case PrinterState::Paused:
        return outside.ShowMessage({ApplicationTitle, PausedQuestion(what, printer, condition.Reason),
                                    MessageIcon::Question, MessageButtons::YesNo}) == MessageAnswer::Yes;
    case PrinterState::Refusing:
    case PrinterState::Removed:
    case PrinterState::NoService:
        break;
    }
    outside.ShowMessage({ApplicationTitle, NotPrinted(what, printer, condition), MessageIcon::Exclamation});
    return false;
}

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
    std::string refusal = server.Send(job);
    return refusal.empty() ? QString() : NotTaken(sending, std::move(refusal), server);
}

} // namespace Ledgrove
