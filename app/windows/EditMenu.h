#pragma once

#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <functional>

#include "ui/windows/frmMain.h"

namespace Ledgrove {

/// Undo and redo of entries, and what the field that had the focus before the menu opened can do: it undoes
/// its own typing first.
class EditMenu : public QMenu {
    Q_OBJECT

public:
    /// The menu works on the fields of `window`.
    explicit EditMenu(frmMain& window);

    /// Takes back what was typed in the field, or else the last entry; brings it again.
    void Undo();
    void Redo();

private:
    struct Command {
        QString Text;
        QKeySequence::StandardKey Key;
        std::function<void(QLineEdit&)> Act;
        std::function<bool(const QLineEdit&)> IsUsable;
    };

    void AddCommand(const Command& command);
    void AddHistory();
    void RememberField(QWidget* focused);

    frmMain& m_window;
    QPointer<QLineEdit> m_field;
};

} // namespace Ledgrove
