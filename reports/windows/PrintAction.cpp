#include "reports/windows/PrintAction.h"

#include "reports/windows/frmReportSelection.h"
#include "ui/windows/HelpWindow.h"

namespace Ledgrove {

std::function<void()> PrintAction(Session& session, Host& outside, PrintServer& printers,
                                  const SectionMemory& sections) {
    return [&session, &outside, &printers, sections] {
        PrintOutside machine = RealOutside(printers);
        machine.Sections = sections;
        frmReportSelection(session, outside, machine, ActiveForm()).exec();
    };
}

} // namespace Ledgrove
