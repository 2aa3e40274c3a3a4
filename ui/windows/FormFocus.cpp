#include "ui/windows/FormFocus.h"

#include <QLineEdit>

#include "ui/windows/EntryField.h"

namespace Ledgrove {

namespace {

using Step = QWidget* (QWidget::*)() const;

bool IsTabStop(const QWidget& widget, const QWidget& form) {
    return (widget.focusPolicy() & Qt::TabFocus) && widget.isEnabled() && widget.isVisibleTo(&form) &&
           widget.window() == &form && !widget.focusProxy();
}

void MoveFocus(QWidget& form, Step step, Qt::FocusReason reason) {
    QWidget* from = form.focusWidget() ? form.focusWidget() : &form;
    for (QWidget* widget = (from->*step)(); widget != from; widget = (widget->*step)()) {
        if (IsTabStop(*widget, form))
            return widget->setFocus(reason);
    }
}

} // namespace

std::string FormFocus::FocusedControl() const {
    // focusWidget() also works while another window is active.
    const QWidget* focused = m_form.focusWidget();
    return focused ? focused->objectName().toStdString() : std::string();
}

void FormFocus::ReturnFocusTo(const Field& field) {
    for (EntryField* entry : m_form.findChildren<EntryField*>()) {
        if (entry->Shows(field))
            entry->setFocus(Qt::OtherFocusReason);
    }
}

void FormFocus::SelectFieldText() {
    if (auto* edit = qobject_cast<QLineEdit*>(m_form.focusWidget()))
        edit->selectAll();
}

void FormFocus::NextField() {
    MoveFocus(m_form, &QWidget::nextInFocusChain, Qt::TabFocusReason);
}

void FormFocus::PreviousField() {
    MoveFocus(m_form, &QWidget::previousInFocusChain, Qt::BacktabFocusReason);
}

} // namespace Ledgrove
