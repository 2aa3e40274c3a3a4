#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/FieldFormats.h"

// What every edit field does when it is typed into, committed and left, the same on every form.
namespace Ledgrove {

/// The keyboard focus of the form that a field stands on.
class EntryFocus {
public:
    virtual ~EntryFocus() = default;

    /// The name of the control that holds the focus now; while a field is being left, the one being moved to.
    virtual std::string FocusedControl() const = 0;
    virtual void ReturnFocusTo(const Field& field) = 0;
    /// Selects the whole text of the focused field.
    virtual void SelectFieldText() = 0;
    virtual void NextField() = 0;
    virtual void PreviousField() = 0;
};

/// What the entry rules work on.
struct EntryContext {
    Session& State;
    Host& Outside;
    EntryFocus& Focus;
};

enum class KeyCode { Other = 0, Tab = 9, Enter = 13 };

} // namespace Ledgrove

namespace Ledgrove::Module1 {

enum class Complaint { Shown, Quiet };

/// What is wrong with a field's text: "" when it is accepted, else the message. Never negative, always a
/// number but for String. An empty text counts as "0".
std::string FieldComplaint(std::string_view text, FieldFormat format);

/// Puts `text` into the field as its Change event would: an input that feeds the EEM rule sets the notice
/// flag. The text that the field already holds is no change.
void SetFieldText(Session& session, Field& field, std::string_view text);

/// Checks the field's text and turns an empty one into "0". On refusal the focus returns to the field, the
/// message is shown (unless quiet) and the text is selected. Leaving towards a Cancel or Exit button is never
/// refused.
bool ValidateField(EntryContext& context, Field& field, FieldFormat format,
                   Complaint complaint = Complaint::Shown);

/// Rewrites the field's text in its display format.
void FormatField(Session& session, Field& field, FieldFormat format);

enum class EntryOutcome {
    Refused,
    Accepted,
    Unchanged ///< accepted before, and nothing had to be written
};

/// Commits the field on Enter or Tab: validate, format, custom house, recalculate; Enter moves on to the next
/// field. Any other key does nothing here.
EntryOutcome HandleEntryKey(EntryContext& context, Field& field, KeyCode key, FieldFormat format);

/// What follows an accepted lost focus.
enum class AfterEdit { Nothing, Recalculate, RecalculateAndCheckHouse };

/// Validates and formats the field as it is left, then runs the form's after-edit steps. A field that Enter
/// or Tab has committed, and one that was only passed through, is not recalculated again.
EntryOutcome LeaveField(EntryContext& context, Field& field, FieldFormat format, AfterEdit after);

/// Names the house "Custom" when a price or utility bill is no longer that of the chosen house scenario.
void CheckCustomHouse(Session& session);

/// Takes a percent-down text above 100 as a dollar amount and shows it as a percentage of the base home's
/// price. With a base price of 0 it stays as it is; a result above 100 is not converted again.
void ConvertPercentDown(Session& session);

/// A "." typed into the empty percent-down field becomes the character codes of "0" and ".", written as
/// numbers. True when the key was taken so.
bool TakePercentDownPoint(Session& session, char key);

} // namespace Ledgrove::Module1
