#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "ui/FieldFormats.h"

// The behaviour of every edit field on every form: typing, committing and leaving.
namespace Ledgrove {

/// The keyboard focus of the form that contains the field.
class EntryFocus {
public:
    virtual ~EntryFocus() = default;

    /// The name of the control that has the focus. While a field is being left, this is the next control.
    virtual std::string FocusedControl() const = 0;
    virtual void ReturnFocusTo(const Field& field) = 0;
    /// Selects the whole text of the focused field.
    virtual void SelectFieldText() = 0;
    virtual void NextField() = 0;
    virtual void PreviousField() = 0;
};

/// The arguments that all entry rules share.
struct EntryContext {
    Session& State;
    Host& Outside;
    EntryFocus& Focus;
};

enum class KeyCode { Other = 0, Tab = 9, Enter = 13 };

} // namespace Ledgrove

namespace Ledgrove::Module1 {

enum class Complaint { Shown, Quiet };

/// The message for a text that a field refuses; empty if the text is accepted. Every format except String
/// requires a number that is not negative. An empty text counts as "0".
std::string FieldComplaint(std::string_view text, FieldFormat format);

/// What a field makes of a text that is not empty.
struct FieldReading {
    std::string Complaint; ///< the message for a refused text; empty if it is accepted
    std::string Text;      ///< an accepted text in its display format
};

/// FieldComplaint and FormatFieldText in one, which reads the number once.
FieldReading ReadFieldText(std::string_view text, FieldFormat format);

/// Sets the field's text with the effects of its Change event: if the input affects the EEM eligibility, sets
/// the notice flag. Setting the text that the field already has does nothing.
void SetFieldText(Session& session, Field& field, std::string_view text);

/// Checks the field's text; an empty text becomes "0". If the text is refused, returns the focus to the
/// field, shows the message (unless quiet) and selects the text. Never refuses when the focus moves to a
/// Cancel or Exit button.
bool ValidateField(EntryContext& context, Field& field, FieldFormat format,
                   Complaint complaint = Complaint::Shown);

/// Rewrites the field's text in its display format.
void FormatField(Session& session, Field& field, FieldFormat format);

enum class EntryOutcome {
    Refused,
    Accepted,
    Unchanged ///< accepted, and nothing changed
};

/// Commits the field on Enter or Tab: validates and formats it, checks for a custom house and recalculates.
/// Enter then moves to the next field. Other keys do nothing here.
EntryOutcome HandleEntryKey(EntryContext& context, Field& field, KeyCode key, FieldFormat format);

/// The steps after a field is left and its text is accepted.
enum class AfterEdit { Nothing, Recalculate, RecalculateAndCheckHouse };

/// Validates and formats the field when it is left, then runs the steps of `after`. Recalculates only if the
/// results are out of date, so not after Enter or Tab, and not for a field that was left unchanged.
EntryOutcome LeaveField(EntryContext& context, Field& field, FieldFormat format, AfterEdit after);

/// Names the house "Custom" if a price or utility bill differs from the chosen house scenario.
void CheckCustomHouse(Session& session);

/// Treats a percent-down text above 100 as a dollar amount and replaces it by the percentage of the base
/// home's price. If that price is 0 or the percentage is too large for a number, the text does not change. A
/// result above 100 is not converted again.
void ConvertPercentDown(Session& session);

/// A "." typed into the empty percent-down field becomes "4846", the character codes of "0" and "." as
/// numbers. This is intended. Returns whether it handled the key.
bool TakePercentDownPoint(Session& session, char key);

} // namespace Ledgrove::Module1
