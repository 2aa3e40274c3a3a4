#pragma once

#include <QScrollArea>

namespace Ledgrove {

/// Shows a form whole where there is room and scrolls it where there is none. It has no frame and no focus of
/// its own, and the background shows through, so on a large screen it cannot be seen.
class ScrolledForm : public QScrollArea {
    Q_OBJECT

public:
    /// Takes `form`, which may get its layout and controls later. A control of the form that gets the focus
    /// comes into view.
    explicit ScrolledForm(QWidget* form, QWidget* parent = nullptr);
    ~ScrolledForm() override;

    /// Makes the natural size at least this wide, as the rest of the window is.
    void WidenTo(int width) { m_leastWidth = width; }

    /// The smallest size of the form that does not scroll, in a view of this width.
    QSize SizeWithoutScrolling(int width) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool focusNextPrevChild(bool next) override;

private:
    void BringIntoView(QWidget* control);

    int m_leastWidth = 0;
    QMetaObject::Connection m_focusChanges;
};

} // namespace Ledgrove
