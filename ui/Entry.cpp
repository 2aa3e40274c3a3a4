#include "ui/Entry.h"

#include "engine/NumberText.h"
#include "engine/Recalculate.h"

namespace Ledgrove::Module1 {

namespace {

void FormatEntry(Session& session, Field& field, FieldFormat format) {
    FormatField(session, field, format);
    if (&field == &session.Screen.ecPctDown)
        ConvertPercentDown(session);
}

const char* NumberComplaint(std::optional<double> number) {
    if (!number)
        return "You must enter a number here.";
    return *number < 0 ? "You must enter a positive number here." : "";
}

} // namespace

std::string FieldComplaint(std::string_view text, FieldFormat format) {
    if (text.empty() || format == FieldFormat::String)
        return {};
    return NumberComplaint(ReadStrippedNumber(text));
}

FieldReading ReadFieldText(std::string_view text, FieldFormat format) {
    if (format == FieldFormat::String)
        return {"", std::string(text)};
    const auto number = ReadStrippedNumber(text);
    FieldReading reading{NumberComplaint(number), ""};
    if (reading.Complaint.empty())
        reading.Text = FormatFieldText(text, *number, format);
    return reading;
}

void SetFieldText(Session& session, Field& field, std::string_view text) {
    if (field.Text == text)
        return;
    field.Text = text;
    if (field.SetsEEMNotice)
        session.Scenario.EEMNoticeFlag = true;
    if (&field == &session.Screen.ecPctDown)
        session.Screen.PctDownConverted = false;
}

bool ValidateField(EntryContext& context, Field& field, FieldFormat format, Complaint complaint) {
    const std::string movingTo = context.Focus.FocusedControl();
    if (movingTo.starts_with("bCancel") || movingTo.starts_with("bExit"))
        return true;
    if (field.Text.empty())
        SetFieldText(context.State, field, "0");
    const std::string message = FieldComplaint(field.Text, format);
    if (message.empty())
        return true;
    context.Focus.ReturnFocusTo(field);
    if (complaint == Complaint::Shown)
        context.Outside.ShowMessage({ApplicationTitle, message, MessageIcon::Information});
    context.Focus.SelectFieldText();
    return false;
}

void FormatField(Session& session, Field& field, FieldFormat format) {
    SetFieldText(session, field, FormatFieldText(field.Text, format));
}

EntryOutcome HandleEntryKey(EntryContext& context, Field& field, KeyCode key, FieldFormat format) {
    if (key != KeyCode::Enter && key != KeyCode::Tab)
        return EntryOutcome::Accepted;
    if (!ValidateField(context, field, format))
        return EntryOutcome::Refused;
    FormatEntry(context.State, field, format);
    CheckCustomHouse(context.State);
    Recalculate(context.State, context.Outside);
    if (key == KeyCode::Enter)
        context.Focus.NextField();
    return EntryOutcome::Accepted;
}

EntryOutcome LeaveField(EntryContext& context, Field& field, FieldFormat format, AfterEdit after) {
    Session& session = context.State;
    const std::string text = field.Text;
    const std::string house = session.Screen.lblHomeName.Text;
    if (!ValidateField(context, field, format))
        return EntryOutcome::Refused;
    FormatEntry(session, field, format);
    // After Enter or Tab, the results are already up to date.
    const bool recalculates = after != AfterEdit::Nothing && !IsUpToDate(session);
    if (recalculates)
        Recalculate(session, context.Outside);
    if (after == AfterEdit::RecalculateAndCheckHouse)
        CheckCustomHouse(session);
    const bool changed = recalculates || field.Text != text || session.Screen.lblHomeName.Text != house;
    return changed ? EntryOutcome::Accepted : EntryOutcome::Unchanged;
}

void CheckCustomHouse(Session& session) {
    const MainScreen& screen = session.Screen;
    const House& chosen = session.ChosenHouse;
    const bool asChosen = ParseFieldValue(screen.ecStdHome.Text, 1) == chosen.StdCost &&
                          ParseFieldValue(screen.ecGMHHome.Text, 1) == chosen.GMHCost &&
                          ParseFieldValue(screen.ecStdUtil.Text, 1) == chosen.StdUtil &&
                          ParseFieldValue(screen.ecGMHUtil.Text, 1) == chosen.GMHUtil;
    if (!asChosen)
        session.Screen.lblHomeName.Text = CustomHouse;
}

void ConvertPercentDown(Session& session) {
    MainScreen& screen = session.Screen;
    const double amount = ParseFieldValue(screen.ecPctDown.Text, 1);
    const double basePrice = ParseFieldValue(screen.ecStdHome.Text, 1);
    if (amount <= 100 || basePrice == 0 || screen.PctDownConverted)
        return;
    const std::string percent = FormatPicture(amount / basePrice * 100, "#0.00") + "%";
    // The field would refuse a text that is too large for a number.
    if (!FieldComplaint(percent, FieldFormat::Percent).empty())
        return;
    SetFieldText(session, screen.ecPctDown, percent);
    screen.PctDownConverted = true;
}

bool TakePercentDownPoint(Session& session, char key) {
    if (key != '.' || !session.Screen.ecPctDown.Text.empty())
        return false;
    SetFieldText(session, session.Screen.ecPctDown, "4846");
    return true;
}

} // namespace Ledgrove::Module1
