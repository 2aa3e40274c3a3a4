#include "app/windows/LoadedPrinters.h"

#include <QPluginLoader>
#include <utility>

#include "reports/windows/PrinterModule.h"
#include "ui/windows/QtHost.h"

namespace Ledgrove {

LoadedPrinters::LoadedPrinters(QString folder, Host& outside)
    : m_folder(std::move(folder))
    , m_outside(outside) {}

std::vector<PrinterDevice> LoadedPrinters::Devices() {
    if (!m_server) {
        const QString file = m_folder + "/modules/ledgrove-printers.so";
        QPluginLoader loader(file);
        auto* const factory = qobject_cast<PrintServerFactory*>(loader.instance());
        if (!factory) {
            const QString sentence =
                QString("The printers of this computer are not available, because \"%1\" does "
                        "not load: %2 \"Print to PDF\" still works.")
                    .arg(file, loader.errorString());
            m_outside.ShowMessage({ApplicationTitle, sentence.toStdString(), MessageIcon::Exclamation});
            return {};
        }
        m_server = factory->Make();
    }
    return m_server->Devices();
}

// The caller only asks about listed devices, so the library is loaded.
PrinterDetails LoadedPrinters::Details(const std::string& printer) {
    return m_server ? m_server->Details(printer) : PrinterDetails();
}

PrinterCondition LoadedPrinters::Condition(const std::string& printer) {
    return m_server ? m_server->Condition(printer) : PrinterCondition{PrinterState::NoService, {}};
}

std::string LoadedPrinters::Send(const PrintJob& job) {
    return m_server ? m_server->Send(job) : "the printers of this computer are not available";
}

} // namespace Ledgrove
