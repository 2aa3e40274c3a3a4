#pragma once

#include <QTabWidget>

namespace Ledgrove {

/// The lower part of the main window: the tab strip with five detail panels.
class ResultPanels : public QTabWidget {
    Q_OBJECT

public:
    explicit ResultPanels(QWidget* parent = nullptr);
};

} // namespace Ledgrove
