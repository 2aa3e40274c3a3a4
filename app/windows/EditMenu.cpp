#include "app/windows/EditMenu.h"

#include <QApplication>
#include <QClipboard>

namespace Ledgrove {

EditMenu::EditMenu(frmMain& window)
    : QMenu("&Edit", &window)
    , m_window(window) {
    AddHistory();
    addSeparator();
    AddCommand({"Cu&t", QKeySequence::Cut, &QLineEdit::cut,
                [](const QLineEdit& field) { return field.hasSelectedText() && !field.isReadOnly(); }});
    AddCommand({"&Copy", QKeySequence::Copy, &QLineEdit::copy, &QLineEdit::hasSelectedText});
    AddCommand({"&Paste", QKeySequence::Paste, &QLineEdit::paste, [](const QLineEdit& field) {
                    return !field.isReadOnly() && !QApplication::clipboard()->text().isEmpty();
                }});
    AddCommand({"Select &All", QKeySequence::SelectAll, &QLineEdit::selectAll,
                [](const QLineEdit& field) { return !field.text().isEmpty(); }});
    addSeparator();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { RememberField(focused); });
    RememberField(QApplication::focusWidget());
}

void EditMenu::Undo() {
    m_field && m_field->isUndoAvailable() ? m_field->undo() : m_window.Undo();
}

void EditMenu::Redo() {
    m_field && m_field->isRedoAvailable() ? m_field->redo() : m_window.Redo();
}

/// The keys reach the window when the focused field has no typing of its own to undo.
void EditMenu::AddHistory() {
    QAction* undo = addAction("&Undo", this, &EditMenu::Undo);
    undo->setShortcut(QKeySequence("Ctrl+Z"));
    QAction* redo = addAction("&Redo", this, &EditMenu::Redo);
    redo->setShortcut(QKeySequence("Ctrl+Shift+Z"));
    connect(this, &QMenu::aboutToShow, this, [this, undo, redo] {
        undo->setEnabled((m_field && m_field->isUndoAvailable()) || m_window.CanUndo());
        redo->setEnabled((m_field && m_field->isRedoAvailable()) || m_window.CanRedo());
    });
    // A key must not meet a state from the last time that the menu was open.
    connect(this, &QMenu::aboutToHide, this, [undo, redo] {
        undo->setEnabled(true);
        redo->setEnabled(true);
    });
}

void EditMenu::AddCommand(const Command& command) {
    QAction* action = addAction(command.Text);
    action->setShortcut(command.Key);
    // The focused field handles these keys itself. Elsewhere they would change a field that the user is not
    // looking at.
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, act = command.Act] {
        if (m_field)
            act(*m_field);
    });
    connect(this, &QMenu::aboutToShow, action, [this, action, isUsable = command.IsUsable] {
        action->setEnabled(m_field && isUsable(*m_field));
    });
}

void EditMenu::RememberField(QWidget* focused) {
    // While the keyboard uses the menu bar, the menu bar has the focus.
    if (focused && focused->window() == &m_window && focused->focusPolicy() != Qt::NoFocus)
        m_field = qobject_cast<QLineEdit*>(focused);
}

} // namespace Ledgrove
