#include "ui/windows/ScrolledForm.h"

#include <QApplication>
#include <QTabWidget>
#include <algorithm>

namespace Ledgrove {

ScrolledForm::ScrolledForm(QWidget* form, QWidget* parent)
    : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    // A form without a size would be measured now, which takes time, and again before it is shown.
    form->resize(1, 1);
    setWidget(form);
    // After setWidget, which fills the form's background.
    form->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    m_focusChanges = connect(qApp, &QApplication::focusChanged, this,
                             [this](QWidget* /*old*/, QWidget* now) { BringIntoView(now); });
}

ScrolledForm::~ScrolledForm() {
    // The form's controls are deleted after this object's own part, and the focus moves among them.
    disconnect(m_focusChanges);
}

QSize ScrolledForm::SizeWithoutScrolling(int width) const {
    QSize smallest = widget()->minimumSizeHint();
    if (widget()->hasHeightForWidth())
        smallest.setHeight(widget()->heightForWidth(std::max(width, smallest.width())));
    return smallest;
}

QSize ScrolledForm::sizeHint() const {
    const QSize natural = widget()->sizeHint();
    if (natural.width() >= m_leastWidth)
        return natural;
    // Lines wrap less often in a wider form.
    return {m_leastWidth,
            widget()->hasHeightForWidth() ? widget()->heightForWidth(m_leastWidth) : natural.height()};
}

QSize ScrolledForm::minimumSizeHint() const {
    const QSize fewLines(fontMetrics().averageCharWidth() * 30, fontMetrics().lineSpacing() * 5);
    return fewLines.boundedTo(widget()->minimumSizeHint());
}

bool ScrolledForm::focusNextPrevChild(bool next) {
    // Not the scroll area's own, which shows the middle of a control that is larger than the view.
    return QAbstractScrollArea::focusNextPrevChild(next);
}

void ScrolledForm::BringIntoView(QWidget* control) {
    // If the form moved under a pressed mouse button, the release would miss the control.
    if (!control || !widget()->isAncestorOf(control) || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    // A tab strip comes into view with its page.
    if (auto* tabs = qobject_cast<QTabWidget*>(control->parentWidget()))
        control = tabs;
    // Of a control that is larger than the view, the top left part.
    const int around = fontMetrics().height();
    const QSize room = viewport()->size() - 2 * QSize(around, around);
    const QRect part(control->mapTo(widget(), QPoint()), control->size().boundedTo(room));
    ensureVisible(part.center().x(), part.center().y(), part.width() / 2 + around,
                  part.height() / 2 + around);
}

} // namespace Ledgrove
