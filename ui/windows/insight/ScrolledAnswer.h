#pragma once

#include <QScrollArea>

namespace Ledgrove {

/// Scrolls what has no room. A control that gets the focus comes into view whole, or its top left part if it
/// is larger than the view; Qt's own area stops at the current cell of a table.
class ScrolledAnswer : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrolledAnswer(QWidget* parent = nullptr);
    ~ScrolledAnswer() override;

protected:
    bool focusNextPrevChild(bool next) override;

private:
    void BringIntoView(const QWidget* control);

    QMetaObject::Connection m_focusChanges;
};

} // namespace Ledgrove
