#include "ui/windows/insight/ScrolledAnswer.h"

#include <QApplication>

namespace Ledgrove {

ScrolledAnswer::ScrolledAnswer(QWidget* parent)
    : QScrollArea(parent) {
    setObjectName("Scrolled");
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    m_focusChanges = connect(qApp, &QApplication::focusChanged, this,
                             [this](QWidget* /*old*/, QWidget* now) { BringIntoView(now); });
}

ScrolledAnswer::~ScrolledAnswer() {
    // The focus moves among the controls while they are deleted.
    disconnect(m_focusChanges);
}

bool ScrolledAnswer::focusNextPrevChild(bool next) {
    return QAbstractScrollArea::focusNextPrevChild(next);
}

void ScrolledAnswer::BringIntoView(const QWidget* control) {
    // If the controls moved under a pressed mouse button, the release would miss this one.
    if (!control || !widget()->isAncestorOf(control) || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    const QRect part(control->mapTo(widget(), QPoint()), control->size().boundedTo(viewport()->size()));
    ensureVisible(part.center().x(), part.center().y(), part.width() / 2 + 1, part.height() / 2 + 1);
}

} // namespace Ledgrove
