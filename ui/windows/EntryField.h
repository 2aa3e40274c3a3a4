#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

#include "ui/Entry.h"
#include "ui/windows/RecordShow.h"

namespace Ledgrove {

/// What the events of an edit field do. An empty function leaves its event to the field.
struct EntryEvents {
    std::function<void()> Click;
    std::function<void()> GotFocus;
    std::function<Module1::EntryOutcome(KeyCode)> KeyPress;
    std::function<Module1::EntryOutcome()> LostFocus;
    std::function<void(const std::string&)> Change;
    std::function<bool(char)> Character; ///< sees a typed character before the field; true takes it
};

/// How the field of a form is entered. The formats may differ between key press and lost focus.
struct EntryTypes {
    FieldFormat OnKeyPress;
    FieldFormat OnLostFocus;
    Module1::AfterEdit After;
};

/// The events as most fields connect them. The rules run in `shows`; the three references must outlive the
/// field.
EntryEvents StandardEntryEvents(EntryContext& context, Field& field, const EntryTypes& types,
                                RecordShow& shows);

/// Shows `text` where it differs. Showing is not typing.
void ShowText(QLineEdit& edit, const std::string& text);

/// The edit field of every form: turns the toolkit's events into the five of the entry rules. Any text may be
/// typed; what is wrong with it is said when the field is committed or left.
class EntryField : public QLineEdit {
    Q_OBJECT

public:
    explicit EntryField(QWidget* parent = nullptr);

    /// Connects the field of the record that this one shows. `field` must outlive the widget.
    void Bind(const Field& field, EntryEvents events);
    bool Shows(const Field& field) const { return m_field == &field; }

    /// Shows the bound field's text as it is now.
    void Refresh();

    /// Takes what was typed as leaving the field would, without moving. False when it was refused; the person
    /// has then been told why.
    bool CommitInPlace();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool Commit(KeyCode key);

    const Field* m_field = nullptr;
    EntryEvents m_events;
    bool m_entered = false;
};

} // namespace Ledgrove
