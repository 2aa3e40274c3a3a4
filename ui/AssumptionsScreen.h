#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "settings/SettingsFault.h"
#include "settings/TaxScheduleFile.h"
#include "ui/Entry.h"

#include <array>
#include <optional>
#include <string>

// The financial assumptions dialog without its window: a record of its controls, and their behaviour.
namespace Ledgrove {

inline constexpr std::size_t PMIRowCount = 4;
inline constexpr std::size_t RatioRowCount = 7;

struct AssumptionsScreen {
    std::array<Field, TaxRowCount> ecLowEnd, ecHighEnd, ecRate;
    std::size_t LastTaxRow =
        TaxRowCount - 1; ///< the row of the last bracket, which shows "or greater" as its high end
    Field ecRealEstateTaxPct, ecInsurancePct;
    Field ecPV_Rate, ecPV_Term;
    bool optUsePVVars = false; ///< true: "These variables", false: "Mortgage rate and term"
    Field ecYrsInHome, ecExpUpgrValue;
    std::array<std::string, RatioRowCount> lblLoanType;
    std::array<Field, RatioRowCount> FER, BER;
    std::size_t RatioRows = 0; ///< the number of rows that show a loan type
    std::array<Field, PMIRowCount> PMI_Multiplier;
};

/// The captions beside the PMI multipliers.
inline constexpr std::array<const char*, PMIRowCount> PctDown_LessThan{"5%", "10%", "15%", "20%"};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Fills the dialog from the session. If the session has no loan types, reads them from the settings file; a
/// fault of that read is returned after everything else is filled.
std::optional<SettingsFault> FillAssumptions(AssumptionsScreen& dialog, Session& session);

/// Shows the labelled home's price less the base home's price. Runs when the dialog is filled and each time
/// it becomes active.
void CalcExpUpgrValue(AssumptionsScreen& dialog, const Session& session);

/// Leaves the high end of a tax row (counted from 0) and sets the next row's low end to one dollar more.
EntryOutcome LeaveHighEnd(EntryContext& context, AssumptionsScreen& dialog, std::size_t row);

/// Formats a low end when it is left. Its text is never checked.
void LeaveLowEnd(Session& session, AssumptionsScreen& dialog, std::size_t row);

/// Leaves a field that is validated in one format and shown in another.
EntryOutcome LeaveFieldAs(EntryContext& context, Field& field, FieldFormat checked, FieldFormat shown);

/// Saves the tax schedule, the assumptions and the loan types in this order, reads the first two back, and
/// recalculates. If a save fails, the file and the session do not change.
std::optional<SettingsFault> ConfirmAssumptions(const AssumptionsScreen& dialog, Session& session,
                                                Host& host);

} // namespace Ledgrove::Module1
