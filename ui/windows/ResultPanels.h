#pragma once

#include <QTabWidget>

namespace Ledgrove {

/// The lower part of the main window: the tab strip with five detail panels.
class ResultPanels : public QTabWidget {
    Q_OBJECT

public:
    explicit ResultPanels(QWidget* parent = nullptr);

    /// The smallest height at this width: the charts shrink before the window scrolls.
    int heightForWidth(int width) const override;
    /// The height at this width that gives the charts their natural size.
    int NaturalHeight(int width) const { return QTabWidget::heightForWidth(width); }
};

} // namespace Ledgrove
