#include "reports/windows/PrintAction.h"

#include "reports/windows/frmReportSelection.h"

#include <QApplication>

namespace Ledgrove {

std::function<void()> PrintAction(Session& session, Host& outside, PrintServer& printers) {
    return [&session, &outside, &printers] {
        const PrintOutside machine = RealOutside(printers);
        frmReportSelection(session, outside, machine, QApplication::activeWindow()).exec();
    };
}

} // namespace Ledgrove
