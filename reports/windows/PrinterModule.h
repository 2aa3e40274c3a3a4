#pragma once

#include <QtPlugin>
#include <memory>

#include "reports/windows/Printers.h"

namespace Ledgrove {

/// Reaches the machine's printers. It lives in a library of its own that is loaded when the printers are
/// first asked for: with all that it needs it would take a good part of the start.
class PrintServerFactory {
public:
    virtual ~PrintServerFactory() = default;

    virtual std::unique_ptr<PrintServer> Make() = 0;
};

} // namespace Ledgrove

#define LEDGROVE_PRINT_SERVER_FACTORY "ledgrove.PrintServerFactory"
Q_DECLARE_INTERFACE(Ledgrove::PrintServerFactory, LEDGROVE_PRINT_SERVER_FACTORY)
