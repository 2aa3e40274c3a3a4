#include "app/windows/ChartLoader.h"

#include <QPluginLoader>

namespace Ledgrove {

ChartSource LoadCharts(const QString& folder) {
    QPluginLoader loader(folder + "/modules/ledgrove-charts.so");
    if (auto* factory = qobject_cast<ChartFactory*>(loader.instance()))
        return {factory, {}};
    return {nullptr, "The chart cannot be shown: " + loader.errorString()};
}

} // namespace Ledgrove
