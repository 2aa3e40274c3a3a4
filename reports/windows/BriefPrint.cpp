#include "reports/windows/BriefPrint.h"

#include "reports/Brief.h"
#include "reports/HeaderOptions.h"
#include "reports/windows/FrmPrintOptions.h"
#include "reports/windows/ReportFile.h"
#include "reports/windows/frmPrint.h"
#include "ui/windows/HelpWindow.h"

namespace Ledgrove {

namespace {

/// A message if the brief cannot be made for this comparison, else "".
std::string WhyNone(const Session& session) {
    return MakeBrief(session, 0, "").Missing;
}

bool AskForHeader(Session& session, Host& outside, const PrintOutside& machine) {
    HeaderOptions record;
    if (const auto fault = Module1::FillHeaderOptions(record, session)) {
        outside.ShowMessage({ApplicationTitle, Sentence(*fault), MessageIcon::Exclamation});
        return false;
    }
    FrmPrintOptions dialog(record, {session, outside, machine}, ActiveForm());
    dialog.setWindowTitle("Buyer's Brief: Names and Logo");
    return dialog.exec() == QDialog::Accepted;
}

} // namespace

void PreviewBrief(Session& session, Host& outside, const PrintOutside& machine, QWidget* above) {
    const Brief brief = MakeBrief(session, Module1::StoredLogoOption(session), PrintDate(machine.Today()));
    if (!brief.Missing.empty()) {
        outside.ShowMessage({ApplicationTitle, brief.Missing, MessageIcon::Exclamation});
        return;
    }
    const auto write = [&brief](PrintDocument& document) { modPrint::WriteBrief(document, brief); };
    frmPrint({write, machine, "Buyer's Brief"}, session, outside, above).exec();
}

std::function<void()> BriefAction(Session& session, Host& outside, PrintServer& printers) {
    return [&] {
        const PrintOutside machine = RealOutside(printers, "Buyer's Brief.pdf");
        // Nobody should enter names for a brief that cannot be made.
        if (WhyNone(session).empty() && !AskForHeader(session, outside, machine))
            return;
        PreviewBrief(session, outside, machine, ActiveForm());
    };
}

} // namespace Ledgrove
