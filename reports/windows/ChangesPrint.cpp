#include "reports/windows/ChangesPrint.h"

#include "reports/ChangesReport.h"
#include "reports/HeaderOptions.h"
#include "reports/windows/frmPrint.h"
#include "ui/windows/HelpWindow.h"

namespace Ledgrove {

void PreviewChanges(Session& session, Host& outside, const PrintOutside& machine, const ChangesAnswer& answer,
                    QWidget* above) {
    const ChangesReport report = MakeChangesReport(session, answer, Module1::StoredLogoOption(session));
    const auto write = [&report](PrintDocument& document) { modPrint::WriteChanges(document, report); };
    frmPrint({write, machine, "What changed?"}, session, outside, above).exec();
}

ChangesPrinter ChangesPrintAction(Session& session, Host& outside, PrintServer& printers) {
    return [&](const ChangesAnswer& answer) {
        PreviewChanges(session, outside, RealOutside(printers, "What Changed.pdf"), answer, ActiveForm());
    };
}

} // namespace Ledgrove
