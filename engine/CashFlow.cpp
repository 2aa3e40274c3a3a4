#include "engine/CashFlow.h"

#include <algorithm>

#include "engine/Arithmetic.h"
#include "engine/FinancialFunctions.h"
#include "engine/Rounding.h"

namespace Ledgrove::Module1 {

namespace {

/// The interest in the payment in the middle month of the loan. The tax savings use it for every month.
double MiddleInterest(const HomeCase& home, double periods) {
    return IPMT(static_cast<double>(home.IntRate) / 12, periods / 2, periods,
                -static_cast<double>(home.LoanAmount));
}

float TaxSavingsOf(const Results& results, double periods, Arithmetic& arithmetic) {
    const double extraInterest =
        MiddleInterest(results.GMHCase, periods) - MiddleInterest(results.StdCase, periods);
    // A buyer who stays longer than the mortgage term has years without interest to deduct.
    const double share = results.Decisions.StaysBeyondTerm ? 0.75 : 1.0;
    return arithmetic.Single(extraInterest * static_cast<double>(results.Scenario.MarginalTaxRate) * share);
}

} // namespace

std::optional<std::size_t> FindTaxBracket(const TaxSchedule& schedule, float income) {
    const auto bracket = std::find_if(schedule.begin(), schedule.end(), [income](const TaxBracket& row) {
        return income > row.LowEnd && (income <= row.HighEnd || row.HighEnd == -1);
    });
    if (bracket == schedule.end())
        return std::nullopt;
    return static_cast<std::size_t>(bracket - schedule.begin());
}

float LookupTaxRate(const TaxSchedule& schedule, float income) {
    const auto bracket = FindTaxBracket(schedule, income);
    return bracket ? AsTyped(schedule[*bracket].Rate) : 0;
}

void ComputeCashFlow(const Inputs& inputs, const Rules& rules, Results& results) {
    const HomeCase& base = results.StdCase;
    const HomeCase& labelled = results.GMHCase;
    Scenario& result = results.Scenario;
    Arithmetic arithmetic;
    const auto store = [&arithmetic](float& target, double value) {
        if (!arithmetic.Faulted())
            target = arithmetic.Single(value);
    };
    const double periods = inputs.TermYears * 12.0;
    const double rate = static_cast<double>(labelled.IntRate) / 12;
    const int yearsInHome = rules.Assumptions.YearsInHome;
    results.Decisions.StaysBeyondTerm = yearsInHome > inputs.TermYears;

    store(result.MortgageSavings, static_cast<double>(base.PITI) - static_cast<double>(labelled.PITI));
    store(result.UtilitySavings,
          static_cast<double>(base.UtilMonthly) - static_cast<double>(labelled.UtilMonthly));

    store(result.TaxSavings, static_cast<double>(TaxSavingsOf(results, periods, arithmetic)));
    store(result.ShownTaxSavings, inputs.IncludeTaxes ? static_cast<double>(result.TaxSavings) : 0);
    store(result.NetBeforeTax,
          static_cast<double>(result.UtilitySavings) + static_cast<double>(result.MortgageSavings));
    store(result.NetMonthlyCashFlow,
          static_cast<double>(result.NetBeforeTax) + static_cast<double>(result.TaxSavings));

    store(result.ExtraCashToday, static_cast<double>(labelled.DownPayment) -
                                     static_cast<double>(base.DownPayment) -
                                     static_cast<double>(result.ClosingCostAdjust));
    store(result.PriceDifference, static_cast<double>(labelled.Cost) - static_cast<double>(base.Cost));

    const double net = result.NetMonthlyCashFlow;
    store(result.SavingsAfter7Years, FV(rate, 84, -net));
    store(result.SavingsAfterYearsInHome, FV(rate, yearsInHome * 12.0, -net));
    store(result.SavingsAfter30Years, FV(rate, 360, -net));
    store(result.PVNetBeforeTax, -PV(rate, periods, static_cast<double>(result.NetBeforeTax)));
    store(result.PVNetCashFlow, -PV(rate, periods, net));
    results.Decisions.CashFlowFault = arithmetic.What();
}

} // namespace Ledgrove::Module1
