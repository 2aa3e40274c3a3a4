#include "reports/windows/PrintAction.h"

#include "reports/windows/frmReportSelection.h"
#include "ui/windows/HelpWindow.h"

namespace Ledgrove {

std::function<void()> PrintAction(Session& session, Host& outside, PrintServer& printers) {
    return [&session, &outside, &printers] {
        const PrintOutside machine = RealOutside(printers);
        frmReportSelection(session, outside, machine, ActiveForm()).exec();
    };
}

} // namespace Ledgrove
