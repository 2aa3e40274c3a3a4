#include "app/windows/TaxLineTip.h"

#include "ui/TaxLine.h"
#include "ui/windows/Labels.h"

namespace Ledgrove {

void PointOutTaxLine(const frmMain& window, const Session& session) {
    const QString tip = IsTaxLineOff(session) ? "checked: see Insight" : "";
    for (const char* const label : {"lblTaxSavMo", "lblTaxSavYr", "lbltaxsavmo2"})
        window.findChild<ResultLabel*>(label)->setToolTip(tip);
}

} // namespace Ledgrove
