#pragma once

#include <QObject>
#include <QWidget>

// A control acts only after the field that loses the focus has been committed.
namespace Ledgrove {

/// Keeps the current mouse press from its control. Call it while the press moves the focus.
void SwallowPendingPress();

/// Handles input that would act without moving the focus first: a mnemonic moves the focus to its control and
/// does nothing if the current field refuses its text; the wheel changes only the control with the focus.
class FormGuard : public QObject {
    Q_OBJECT

public:
    explicit FormGuard(QWidget& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_form;
};

} // namespace Ledgrove
