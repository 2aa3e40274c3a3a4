#include "ui/AssumptionsScreen.h"

#include "engine/NumberText.h"
#include "engine/Recalculate.h"
#include "settings/AssumptionsFile.h"
#include "settings/LoanTypesFile.h"

#include <algorithm>

namespace Ledgrove::Module1 {

namespace {

std::string PercentText(double percent) {
    return FormatPicture(percent, "#0.00") + "%";
}

/// The picture "###" shows nothing for 0; this shows "0".
std::string YearsText(double years) {
    const std::string text = FormatPicture(years, "###");
    return text.empty() ? "0" : text;
}

void FillTaxRows(AssumptionsScreen& dialog, const TaxSchedule& schedule) {
    for (std::size_t row = 0; row < std::min(schedule.size(), TaxRowCount); ++row) {
        const TaxBracket& bracket = schedule[row];
        dialog.ecLowEnd[row].Text = FormatPicture(static_cast<double>(bracket.LowEnd) + 1, "$###,##0");
        if (row + 1 < schedule.size())
            dialog.ecHighEnd[row].Text = FormatPicture(bracket.HighEnd, "$###,##0");
        dialog.ecRate[row].Text = FormatPicture(bracket.Rate, "#0.00") + "%";
        dialog.LastTaxRow = row;
    }
}

void FillRatioRows(AssumptionsScreen& dialog, const LoanTypeList& loanTypes) {
    dialog.RatioRows = std::min(loanTypes.size(), RatioRowCount);
    for (std::size_t row = 0; row < dialog.RatioRows; ++row) {
        dialog.lblLoanType[row] = loanTypes[row].Name;
        dialog.FER[row].Text = PercentText(static_cast<double>(loanTypes[row].FrontRatio) * 100);
        dialog.BER[row].Text = PercentText(static_cast<double>(loanTypes[row].BackRatio) * 100);
    }
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

std::optional<SettingsFault> SaveAll(const SettingsFile& file, const AssumptionsScreen& dialog,
                                     const TaxSchedule& loaded, const LoanTypeList& loanTypes) {
    if (auto fault = WriteTaxCatsToFile(file, TaxRowsOf(dialog), loaded))
        return fault;
    if (auto fault = WriteAssumpsToFile(file, AssumptionTextsOf(dialog)))
        return fault;
    return WriteLoanTypes(file, loanTypes);
}

std::string BytesOf(const FileLines& lines) {
    std::string bytes;
    for (const FileLine& line : lines)
        bytes.append(line.Text).append(line.End);
    return bytes;
}

/// Each of the three writers replaces the whole file, so a later fault must undo the earlier saves. Returns
/// the fault to show to the user.
SettingsFault TakeBack(const SettingsFile& file, const FileLines& before, const SettingsFault& fault) {
    const auto now = file.ReadLines();
    if (!now || BytesOf(*now) == BytesOf(before))
        return fault;
    const auto failed = file.ReplaceContent(BytesOf(before));
    // The user must first learn where the settings are now; the reason of the failed save matters less.
    return failed && failed->What == SettingsFault::Kind::InterruptedSave ? *failed : fault;
}

std::optional<SettingsFault> SaveAndReload(const AssumptionsScreen& dialog, Session& session) {
    // Held throughout, because TakeBack must not undo a save of another copy of the program.
    const auto held = SettingsFile(session.Folder).Hold();
    if (!held)
        return held.Fault();
    const SettingsFile& file = *held;
    const auto before = file.ReadLines();
    if (!before)
        return before.Fault();
    LoanTypeList loanTypes = WithRatiosOf(dialog, session.LoanTypes);
    if (auto fault = SaveAll(file, dialog, session.TaxBrackets, loanTypes))
        return TakeBack(file, *before, *fault);
    session.LoanTypes = std::move(loanTypes);
    // The results still come from the old tables, so the next recalculation must not be skipped.
    session.From.reset();
    if (auto fault = LoadTaxCats(file, session.TaxBrackets))
        return fault;
    return LoadAssumptions(file, session.Assumptions);
}

} // namespace

std::optional<SettingsFault> FillAssumptions(AssumptionsScreen& dialog, Session& session) {
    const AssumptionSet& assumptions = session.Assumptions;
    dialog = AssumptionsScreen{};
    FillTaxRows(dialog, session.TaxBrackets);
    dialog.ecRealEstateTaxPct.Text = FormatPicture(assumptions.RealEstateTaxPct, "#0.00") + "%";
    dialog.ecInsurancePct.Text = FormatPicture(assumptions.InsurancePct, "#0.00") + "%";
    CalcExpUpgrValue(dialog, session);
    dialog.ecYrsInHome.Text = YearsText(assumptions.YearsInHome);
    dialog.ecPV_Rate.Text = PercentText(static_cast<double>(assumptions.PVRate) * 100);
    dialog.ecPV_Term.Text = YearsText(static_cast<double>(assumptions.PVTerm));
    dialog.optUsePVVars = assumptions.UsePVVars;
    const float multipliers[] = {assumptions.PMIMult1, assumptions.PMIMult2, assumptions.PMIMult3,
                                 assumptions.PMIMult4};
    for (std::size_t row = 0; row < PMIRowCount; ++row)
        dialog.PMI_Multiplier[row].Text = PlainText(multipliers[row]);

    std::optional<SettingsFault> fault;
    if (session.LoanTypes.empty()) {
        fault = LoadLoanTypes(SettingsFile(session.Folder), session.LoanTypes);
        session.From.reset();
    }
    FillRatioRows(dialog, session.LoanTypes);
    return fault;
}

void CalcExpUpgrValue(AssumptionsScreen& dialog, const Session& session) {
    dialog.ecExpUpgrValue.Text =
        FormatFieldText(ShortestText(session.Scenario.PriceDifference), FieldFormat::Dollar);
}

EntryOutcome LeaveHighEnd(EntryContext& context, AssumptionsScreen& dialog, std::size_t row) {
    Field& highEnd = dialog.ecHighEnd[row];
    if (LeaveField(context, highEnd, FieldFormat::Dollar, AfterEdit::Nothing) == EntryOutcome::Refused)
        return EntryOutcome::Refused;
    // The last row has no upper limit and no next row.
    if (row + 1 < TaxRowCount) {
        const double nextLowEnd = ReadStrippedNumber(highEnd.Text).value_or(0) + 1;
        dialog.ecLowEnd[row + 1].Text = FormatPicture(nextLowEnd, "$###,##0");
    }
    return EntryOutcome::Accepted;
}

void LeaveLowEnd(Session& session, AssumptionsScreen& dialog, std::size_t row) {
    FormatField(session, dialog.ecLowEnd[row], FieldFormat::Dollar);
}

EntryOutcome LeaveFieldAs(EntryContext& context, Field& field, FieldFormat checked, FieldFormat shown) {
    if (!ValidateField(context, field, checked))
        return EntryOutcome::Refused;
    FormatField(context.State, field, shown);
    return EntryOutcome::Accepted;
}

std::optional<SettingsFault> ConfirmAssumptions(const AssumptionsScreen& dialog, Session& session,
                                                Host& host) {
    if (auto fault = SaveAndReload(dialog, session))
        return fault;
    Recalculate(session, host);
    return std::nullopt;
}

} // namespace Ledgrove::Module1
