#pragma once

#include <QObject>
#include <QWidget>

// A control acts only after the field being left has been accepted.
namespace Ledgrove {

/// Keeps the mouse press that is being delivered from its control. To be called while the press moves the
/// focus.
void SwallowPendingPress();

/// Watches a form for what would act without moving the focus first: a mnemonic moves it to its control, and
/// does nothing when the field being left is refused; the wheel turns only the control that has the focus.
class FormGuard : public QObject {
    Q_OBJECT

public:
    explicit FormGuard(QWidget& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_form;
};

} // namespace Ledgrove
