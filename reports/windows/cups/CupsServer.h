#pragma once

#include "reports/windows/Printers.h"

namespace Ledgrove {

/// The system's print server, or the one that CUPS_SERVER names.
class CupsServer : public PrintServer {
public:
    std::vector<PrinterDevice> Devices() override;
    PrinterDetails Details(const std::string& printer) override;
    PrinterCondition Condition(const std::string& printer) override;
    std::string Send(const PrintJob& job) override;
};

} // namespace Ledgrove
