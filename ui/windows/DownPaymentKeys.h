#pragma once

#include <QAbstractButton>
#include <QObject>
#include <array>

#include "engine/MainScreen.h"

namespace Ledgrove {

/// The keyboard around the down payment. The tab order leads from the monthly debt to the field in force,
/// then to the chosen option, then to the other field. While an option has the focus, the order waits, so
/// that Tab leads from a newly chosen option to its field. Left and Right choose the other option, because Up
/// and Down move between the controls.
class DownPaymentKeys : public QObject {
    Q_OBJECT

public:
    /// Finds the controls in `form` by name. Both must outlive this object.
    DownPaymentKeys(const MainScreen& screen, QWidget& form);

    /// Call it after the chosen option may have changed.
    void Refresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool AnOptionHasFocus() const;
    void ChooseOther(const QObject& option);

    const MainScreen& m_screen;
    QWidget& m_form;
    QWidget* m_debt;
    std::array<QWidget*, 2> m_fields; ///< by option
    std::array<QAbstractButton*, 2> m_options;
};

} // namespace Ledgrove
