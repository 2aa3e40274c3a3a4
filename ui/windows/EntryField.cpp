#include "ui/windows/EntryField.h"

#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyleHints>
#include <utility>

#include "ui/windows/FormGuard.h"

namespace Ledgrove {

using Module1::EntryOutcome;

namespace {

/// Whether the field stays the current one: the focus only moved to another window, a menu or a popup.
bool KeepsCurrentField(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

/// Qt would type the letter of an access key that no control has, or whose control is disabled.
bool IsAccessKey(const QKeyEvent& event) {
    const bool isAlt = (event.modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier;
    return isAlt && !event.text().isEmpty() && event.text().front().isPrint();
}

bool IsPlain(const QKeyEvent& event) {
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

void ShowText(QLineEdit& edit, const std::string& text) {
    const QString shown = QString::fromStdString(text);
    if (edit.text() == shown)
        return;
    const QSignalBlocker nothingTyped(edit);
    edit.setText(shown);
    // A text that is too long shows its beginning: the end of a number looks like a smaller number.
    if (!edit.hasFocus())
        edit.setCursorPosition(0);
}

EntryField::EntryField(QWidget* parent)
    : QLineEdit(parent) {
    // textChanged, not textEdited, because assistive technologies set the text without key presses.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (m_events.Change)
            m_events.Change(text.toStdString());
    });
}

void EntryField::Bind(const Field& field, EntryEvents events) {
    m_field = &field;
    Handle(std::move(events));
}

void EntryField::Refresh() {
    if (m_field)
        ShowText(*this, m_field->Text);
}

bool EntryField::CommitInPlace() {
    const bool wasTyped = isModified();
    setModified(false);
    if (m_events.LostFocus && m_events.LostFocus() == EntryOutcome::Refused) {
        setModified(wasTyped);
        return false;
    }
    selectAll();
    return true;
}

void EntryField::ForgetTyping() {
    const QSignalBlocker nothingTyped(this);
    setText(text());
}

bool EntryField::Commit(KeyCode key) {
    const bool wasTyped = isModified();
    setModified(false);
    if (m_events.KeyPress && m_events.KeyPress(key) == EntryOutcome::Refused) {
        setModified(wasTyped);
        return false;
    }
    // A message may have opened in between. The entry is complete, so no return to it selects less than all.
    m_returns = false;
    return true;
}

/// Without typing to undo, the keys belong to the window, which undoes entries.
bool EntryField::TakesKey(const QKeyEvent& key) const {
    if (key.matches(QKeySequence::Undo))
        return isUndoAvailable();
    return !key.matches(QKeySequence::Redo) || isRedoAvailable();
}

bool EntryField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && !TakesKey(static_cast<QKeyEvent&>(*event))) {
        event->ignore();
        return true;
    }
    // Qt moves the focus on Tab before it calls keyPressEvent.
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Tab && IsPlain(key) && !Commit(KeyCode::Tab)) {
            event->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void EntryField::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_events.KeyPress) {
        Commit(KeyCode::Enter);
        event->accept();
        return;
    }
    const QString typed = event->text();
    if (m_events.Character && typed.size() == 1 && m_events.Character(typed.front().toLatin1())) {
        event->accept();
        return;
    }
    if (IsAccessKey(*event))
        return event->ignore();
    QLineEdit::keyPressEvent(event);
}

bool EntryField::IsDrag(const QMouseEvent& event) const {
    const int distance = (event.position().toPoint() - m_pressedAt).manhattanLength();
    return distance >= QGuiApplication::styleHints()->startDragDistance();
}

void EntryField::mousePressEvent(QMouseEvent* event) {
    m_pressedAt = event->position().toPoint();
    const bool enters = m_selectsByPress;
    QLineEdit::mousePressEvent(event);
    // Qt has just moved the caret into the text.
    if (enters && event->button() == Qt::LeftButton && m_events.GotFocus)
        m_events.GotFocus();
}

void EntryField::mouseMoveEvent(QMouseEvent* event) {
    // A hand that trembles during a click must not select a part of the text.
    if ((event->buttons() & Qt::LeftButton) && (m_selectsByPress || !IsDrag(*event)))
        return;
    QLineEdit::mouseMoveEvent(event);
}

void EntryField::mouseReleaseEvent(QMouseEvent* event) {
    const bool selected = std::exchange(m_selectsByPress, false);
    if (event->button() == Qt::MiddleButton)
        return PasteOver();
    QLineEdit::mouseReleaseEvent(event);
    const bool isClick = event->button() == Qt::LeftButton && !selected && !IsDrag(*event);
    if (isClick && hasFocus() && m_events.Click)
        m_events.Click();
}

/// The middle button pastes the text that is selected anywhere. Like typing, it replaces the whole text.
void EntryField::PasteOver() {
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (isReadOnly() || !clipboard.supportsSelection())
        return;
    const QString pasted = clipboard.text(QClipboard::Selection);
    if (pasted.isEmpty())
        return;
    selectAll();
    insert(pasted);
}

void EntryField::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QLineEdit::mouseDoubleClickEvent(event);
    // Qt selects a word, such as the digits between two separators.
    m_selectsByPress = true;
    selectAll();
}

/// Only one field can be in the middle of an entry. A field that lost the focus while a message was open got
/// no event about it.
void EntryField::ForgetOtherEntries() {
    for (EntryField* field : window()->findChildren<EntryField*>()) {
        if (field != this)
            field->m_returns = field->m_entered = false;
    }
}

void EntryField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    const bool returns = std::exchange(m_returns, false) && KeepsCurrentField(event->reason());
    m_entered = true;
    m_selectsByPress = event->reason() == Qt::MouseFocusReason;
    ForgetOtherEntries();
    if (!returns && m_events.GotFocus)
        m_events.GotFocus();
}

void EntryField::focusOutEvent(QFocusEvent* event) {
    const int start = selectionStart();
    const int length = selectionLength();
    QLineEdit::focusOutEvent(event);
    if (KeepsCurrentField(event->reason())) {
        // A field that gets the focus while a message is open is left before it is entered.
        m_returns = m_entered;
        // Qt removes the selection when the menu bar opens, but the menu's commands need it.
        if (length > 0)
            setSelection(start, length);
        return;
    }
    m_returns = false;
    // When a refusal returns the focus, the next field gets a focusOutEvent without a focusInEvent.
    if (!std::exchange(m_entered, false) || !m_events.LostFocus)
        return;
    const bool isRefused = m_events.LostFocus() == EntryOutcome::Refused;
    if (event->reason() == Qt::MouseFocusReason)
        FinishPendingPress(isRefused ? PendingPress::Refused : PendingPress::Allowed);
    // Shows the beginning of a long text, because the end of a number looks like a smaller number.
    if (!isRefused)
        setCursorPosition(0);
}

} // namespace Ledgrove
