#include "ui/windows/StandardEntry.h"

namespace Ledgrove {

using Module1::EntryOutcome;

EntryEvents StandardEntryEvents(EntryContext& context, Field& field, const EntryTypes& types,
                                RecordShow& shows) {
    EntryEvents events;
    events.Click = [&context] { context.Focus.SelectFieldText(); };
    events.GotFocus = events.Click;
    events.KeyPress = [&context, &field, format = types.OnKeyPress, &shows](KeyCode key) {
        EntryOutcome outcome{};
        shows.Run([&] { outcome = Module1::HandleEntryKey(context, field, key, format); });
        return outcome;
    };
    events.LostFocus = [&context, &field, types, &shows] {
        EntryOutcome outcome{};
        shows.Run([&] {
            outcome = Module1::LeaveField(context, field, types.OnLostFocus, types.After);
            return outcome != EntryOutcome::Unchanged;
        });
        return outcome;
    };
    events.Change = [&context, &field, &shows](const std::string& text) {
        Module1::SetFieldText(context.State, field, text);
        shows.NoteChange();
    };
    return events;
}

} // namespace Ledgrove
