#include "reports/windows/InsightPrint.h"

#include "reports/HeaderOptions.h"
#include "reports/InsightReport.h"
#include "reports/windows/frmPrint.h"
#include "ui/windows/HelpWindow.h"

namespace Ledgrove {

void PreviewInsight(Session& session, Host& outside, const PrintOutside& machine,
                    const std::vector<InsightQuestion>& questions, const std::string& figure,
                    QWidget* above) {
    const InsightReport report =
        MakeInsightReport(session, {questions, figure, UsualBy, Module1::StoredLogoOption(session)});
    if (!report.Missing.empty()) {
        outside.ShowMessage({ApplicationTitle, report.Missing, MessageIcon::Exclamation});
        return;
    }
    const auto write = [&report](PrintDocument& document) { modPrint::WriteInsight(document, report); };
    frmPrint({write, machine, "Insight"}, session, outside, above).exec();
}

InsightPrinter InsightPrintAction(Session& session, Host& outside, PrintServer& printers) {
    return [&](const std::vector<InsightQuestion>& questions, const std::string& figure) {
        PreviewInsight(session, outside, RealOutside(printers, "Insight.pdf"), questions, figure,
                       ActiveForm());
    };
}

} // namespace Ledgrove
