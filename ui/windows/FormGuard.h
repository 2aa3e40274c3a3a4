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

/// Which values the wheel changes, elsewhere it scrolls: none, or that under the pointer if it has the focus.
enum class WheelChanges { Nothing, Focused };

/// Handles input that would act without moving the focus first: a mnemonic moves the focus to its control and
/// does nothing if the current field refuses its text. The wheel changes no value or tab unless `wheel` says
/// so, because it is turned to scroll.
class FormGuard : public QObject {
    Q_OBJECT

public:
    explicit FormGuard(QWidget& form, WheelChanges wheel = WheelChanges::Nothing);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_form;
    WheelChanges m_wheel;
};

} // namespace Ledgrove
