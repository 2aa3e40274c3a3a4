#include "engine/NumberText.h"
#include "engine/Recalculate.h"
#include "settings/AssumptionsFile.h"
#include "settings/LineSyntax.h"
#include "settings/LoanTypesFile.h"
#include "settings/Rewrite.h"
#include "settings/YearSettingsFile.h"
#include "ui/AssumptionsScreen.h"

#include <algorithm>
#include <utility>

namespace Ledgrove::Module1 {

namespace {

/// A field that OK saves.
struct SavedField {
    Field* Control;
    FieldFormat Format;
    std::string_view Key = {}; ///< of a value with a line of its own
};

std::vector<SavedField> SavedFields(AssumptionsScreen& dialog) {
    constexpr std::array<std::string_view, PMIRowCount> pmiKeys{Key::PMIMult1, Key::PMIMult2, Key::PMIMult3,
                                                                Key::PMIMult4};
    std::vector<SavedField> fields{
        {&dialog.ecRealEstateTaxPct, FieldFormat::Percent, Key::RealEstateTax},
        {&dialog.ecInsurancePct, FieldFormat::WholePercent, Key::Insurance},
        {&dialog.ecPV_Rate, FieldFormat::WholePercent, Key::PVRate},
        {&dialog.ecPV_Term, FieldFormat::Whole, Key::PVTerm},
        {&dialog.ecYrsInHome, FieldFormat::Whole, Key::YearsInHome},
    };
    for (std::size_t row = 0; row < PMIRowCount; ++row)
        fields.push_back({&dialog.PMI_Multiplier[row], FieldFormat::SmallPercent, pmiKeys[row]});
    for (std::size_t row = 0; row < TaxRowCount; ++row) {
        fields.push_back({&dialog.ecHighEnd[row], FieldFormat::Dollar});
        fields.push_back({&dialog.ecRate[row], FieldFormat::WholePercent});
    }
    for (std::size_t row = 0; row < RatioRowCount; ++row) {
        fields.push_back({&dialog.FER[row], FieldFormat::WholePercent});
        fields.push_back({&dialog.BER[row], FieldFormat::WholePercent});
    }
    return fields;
}

/// The text that a save writes after the key.
std::string WrittenText(const SavedField& field) {
    return field.Format == FieldFormat::Percent || field.Format == FieldFormat::WholePercent
               ? StripPercent(field.Control->Text)
               : field.Control->Text;
}

bool IsReadable(const SavedField& field) {
    if (field.Key.empty())
        return true;
    AssumptionSet ignored;
    return !ReadAssumptions({{SettingLine(field.Key, WrittenText(field)), "\r\n"}}, ignored);
}

/// Why OK cannot save the field's text; empty if it can.
std::string ComplaintOf(const SavedField& field) {
    if (std::string complaint = FieldComplaint(field.Control->Text, field.Format); !complaint.empty())
        return complaint;
    if (IsReadable(field))
        return {};
    if (field.Key == Key::YearsInHome)
        return "You must enter at most 32,767 years here.";
    if (field.Format == FieldFormat::SmallPercent && !field.Control->Text.empty())
        return "You must enter a fraction of the loan amount here, without \"%\". For example, 0.0087 is "
               "0.87%.";
    return "You must enter a number here.";
}

/// The numbers of the rows that hold an entry but have no bracket, counted from 1.
std::vector<std::string> RowsWithoutBracket(const AssumptionsScreen& dialog) {
    std::vector<std::string> rows;
    for (std::size_t row = dialog.TaxBrackets; dialog.TaxBrackets > 0 && row < TaxRowCount; ++row) {
        const bool isEmpty = ParseFieldValue(dialog.ecHighEnd[row].Text, 1) == 0 &&
                             ParseFieldValue(dialog.ecRate[row].Text, 1) == 0;
        if (!isEmpty)
            rows.push_back(std::to_string(row + 1));
    }
    return rows;
}

/// "Row 5 is" or "Rows 5, 6 are".
std::string AreRows(const std::vector<std::string>& rows) {
    std::string text = rows.size() == 1 ? "Row " : "Rows ";
    for (std::size_t i = 0; i < rows.size(); ++i)
        text += (i == 0 ? "" : i + 1 == rows.size() ? " and " : ", ") + rows[i];
    return text + (rows.size() == 1 ? " is" : " are");
}

bool MayDropRows(const AssumptionsScreen& dialog, Host& host) {
    const auto rows = RowsWithoutBracket(dialog);
    if (rows.empty())
        return true;
    const std::string brackets = dialog.TaxBrackets == 1
                                     ? "1 income tax bracket"
                                     : std::to_string(dialog.TaxBrackets) + " income tax brackets";
    const std::string question = "The settings file has " + brackets + ", and OK keeps their number. " +
                                 AreRows(rows) + " not saved.\r\rContinue to save?";
    return host.ShowMessage({ApplicationTitle, question, MessageIcon::Question, MessageButtons::YesNo}) ==
           MessageAnswer::Yes;
}

/// The tables that the lines hold. A table without lines keeps the session's values.
struct Tables {
    TaxSchedule TaxBrackets;
    AssumptionSet Assumptions;
    LoanTypeList LoanTypes;
};

bool HaveSameTypes(const LoanTypeList& one, const LoanTypeList& other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const LoanType& a, const LoanType& b) { return a.Number == b.Number; });
}

