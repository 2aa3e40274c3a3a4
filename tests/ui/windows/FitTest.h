#pragma once

#include <QScreen>
#include <QScrollBar>
#include <QTabBar>

#include "WindowTest.h"
#include "ui/windows/ScrolledForm.h"

// Shared by the tests that measure windows on the screen.
namespace Ledgrove {

inline QString PlaceOf(const QWidget& window) {
    return QString("%1 at %2, %3 with %4 x %5")
        .arg(window.objectName())
        .arg(window.x())
        .arg(window.y())
        .arg(window.width())
        .arg(window.height());
}

/// Whether the window is on the screen with a frame: a title bar of 30 pixels, and edges of 2.
inline bool IsOnScreen(const QWidget& window) {
    const QRect framed(window.pos(), window.size() + QSize(2 + 2, 30 + 2));
    return window.screen()->geometry().contains(framed);
}

inline bool HasRoom(const QSize& pixels) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    return screen.width() >= pixels.width() && screen.height() >= pixels.height();
}

inline bool IsWholeInView(const QWidget& control) {
    return control.visibleRegion().boundingRect() == control.rect();
}

/// The part of the window that scrolls.
inline ScrolledForm& FormOf(const QWidget& window) {
    auto* form = window.findChild<ScrolledForm*>();
    if (!form)
        qFatal("nothing scrolls in %s", qPrintable(window.objectName()));
    return *form;
}

/// Whether anything in the window scrolls now.
inline bool Scrolls(const QWidget& window) {
    for (const ScrolledForm* form : window.findChildren<ScrolledForm*>()) {
        if (form->isVisible() &&
            (form->verticalScrollBar()->maximum() > 0 || form->horizontalScrollBar()->maximum() > 0))
            return true;
    }
    return false;
}

/// Walks with Tab once around the form. Returns the first control that gets the focus without coming into
/// view, or "". Of a tab strip, the top left part is enough.
inline QString HiddenStop(const FormDriver& form) {
    form.Form->activateWindow();
    if (!QTest::qWaitForWindowActive(form.Form))
        return "no active window";
    const QWidget* first = form.Form->focusWidget();
    int stops = 0;
    do {
        form.Press(Qt::Key_Tab);
        const QWidget* focused = form.Form->focusWidget();
        const QRect seen = focused->visibleRegion().boundingRect();
        const bool isStrip = qobject_cast<const QTabBar*>(focused) != nullptr;
        if (isStrip ? !seen.contains(0, 0) : !IsWholeInView(*focused))
            return focused->objectName();
        ++stops;
    } while (form.Form->focusWidget() != first && stops < 100);
    return stops > 2 ? QString() : "too few stops";
}

} // namespace Ledgrove
