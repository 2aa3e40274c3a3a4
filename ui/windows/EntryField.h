#pragma once

#include <QLineEdit>
#include <functional>
#include <string>
#include <utility>

#include "ui/Entry.h"

namespace Ledgrove {

/// The handlers of an edit field's events. If a handler is empty, the field keeps Qt's behaviour.
struct EntryEvents {
    std::function<void()> Click;
    std::function<void()> GotFocus;
    std::function<Module1::EntryOutcome(KeyCode)> KeyPress;
    std::function<Module1::EntryOutcome()> LostFocus;
    std::function<void(const std::string&)> Change;
    std::function<bool(char)>
        Character; ///< gets a typed character before the field; returns true if it handled the character
};

/// Shows `text` if it differs. Sends no change event, because nobody typed it.
void ShowText(QLineEdit& edit, const std::string& text);

/// The edit field of every form. Translates Qt's events to those of the entry rules. The user may type any
/// text; it is checked when the field is committed or left. Entering the field selects its text, whatever
/// moved the focus, so that typing replaces the old figure and never mixes with it.
class EntryField : public QLineEdit {
    Q_OBJECT

public:
    explicit EntryField(QWidget* parent = nullptr);

    /// Connects the widget to a field of the record. `field` must outlive the widget.
    void Bind(const Field& field, EntryEvents events);

    /// Gives the events to these handlers, in place of those before; for a figure that is in no record.
    void Handle(EntryEvents events) { m_events = std::move(events); }

    bool Shows(const Field& field) const { return m_field == &field; }

    /// Shows the current text of the bound field.
    void Refresh();

    /// Commits the typed text as if the user left the field, without moving the focus, and selects it.
    /// Returns false if the text was refused, after a message.
    bool CommitInPlace();

    /// Keeps the text; its typing can no longer be undone or redone.
    void ForgetTyping();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool Commit(KeyCode key);
    bool TakesKey(const QKeyEvent& key) const;
    void ForgetOtherEntries();
    void PasteOver();
    bool IsDrag(const QMouseEvent& event) const;

    const Field* m_field = nullptr;
    EntryEvents m_events;
    bool m_entered = false;
    bool m_returns = false; ///< the user only went to another window or a menu in the middle of an entry
    bool m_selectsByPress = false; ///< the mouse button that is down has selected the whole text
    QPoint m_pressedAt;
};

} // namespace Ledgrove
