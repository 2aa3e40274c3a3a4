#pragma once

#include <QString>
#include <memory>

#include "engine/Host.h"
#include "reports/windows/Printers.h"

namespace Ledgrove {

/// The machine's printers by the library of `folder`/modules, which is loaded when they are first asked for.
/// Where it cannot be, that is said through `outside` each time, and there are no printers.
class LoadedPrinters : public PrintServer {
public:
    LoadedPrinters(QString folder, Host& outside);

    std::vector<PrinterDevice> Devices() override;
    PrinterDetails Details(const std::string& printer) override;
    std::string Send(const PrintJob& job) override;

private:
    QString m_folder;
    Host& m_outside;
    std::unique_ptr<PrintServer> m_server;
};

} // namespace Ledgrove
