#pragma once

#include <QtPlugin>
#include <memory>

#include "reports/windows/Printers.h"

namespace Ledgrove {

/// Gives access to the system's printers. It is in a separate library that the program loads when it first
/// needs the printers, because loading it takes a large part of the start-up time.
class PrintServerFactory {
public:
    virtual ~PrintServerFactory() = default;

    virtual std::unique_ptr<PrintServer> Make() = 0;
};

} // namespace Ledgrove

#define LEDGROVE_PRINT_SERVER_FACTORY "ledgrove.PrintServerFactory"
Q_DECLARE_INTERFACE(Ledgrove::PrintServerFactory, LEDGROVE_PRINT_SERVER_FACTORY)
