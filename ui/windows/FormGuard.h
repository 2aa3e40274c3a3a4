#pragma once

#include <QObject>
#include <QWidget>

// A control acts only after the field that loses the focus has been committed.
namespace Ledgrove {

/// Whether the field that a mouse press leaves refused its text.
enum class PendingPress { Allowed, Refused };

/// Call it while a mouse press moves the focus. A refusal keeps the press from its control. If a message was
/// answered in between, the button is up again and the control would stay pressed, so it gets the whole click
/// afterwards.
void FinishPendingPress(PendingPress press);

/// Handles input that would act without moving the focus first: a mnemonic moves the focus to its control and
/// does nothing if the current field refuses its text. The wheel never changes a value or a tab, because it
/// is turned to scroll.
class FormGuard : public QObject {
    Q_OBJECT

public:
    explicit FormGuard(QWidget& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_form;
};

} // namespace Ledgrove
