#include "ui/windows/NormalPlace.h"

#include <QEvent>
#include <QWidget>
#include <utility>

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
    connect(&m_settled, &QTimer::timeout, this, &NormalPlace::TakeSettledPlace);
    window.installEventFilter(this);
}

void NormalPlace::Keep() {
    if (IsNormal() && !m_returns)
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
    m_returns = IsNormal() && (m_wasMaximized || m_returns);
    m_wasMaximized = m_window.isMaximized();
    m_settled.stop();
    if (m_returns)
        m_settled.start();
}

void NormalPlace::TakeSettledPlace() {
    // A window that is at its place is not moved: at a fractional scale, the same place may be another pixel.
    if (std::exchange(m_returns, false) && m_window.geometry() != m_place)
        m_window.setGeometry(m_place);
    else
        Keep();
}

} // namespace Ledgrove
