#include "engine/Evaluate.h"

#include "engine/Affordability.h"
#include "engine/CashFlow.h"
#include "engine/LoanRules.h"

namespace Ledgrove {

Carried CarriedBy(const Records& records) {
    return {records.Scenario.EEMAllowance,
            records.Scenario.EEMNoticeFlag,
            {records.StdCase.FrontRatio, records.StdCase.BackRatio},
            {records.GMHCase.FrontRatio, records.GMHCase.BackRatio}};
}

} // namespace Ledgrove

namespace Ledgrove::Module1 {

namespace {

HomeCase StartHome(const HomeInputs& inputs, const Carried::Ratios& ratios) {
    HomeCase home;
    home.Cost = inputs.Cost;
    home.UtilAnnual = inputs.UtilAnnual;
    home.UtilMonthly = static_cast<float>(static_cast<double>(inputs.UtilAnnual) / 12);
    home.IntRate = inputs.IntRate;
    home.Stretch = inputs.Stretch;
    home.FrontRatio = ratios.Front;
    home.BackRatio = ratios.Back;
    return home;
}

float Difference(float a, float b) {
    return static_cast<float>(static_cast<double>(a) - static_cast<double>(b));
}

void StartScenario(const Inputs& inputs, const Rules& rules, Results& results) {
    Scenario& scenario = results.Scenario;
    scenario.AnnualIncome = inputs.AnnualIncome;
    results.Decisions.TaxBracket = FindTaxBracket(rules.TaxBrackets, inputs.AnnualIncome);
    scenario.MarginalTaxRate = LookupTaxRate(rules.TaxBrackets, inputs.AnnualIncome);
    scenario.MonthlyDebt = inputs.MonthlyDebt;
    scenario.PctDown = inputs.PctDown;
    scenario.FixedDown = inputs.FixedDown;
    scenario.DownAsPercent = inputs.DownAsPercent;
    scenario.YearsInHome = rules.Assumptions.YearsInHome;
    scenario.CostDifference = Difference(inputs.GMH.Cost, inputs.Std.Cost);
    // The labelled home's rules need the savings before the cash flow computes them.
    scenario.UtilitySavings = Difference(results.StdCase.UtilMonthly, results.GMHCase.UtilMonthly);
}

} // namespace

Results Evaluate(const Inputs& inputs, const Rules& rules, Carried& carried) {
    Results results;
    results.From = inputs;
    results.StdCase = StartHome(inputs.Std, carried.Std);
    results.GMHCase = StartHome(inputs.GMH, carried.GMH);
    results.Scenario.EEMAllowance = carried.EEMAllowance;
    results.Scenario.EEMNoticeFlag = carried.EEMNoticeFlag;
    StartScenario(inputs, rules, results);
    // The order matters: affordability needs the records of both homes, and the cash flow needs the PITI of
    // both.
    ComputeHomeCase(inputs, rules, HomeCode::Std, results);
    ComputeHomeCase(inputs, rules, HomeCode::GMH, results);
    ComputeAffordability(inputs, rules, HomeCode::Std, results);
    ComputeAffordability(inputs, rules, HomeCode::GMH, results);
    ComputeCashFlow(inputs, rules, results);
    carried = CarriedBy(results);
    results.NoticeFlagAfter = carried.EEMNoticeFlag;
    return results;
}

} // namespace Ledgrove::Module1