Tables ReadTables(const SettingsFile& file, const FileLines& lines, const Session& session) {
    Tables tables{session.TaxBrackets, session.Assumptions, {}};
    ReadTaxCats(lines, tables.TaxBrackets);
    ReadAssumptions(lines, tables.Assumptions);
    // The rows of the dialog are the session's loan types. A list that somebody damaged or edited by hand is
    // replaced by them.
    const auto damaged = ReadLoanTypes(file, lines, tables.LoanTypes);
    if (damaged || !HaveSameTypes(tables.LoanTypes, session.LoanTypes))
        tables.LoanTypes = session.LoanTypes;
    return tables;
}

/// The dialog with the file's values in every field that the user has not changed.
AssumptionsScreen Merged(const AssumptionsScreen& dialog, const Tables& now) {
    Session inFile;
    inFile.TaxBrackets = now.TaxBrackets;
    inFile.Assumptions = now.Assumptions;
    inFile.LoanTypes = now.LoanTypes;
    AssumptionsScreen merged;
    FillFields(merged, inFile);
    if (dialog.optUsePVVars != dialog.FilledUsePVVars)
        merged.optUsePVVars = dialog.optUsePVVars;
    AssumptionsScreen changed = dialog;
    const auto from = SavedFields(changed);
    const auto to = SavedFields(merged);
    for (std::size_t i = 0; i < from.size(); ++i) {
        if (from[i].Control->Text != dialog.FilledTexts[i])
            to[i].Control->Text = from[i].Control->Text;
    }
    return merged;
}

TaxRows TaxRowsOf(const AssumptionsScreen& dialog) {
    TaxRows rows;
    for (std::size_t row = 0; row < TaxRowCount; ++row)
        rows[row] = {dialog.ecHighEnd[row].Text, dialog.ecRate[row].Text};
    return rows;
}

AssumptionTexts AssumptionTextsOf(const AssumptionsScreen& dialog) {
    AssumptionTexts texts;
    texts.RealEstateTaxPct = dialog.ecRealEstateTaxPct.Text;
    texts.InsurancePct = dialog.ecInsurancePct.Text;
    texts.PVRate = dialog.ecPV_Rate.Text;
    texts.PVTerm = dialog.ecPV_Term.Text;
    texts.UsePVVars = dialog.optUsePVVars;
    texts.YearsInHome = dialog.ecYrsInHome.Text;
    for (std::size_t row = 0; row < PMIRowCount; ++row)
        texts.PMIMult[row] = dialog.PMI_Multiplier[row].Text;
    return texts;
}

LoanTypeList WithRatiosOf(const AssumptionsScreen& dialog, LoanTypeList loanTypes) {
    for (std::size_t row = 0; row < dialog.RatioRows; ++row) {
        loanTypes[row].FrontRatio = ParseFieldValue(dialog.FER[row].Text, 100);
        loanTypes[row].BackRatio = ParseFieldValue(dialog.BER[row].Text, 100);
    }
    return loanTypes;
}

std::optional<SettingsFault> Write(SettingsDraft& draft, const AssumptionsScreen& dialog, const Tables& now) {
    if (auto fault = WriteTaxCatsToFile(draft, TaxRowsOf(dialog), now.TaxBrackets))
        return fault;
    if (auto fault = WriteAssumpsToFile(draft, AssumptionTextsOf(dialog)))
        return fault;
    return WriteLoanTypes(draft, WithRatiosOf(dialog, now.LoanTypes));
}

bool IsSaved(const std::optional<SettingsFault>& fault) {
    using Kind = SettingsFault::Kind;
    return !fault || fault->What == Kind::InterruptedSave || fault->What == Kind::Unconfirmed;
}

} // namespace

void RememberFilled(AssumptionsScreen& dialog) {
    dialog.FilledTexts.clear();
    for (const SavedField& field : SavedFields(dialog))
        dialog.FilledTexts.push_back(field.Control->Text);
    dialog.FilledUsePVVars = dialog.optUsePVVars;
}

bool MayConfirmAssumptions(EntryContext& context, AssumptionsScreen& dialog) {
    for (const SavedField& field : SavedFields(dialog)) {
        const std::string complaint = ComplaintOf(field);
        if (complaint.empty())
            continue;
        context.Focus.ReturnFocusTo(*field.Control);
        context.Outside.ShowMessage({ApplicationTitle, complaint, MessageIcon::Information});
        context.Focus.SelectFieldText();
        return false;
    }
    return MayDropRows(dialog, context.Outside);
}

std::optional<SettingsFault> ConfirmAssumptions(const AssumptionsScreen& dialog, Session& session,
                                                Host& host) {
    // Held from the reading to the save, so that no save of another copy of the program is lost.
    const auto held = SettingsFile(session.Folder).Hold();
    if (!held)
        return held.Fault();
    const auto lines = held->ReadLines();
    if (!lines)
        return lines.Fault();
    const Tables now = ReadTables(*held, *lines, session);
    SettingsDraft draft(*held, *lines);
    if (auto refused = Write(draft, Merged(dialog, now), now))
        return refused;
    const auto fault = draft.Save();
    if (!IsSaved(fault))
        return fault;
    Tables saved = ReadTables(*held, draft.Lines(), session);
    session.TaxBrackets = std::move(saved.TaxBrackets);
    session.Assumptions = saved.Assumptions;
    session.LoanTypes = std::move(saved.LoanTypes);
    // An editor may have changed them since the start.
    session.Years = ReadYearSettings(draft.Lines());
    // The results still come from the old tables, so the recalculation must not be skipped.
    session.From.reset();
    Recalculate(session, host);
    return fault;
}

} // namespace Ledgrove::Module1
