#include "ui/windows/FormGuard.h"

#include <QApplication>
#include <QEvent>

namespace Ledgrove {

namespace {

class PressFilter : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool isPress =
            event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
        if (m_done || !isPress || !watched->isWidgetType())
            return false;
        m_done = true;
        return true;
    }

private:
    bool m_done = false;
};

bool TakesFocus(QWidget& widget) {
    widget.setFocus(Qt::ShortcutFocusReason);
    return widget.hasFocus();
}

} // namespace

void SwallowPendingPress() {
    auto* filter = new PressFilter;
    QCoreApplication::instance()->installEventFilter(filter);
    filter->deleteLater();
}

FormGuard::FormGuard(QWidget& form)
    : QObject(&form)
    , m_form(form) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FormGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Shortcut && event->type() != QEvent::Wheel)
        return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != &m_form || widget->focusPolicy() == Qt::NoFocus)
        return false;
    if (event->type() == QEvent::Shortcut)
        return !TakesFocus(*widget);
    return !widget->hasFocus();
}

} // namespace Ledgrove
