#include "reports/windows/InsightPrint.h"

#include "reports/HeaderOptions.h"
#include "reports/windows/frmPrint.h"
#include "ui/windows/HelpWindow.h"

namespace Ledgrove {

void PreviewInsight(Session& session, Host& outside, const PrintOutside& machine, InsightRequest request,
                    QWidget* above) {
    request.LogoOption = Module1::StoredLogoOption(session);
    const InsightReport report = MakeInsightReport(session, request);
    if (!report.Missing.empty()) {
        outside.ShowMessage({ApplicationTitle, report.Missing, MessageIcon::Exclamation});
        return;
    }
    const auto write = [&report](PrintDocument& document) { modPrint::WriteInsight(document, report); };
    frmPrint({write, machine, "Insight"}, session, outside, above).exec();
}

InsightPrinter InsightPrintAction(Session& session, Host& outside, PrintServer& printers) {
    return [&](const InsightRequest& request) {
        PreviewInsight(session, outside, RealOutside(printers, "Insight.pdf"), request, ActiveForm());
    };
}

} // namespace Ledgrove
