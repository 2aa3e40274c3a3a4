#include "engine/CashFlow.h"

#include <algorithm>

#include "engine/Arithmetic.h"
#include "engine/FinancialFunctions.h"
#include "engine/NumberText.h"

namespace Ledgrove::Module1 {

namespace {

/// The interest part of the payment in the middle month of the loan.
double MiddleInterest(const HomeCase& home, double periods) {
    return IPMT(static_cast<double>(home.IntRate) / 12, periods / 2, periods,
                -static_cast<double>(home.LoanAmount));
}

float TaxSavingsOf(const Session& session, double periods, Arithmetic& arithmetic) {
    const double extraInterest =
        MiddleInterest(session.GMHCase, periods) - MiddleInterest(session.StdCase, periods);
    // Whoever stays longer than the mortgage runs has years without interest to deduct.
    const double share = session.Assumptions.YearsInHome > session.Screen.xMortTerm ? 0.75 : 1.0;
    return arithmetic.Single(extraInterest * static_cast<double>(session.Scenario.MarginalTaxRate) * share);
}

} // namespace

float LookupTaxRate(const TaxSchedule& schedule, float income) {
    const auto bracket = std::find_if(schedule.begin(), schedule.end(), [income](const TaxBracket& row) {
        return income > row.LowEnd && (income <= row.HighEnd || row.HighEnd == -1);
    });
    return bracket == schedule.end() ? 0 : ParseFieldValue(PlainText(bracket->Rate), 100);
}

void ComputeCashFlow(Session& session) {
    const HomeCase& base = session.StdCase;
    const HomeCase& labelled = session.GMHCase;
    Scenario& result = session.Scenario;
    Arithmetic arithmetic;
    const auto store = [&arithmetic](float& target, double value) {
        if (!arithmetic.Faulted())
            target = arithmetic.Single(value);
    };
    const double periods = session.Screen.xMortTerm * 12.0;
    const double rate = static_cast<double>(labelled.IntRate) / 12;

    store(result.MortgageSavings, static_cast<double>(base.PITI) - static_cast<double>(labelled.PITI));
    store(result.UtilitySavings,
          static_cast<double>(base.UtilMonthly) - static_cast<double>(labelled.UtilMonthly));

    store(result.TaxSavings, static_cast<double>(TaxSavingsOf(session, periods, arithmetic)));
    store(result.ShownTaxSavings, session.Screen.chkDoTax0 ? static_cast<double>(result.TaxSavings) : 0);
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
    store(result.SavingsAfterYearsInHome, FV(rate, session.Assumptions.YearsInHome * 12.0, -net));
    store(result.SavingsAfter30Years, FV(rate, 360, -net));
    store(result.PVNetBeforeTax, -PV(rate, periods, static_cast<double>(result.NetBeforeTax)));
    store(result.PVNetCashFlow, -PV(rate, periods, net));
}

} // namespace Ledgrove::Module1
