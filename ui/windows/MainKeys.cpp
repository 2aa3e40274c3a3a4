#include "ui/windows/MainKeys.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <utility>

namespace Ledgrove {

namespace {

bool HandlesEnter(const QWidget& control) {
    return qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QPushButton*>(&control);
}

} // namespace

MainKeys::MainKeys(QWidget& window, EntryFocus& focus, std::function<void()> help)
    : QObject(&window)
    , m_window(window)
    , m_focus(focus)
    , m_help(std::move(help)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool MainKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    // Open pick lists and menus are separate windows and keep their keys; so does the menu bar.
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != &m_window || qobject_cast<const QMenuBar*>(widget))
        return false;
    return Take(static_cast<QKeyEvent&>(*event), *widget);
}

bool MainKeys::Take(const QKeyEvent& key, const QWidget& control) {
    if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    switch (key.key()) {
    case Qt::Key_Down:
        m_focus.NextField();
        return true;
    case Qt::Key_Up:
        m_focus.PreviousField();
        return true;
    case Qt::Key_F1:
        m_help();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (HandlesEnter(control))
            return false;
        m_focus.NextField();
        return true;
    default:
        return false;
    }
}

} // namespace Ledgrove
