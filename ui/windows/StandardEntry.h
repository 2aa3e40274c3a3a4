#pragma once

#include "ui/Entry.h"
#include "ui/windows/EntryField.h"
#include "ui/windows/RecordShow.h"

namespace Ledgrove {

/// The entry rules of a field. Some fields use different formats for key presses and for lost focus.
struct EntryTypes {
    FieldFormat OnKeyPress;
    FieldFormat OnLostFocus;
    Module1::AfterEdit After;
};

/// The handlers that most fields use. They run the rules in `shows`. The three references must outlive the
/// field.
EntryEvents StandardEntryEvents(EntryContext& context, Field& field, const EntryTypes& types,
                                RecordShow& shows);

} // namespace Ledgrove
