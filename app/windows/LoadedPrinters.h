#pragma once

#include <QString>
#include <memory>

#include "engine/Host.h"
#include "reports/windows/Printers.h"

namespace Ledgrove {

/// The system's printers, from a library in `folder`/modules that is loaded on first use. If it cannot be
/// loaded, each use shows a message through `outside`, and there are no printers.
class LoadedPrinters : public PrintServer {
public:
    LoadedPrinters(QString folder, Host& outside);

    std::vector<PrinterDevice> Devices() override;
    PrinterDetails Details(const std::string& printer) override;
    PrinterCondition Condition(const std::string& printer) override;
    std::string Send(const PrintJob& job) override;

private:
    QString m_folder;
    Host& m_outside;
    std::unique_ptr<PrintServer> m_server;
};

} // namespace Ledgrove
