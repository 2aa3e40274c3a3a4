#include <QObject>

#include "reports/windows/PrinterModule.h"
#include "reports/windows/cups/CupsServer.h"

namespace Ledgrove {

/// The factory that the program finds in the loaded library.
class CupsModule : public QObject, public PrintServerFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LEDGROVE_PRINT_SERVER_FACTORY)
    Q_INTERFACES(Ledgrove::PrintServerFactory)

public:
    std::unique_ptr<PrintServer> Make() override { return std::make_unique<CupsServer>(); }
};

} // namespace Ledgrove

#include "CupsModule.moc"
