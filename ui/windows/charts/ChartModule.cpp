#include <QObject>

#include "ui/windows/charts/QtChart.h"

namespace Ledgrove {

/// The factory that the program finds in the loaded library.
class ChartModule : public QObject, public ChartFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LEDGROVE_CHART_FACTORY)
    Q_INTERFACES(Ledgrove::ChartFactory)

public:
    ChartWidget* Make(ChartKind kind, QWidget* parent) override { return MakeQtChart(kind, parent); }
};

} // namespace Ledgrove

#include "ChartModule.moc"
