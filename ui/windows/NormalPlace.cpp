#include "ui/windows/NormalPlace.h"

#include <QEvent>
#include <QWidget>

namespace Ledgrove {

namespace {

constexpr int settlingMilliseconds = 200;

} // namespace

NormalPlace::NormalPlace(QWidget& window)
    : QObject(&window)
    , m_window(window)
    , m_place(window.geometry()) {
    m_settled.setSingleShot(true);
    m_settled.setInterval(settlingMilliseconds);
    connect(&m_settled, &QTimer::timeout, this, &NormalPlace::Keep);
    window.installEventFilter(this);
}

void NormalPlace::Keep() {
    if (IsNormal())
        m_place = m_window.geometry();
}

bool NormalPlace::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (IsNormal())
            m_settled.start();
        break;
    case QEvent::WindowStateChange:
        FollowState();
        break;
    default:
        break;
    }
    return false;
}

bool NormalPlace::IsNormal() const {
    return !(m_window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized));
}

void NormalPlace::FollowState() {
    m_settled.stop();
    const bool isBack = m_wasMaximized && IsNormal();
    m_wasMaximized = m_window.isMaximized();
    if (isBack)
        m_window.setGeometry(m_place);
}

} // namespace Ledgrove
