#pragma once

#include <QGroupBox>

namespace Ledgrove {

/// A group of controls under a bold heading. It has no frame: Qt blends a group's frame line by line on
/// several threads, and reads a picture for it with every image plugin, which a start would have to wait for.
class HeadedGroup : public QGroupBox {
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Ledgrove
