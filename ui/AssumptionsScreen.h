#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "settings/SettingsFault.h"
#include "settings/TaxScheduleFile.h"
#include "ui/Entry.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

// The financial assumptions dialog without its window: a record of its controls, and their behaviour.
namespace Ledgrove {

inline constexpr std::size_t PMIRowCount = 4;
inline constexpr std::size_t RatioRowCount = 7;

struct AssumptionsScreen {
    std::array<Field, TaxRowCount> ecLowEnd, ecHighEnd, ecRate;
    /// The row of the last bracket, which shows "or greater" as its high end; beyond the rows if the file has
    /// more brackets.
    std::size_t OpenTaxRow = TaxRowCount - 1;
    std::size_t TaxBrackets = 0; ///< the number of brackets in the file
    Field ecRealEstateTaxPct, ecInsurancePct;
    Field ecPV_Rate, ecPV_Term;
    bool optUsePVVars = false; ///< true: "These variables", false: "Mortgage rate and term"
    Field ecYrsInHome, ecExpUpgrValue;
    std::array<std::string, RatioRowCount> lblLoanType;
    std::array<Field, RatioRowCount> FER, BER;
    std::size_t RatioRows = 0; ///< the number of rows that show a loan type
    std::array<Field, PMIRowCount> PMI_Multiplier;

    std::vector<std::string> FilledTexts; ///< of the saved fields, as the dialog was filled
    bool FilledUsePVVars = false;
};

/// The captions beside the PMI multipliers.
inline constexpr std::array<const char*, PMIRowCount> PctDown_LessThan{"5%", "10%", "15%", "20%"};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Fills the dialog from the session. If the session has no loan types, reads them from the settings file; a
/// fault of that read is returned after everything else is filled.
std::optional<SettingsFault> FillAssumptions(AssumptionsScreen& dialog, Session& session);

/// Fills the dialog from the session's tables, without reading the settings file.
void FillFields(AssumptionsScreen& dialog, const Session& session);

/// A line about the brackets for which the dialog has no row, which a save keeps; empty if there are none.
std::string FurtherBrackets(const AssumptionsScreen& dialog);

/// Shows the labelled home's price less the base home's price. Runs when the dialog is filled and each time
/// it becomes active.
void CalcExpUpgrValue(AssumptionsScreen& dialog, const Session& session);

/// Leaves the high end of a tax row (counted from 0) and sets the next row's low end to one dollar more.
EntryOutcome LeaveHighEnd(EntryContext& context, AssumptionsScreen& dialog, std::size_t row);

/// Formats a low end when it is left. Its text is never checked.
void LeaveLowEnd(Session& session, AssumptionsScreen& dialog, std::size_t row);

/// Leaves a field that is validated in one format and shown in another.
EntryOutcome LeaveFieldAs(EntryContext& context, Field& field, FieldFormat checked, FieldFormat shown);

/// Remembers the texts of the saved fields as those that the user has not changed.
void RememberFilled(AssumptionsScreen& dialog);

/// Whether OK can save every field so that the settings file's reader can use it. If not, gives the focus to
/// the first field that it cannot use and shows a message. If the schedule has fewer brackets than rows and a
/// further row holds an entry, asks whether to go on without it.
bool MayConfirmAssumptions(EntryContext& context, AssumptionsScreen& dialog);

/// Saves the tax schedule, the assumptions and the loan types in this order and as one save, takes them into
/// the session, and recalculates. A field that the user has not changed keeps the file's value, which another
/// copy of the program may have changed since the dialog was filled. If the save fails, the file and the
/// session do not change; if only its end is uncertain (InterruptedSave, Unconfirmed), both have the new
/// values.
std::optional<SettingsFault> ConfirmAssumptions(const AssumptionsScreen& dialog, Session& session,
                                                Host& host);

} // namespace Ledgrove::Module1
