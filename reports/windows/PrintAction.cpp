#include "reports/windows/PrintAction.h"

#include "reports/windows/frmReportSelection.h"

#include <QApplication>

namespace Ledgrove {

std::function<void()> PrintAction(Session& session, Host& outside) {
    return [&session, &outside] {
        CupsServer server;
        const PrintOutside machine = RealOutside(server);
        frmReportSelection(session, outside, machine, QApplication::activeWindow()).exec();
    };
}

} // namespace Ledgrove
