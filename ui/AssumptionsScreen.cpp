#include "ui/AssumptionsScreen.h"

#include "engine/NumberText.h"
#include "settings/LoanTypesFile.h"

#include <algorithm>

namespace Ledgrove::Module1 {

namespace {

/// The captions of ratio rows without a loan type.
constexpr std::array designCaptions{"Conventional", "FHA", "FHA EEM", "VA EEM", "Fannie Mae", "Freddie Mac"};

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
        const bool isOpen = row + 1 == schedule.size();
        if (!isOpen)
            dialog.ecHighEnd[row].Text = FormatPicture(bracket.HighEnd, "$###,##0");
        dialog.ecRate[row].Text = FormatPicture(bracket.Rate, "#0.00") + "%";
    }
    if (!schedule.empty())
        dialog.OpenTaxRow = schedule.size() - 1;
    dialog.TaxBrackets = schedule.size();
}

void FillRatioRows(AssumptionsScreen& dialog, const LoanTypeList& loanTypes) {
    std::copy(designCaptions.begin(), designCaptions.end(), dialog.lblLoanType.begin());
    dialog.RatioRows = std::min(loanTypes.size(), RatioRowCount);
    for (std::size_t row = 0; row < dialog.RatioRows; ++row) {
        dialog.lblLoanType[row] = loanTypes[row].Name;
        dialog.FER[row].Text = PercentText(static_cast<double>(loanTypes[row].FrontRatio) * 100);
        dialog.BER[row].Text = PercentText(static_cast<double>(loanTypes[row].BackRatio) * 100);
    }
}

} // namespace

std::optional<SettingsFault> FillAssumptions(AssumptionsScreen& dialog, Session& session) {
    std::optional<SettingsFault> fault;
    if (session.LoanTypes.empty()) {
        fault = LoadLoanTypes(SettingsFile(session.Folder), session.LoanTypes);
        session.From.reset();
    }
    FillFields(dialog, session);
    return fault;
}

void FillFields(AssumptionsScreen& dialog, const Session& session) {
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
    FillRatioRows(dialog, session.LoanTypes);
    RememberFilled(dialog);
}

std::string FurtherBrackets(const AssumptionsScreen& dialog) {
    if (dialog.TaxBrackets <= TaxRowCount)
        return {};
    const std::size_t further = dialog.TaxBrackets - TaxRowCount;
    return "The settings file keeps " + std::to_string(further) +
           (further == 1 ? " further bracket." : " further brackets.");
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

} // namespace Ledgrove::Module1
