#include <QObject>

#include "ui/windows/insight/frmChanges.h"
#include "ui/windows/insight/frmInsight.h"

namespace Ledgrove {

/// The factory that the program finds in the loaded library.
class InsightModule : public QObject, public InsightFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LEDGROVE_INSIGHT_FACTORY)
    Q_INTERFACES(Ledgrove::InsightFactory)

public:
    InsightWindow* Make(InsightContext context) override { return new frmInsight(std::move(context)); }
    ChangesWindow* MakeChanges(ChangesContext context) override { return new frmChanges(std::move(context)); }
};

} // namespace Ledgrove

#include "InsightModule.moc"
