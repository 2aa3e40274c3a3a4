#include "ui/windows/DownPaymentKeys.h"

#include <QKeyEvent>
#include <QWidget>

namespace Ledgrove {

DownPaymentKeys::DownPaymentKeys(const MainScreen& screen, QWidget& form)
    : QObject(&form)
    , m_screen(screen)
    , m_form(form)
    , m_debt(form.findChild<QWidget*>("ecMonthlyDebt"))
    , m_fields{form.findChild<QWidget*>("ecPctDown"), form.findChild<QWidget*>("ecFixedDown")}
    , m_options{form.findChild<QAbstractButton*>("optDownPayment0"),
                form.findChild<QAbstractButton*>("optDownPayment1")} {
    for (QAbstractButton* option : m_options)
        option->installEventFilter(this);
}

bool DownPaymentKeys::AnOptionHasFocus() const {
    const QWidget* focused = m_form.focusWidget();
    return focused == m_options[0] || focused == m_options[1];
}

void DownPaymentKeys::Refresh() {
    if (AnOptionHasFocus())
        return;
    const std::size_t chosen = m_screen.optDownPayment == 0 ? 0 : 1;
    // Qt makes the option that had the focus last the tab stop, even if it is not the chosen one.
    m_options[chosen]->setFocusPolicy(Qt::StrongFocus);
    m_options[1 - chosen]->setFocusPolicy(Qt::ClickFocus);
    if (m_debt->nextInFocusChain() == m_fields[chosen])
        return;
    QWidget* const order[] = {m_debt, m_fields[chosen], m_options[0], m_options[1], m_fields[1 - chosen]};
    for (std::size_t i = 1; i < std::size(order); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

void DownPaymentKeys::ChooseOther(const QObject& option) {
    QAbstractButton* other = m_options[&option == m_options[0] ? 1 : 0];
    other->setFocus(Qt::OtherFocusReason);
    other->click();
}

bool DownPaymentKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut)
        Refresh();
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool isSideways = key.key() == Qt::Key_Left || key.key() == Qt::Key_Right;
    if (!isSideways || (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    ChooseOther(*watched);
    return true;
}

} // namespace Ledgrove
