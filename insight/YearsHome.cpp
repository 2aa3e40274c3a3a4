#include "insight/YearsHome.h"

#include <algorithm>

#include "engine/FinancialFunctions.h"

namespace Ledgrove {

namespace {

bool IsFHA(std::optional<MortgageOption> option) {
    return option == MortgageOption::FHA || option == MortgageOption::FHAEEM;
}

/// The FHA charges its premium for 11 years if at least a tenth is paid down, else as long as the loan lasts.
/// An upgrade that the loan finances does not count for that.
int FHAPremiumMonths(const Results& record, HomeCode code, double loan, int periods) {
    constexpr int elevenYears = 132;
    constexpr double tolerance = 0.5; // dollars
    auto price = static_cast<double>(record.Home(code).Cost);
    if (code == HomeCode::GMH && record.Decisions.GMH.DownPayment == DownPaymentBase::BasePrice) {
        loan -= static_cast<double>(record.Scenario.PriceDifference);
        price = static_cast<double>(record.StdCase.Cost);
    }
    return loan <= 0.90 * price + tolerance ? std::min(elevenYears, periods) : periods;
}

/// The law ends the insurance when the loan is scheduled to fall to 78 % of the price. Rounding must not
/// decide where the balance is just that, as can be without interest.
int InsuredMonths(const std::vector<double>& balances, double price) {
    constexpr double rounding = 1e-12;
    const double most = 0.78 * price * (1 + rounding);
    const auto end = std::find_if(balances.begin(), balances.end() - 1,
                                  [most](double balance) { return !(balance > most); });
    return static_cast<int>(end - balances.begin());
}

} // namespace

HomePlan PlanOfLoan(double dollars, double rate, int periods) {
    HomePlan plan;
    plan.Rate = rate;
    plan.Payment = Module1::PMT(rate, periods, -dollars);
    plan.Balances.resize(static_cast<std::size_t>(periods) + 1);
    // From the last payment backwards, because errors of rounding shrink in that direction, and grow in the
    // other.
    for (std::size_t month = plan.Balances.size() - 1; month-- > 1;)
        plan.Balances[month] = (plan.Balances[month + 1] + plan.Payment) / (1 + rate);
    plan.Balances.front() = dollars;
    return plan;
}

HomePlan PlanOf(const Insight& insight, HomeCode code) {
    const Results& record = insight.Record();
    const HomeCase& home = record.Home(code);
    const Inputs& inputs = insight.Now();
    const double loan = std::max(0.0, static_cast<double>(home.LoanAmount));
    const int periods = 12 * inputs.TermYears;
    HomePlan plan = PlanOfLoan(loan, static_cast<double>(home.IntRate) / 12, periods);
    plan.Tax = static_cast<double>(home.TaxMonthly);
    plan.Insurance = static_cast<double>(home.InsMonthly);
    plan.Utilities = static_cast<double>(home.UtilAnnual) / 12;
    plan.TaxRate = inputs.IncludeTaxes ? static_cast<double>(record.Scenario.MarginalTaxRate) : 0;
    if (loan > 0 && home.PMIMonthly > 0) {
        const auto option = code == HomeCode::GMH ? inputs.GMH.Option : inputs.Std.Option;
        plan.PMI = static_cast<double>(home.PMIMonthly);
        plan.PMIEnd = 1 + (IsFHA(option) ? FHAPremiumMonths(record, code, loan, periods)
                                         : InsuredMonths(plan.Balances, static_cast<double>(home.Cost)));
    }
    return plan;
}

HomeFlow MonthOf(const HomePlan& plan, int month, double utilityFactor, double homeFactor) {
    HomeFlow flow;
    double payment = 0;
    if (month <= plan.Periods()) {
        const double before = plan.BalanceAfter(month - 1);
        flow.Balance = plan.BalanceAfter(month);
        flow.Interest = before * plan.Rate;
        flow.Principal = before - flow.Balance;
        payment = plan.Payment;
    }
    flow.PMI = month < plan.PMIEnd ? plan.PMI : 0;
    flow.Tax = plan.Tax * homeFactor;
    flow.Insurance = plan.Insurance * homeFactor;
    flow.Utilities = plan.Utilities * utilityFactor;
    flow.TaxEffect = flow.Interest * plan.TaxRate;
    flow.Cost = payment + flow.PMI + flow.Tax + flow.Insurance + flow.Utilities - flow.TaxEffect;
    return flow;
}

void AddMonth(HomeFlow& year, const HomeFlow& month) {
    year.Interest += month.Interest;
    year.Principal += month.Principal;
    year.Balance = month.Balance;
    year.PMI += month.PMI;
    year.Tax += month.Tax;
    year.Insurance += month.Insurance;
    year.Utilities += month.Utilities;
    year.TaxEffect += month.TaxEffect;
    year.Cost += month.Cost;
}

} // namespace Ledgrove
