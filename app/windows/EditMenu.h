#pragma once

#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <functional>

namespace Ledgrove {

/// Undo, cut, copy and paste for the field that had the focus before the menu opened.
class EditMenu : public QMenu {
    Q_OBJECT

public:
    /// The menu works on the fields of `window`.
    explicit EditMenu(QWidget& window);

private:
    struct Command {
        QString Text;
        QKeySequence::StandardKey Key;
        std::function<void(QLineEdit&)> Act;
        std::function<bool(const QLineEdit&)> IsUsable;
    };

    void AddCommand(const Command& command);
    void RememberField(QWidget* focused);

    QWidget& m_window;
    QPointer<QLineEdit> m_field;
};

} // namespace Ledgrove
