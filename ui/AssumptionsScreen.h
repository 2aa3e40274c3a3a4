#pragma once

#include "engine/Host.h"
#include "engine/Session.h"
#include "settings/SettingsFault.h"
#include "settings/TaxScheduleFile.h"
#include "ui/Entry.h"

#include <array>
#include <optional>
#include <string>

// The financial assumptions dialog without its window: the record of its controls and what they do.
namespace Ledgrove {

inline constexpr std::size_t PMIRowCount = 4;
inline constexpr std::size_t RatioRowCount = 7;

struct AssumptionsScreen {
    std::array<Field, TaxRowCount> ecLowEnd, ecHighEnd, ecRate;
    std::size_t LastTaxRow = TaxRowCount - 1; ///< the row of the last bracket, whose high end is "or greater"
    Field ecRealEstateTaxPct, ecInsurancePct;
    Field ecPV_Rate, ecPV_Term;
    bool optUsePVVars = false; ///< true: "These variables", false: "Mortgage rate and term"
    Field ecYrsInHome, ecExpUpgrValue;
    std::array<std::string, RatioRowCount> lblLoanType;
    std::array<Field, RatioRowCount> FER, BER;
    std::size_t RatioRows = 0; ///< rows that show a loan type
    std::array<Field, PMIRowCount> PMI_Multiplier;
};

/// The captions beside the PMI multipliers.
inline constexpr std::array<const char*, PMIRowCount> PctDown_LessThan{"5%", "10%", "15%", "20%"};

} // namespace Ledgrove

namespace Ledgrove::Module1 {

/// Fills the dialog from memory, reading the loan types from the settings file where memory has none; the
/// fault of that reading, with all else filled.
std::optional<SettingsFault> FillAssumptions(AssumptionsScreen& dialog, Session& session);

/// Shows the labelled home's price less the base home's. Runs at filling and whenever the dialog becomes
/// active.
void CalcExpUpgrValue(AssumptionsScreen& dialog, const Session& session);

/// Leaving the high end of a tax row (counted from 0) also moves the next row's low end to one dollar above
/// it.
EntryOutcome LeaveHighEnd(EntryContext& context, AssumptionsScreen& dialog, std::size_t row);

/// A low end is formatted as it is left, never checked.
void LeaveLowEnd(Session& session, AssumptionsScreen& dialog, std::size_t row);

/// A field that is checked as one format and shown in another.
EntryOutcome LeaveFieldAs(EntryContext& context, Field& field, FieldFormat checked, FieldFormat shown);

/// Saves tax schedule, assumptions and loan types in this order, reads the first two back, and recalculates.
/// On a fault the file and memory are as they were.
std::optional<SettingsFault> ConfirmAssumptions(const AssumptionsScreen& dialog, Session& session,
                                                Host& host);

} // namespace Ledgrove::Module1
