#include "ui/windows/FormGuard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QSlider>
#include <QTabBar>
#include <QTimer>

namespace Ledgrove {

namespace {

void Click(QWidget& control, QPointF place) {
    const QPointer<QWidget> alive(&control);
    const QPointF onScreen = control.mapToGlobal(place);
    QMouseEvent press(QEvent::MouseButtonPress, place, onScreen, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &press);
    if (!alive)
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, place, onScreen, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &release);
}

/// Takes the next mouse press, and clicks its control later if `repeats`.
class PressFilter : public QObject {
public:
    explicit PressFilter(bool repeats)
        : m_repeats(repeats) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool isPress =
            event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
        if (m_done || !isPress || !watched->isWidgetType())
            return false;
        m_done = true;
        const auto& press = static_cast<QMouseEvent&>(*event);
        if (m_repeats && press.button() == Qt::LeftButton)
            Repeat(static_cast<QWidget&>(*watched), press.position());
        return true;
    }

private:
    static void Repeat(QWidget& control, QPointF place) {
        // An edit field selects its text when it gets the focus; a click would put the caret into the text.
        if (qobject_cast<QLineEdit*>(&control))
            return;
        QTimer::singleShot(0, &control, [&control, place] { Click(control, place); });
    }

    bool m_repeats;
    bool m_done = false;
};

bool TakesFocus(QWidget& widget, const QWidget& form) {
    widget.setFocus(Qt::ShortcutFocusReason);
    // hasFocus() is false until the form is active again after a message.
    return form.focusWidget() == &widget;
}

/// Whether the wheel would change a value of the control, instead of scrolling.
bool ChangesByWheel(const QWidget& widget) {
    return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QTabBar*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QSlider*>(&widget);
}

} // namespace

void FinishPendingPress(PendingPress press) {
    const bool isRefused = press == PendingPress::Refused;
    const bool isReleased = QGuiApplication::mouseButtons() == Qt::NoButton;
    if (!isRefused && !isReleased)
        return;
    auto* filter = new PressFilter(!isRefused);
    QCoreApplication::instance()->installEventFilter(filter);
    filter->deleteLater();
}

FormGuard::FormGuard(QWidget& form, WheelChanges wheel)
    : QObject(&form)
    , m_form(form)
    , m_wheel(wheel) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FormGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Shortcut && event->type() != QEvent::Wheel)
        return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != &m_form)
        return false;
    if (event->type() == QEvent::Shortcut)
        return widget->focusPolicy() != Qt::NoFocus && !TakesFocus(*widget, m_form);
    if (!ChangesByWheel(*widget) || (m_wheel == WheelChanges::Focused && widget->hasFocus()))
        return false;
    // The surroundings may scroll.
    event->ignore();
    return true;
}

} // namespace Ledgrove
