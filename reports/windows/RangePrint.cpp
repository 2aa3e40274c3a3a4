#include "reports/windows/RangePrint.h"

#include "reports/HeaderOptions.h"
#include "reports/RangeReport.h"
#include "reports/windows/frmPrint.h"
#include "ui/windows/HelpWindow.h"

namespace Ledgrove {

void PreviewRange(Session& session, Host& outside, const PrintOutside& machine, const Range& range,
                  QWidget* above) {
    const RangeReport report = MakeRangeReport(session, range, Module1::StoredLogoOption(session));
    const auto write = [&report](PrintDocument& document) { modPrint::WriteRange(document, report); };
    PreviewParts parts{write, machine, "House Range"};
    parts.Orientation = PageOrientation::Landscape;
    frmPrint(parts, session, outside, above).exec();
}

RangePrinter RangePrintAction(Session& session, Host& outside, PrintServer& printers) {
    return [&](const Range& range) {
        PreviewRange(session, outside, RealOutside(printers, "House Range.pdf"), range, ActiveForm());
    };
}

} // namespace Ledgrove
