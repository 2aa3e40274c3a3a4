#include "insight/Conditions.h"

#include <algorithm>
#include <cmath>

#include "engine/Rounding.h"

namespace Ledgrove {

namespace {

struct Span {
    float Least, Most;
};

Span SpanOf(float a, float b) {
    return {std::min(a, b), std::max(a, b)};
}

float Narrowed(double value) {
    return static_cast<float>(value);
}

/// The span with room for `error` at both ends.
Span Widened(const Span& span, double error) {
    if (error == 0)
        return span;
    return {Narrowed(static_cast<double>(span.Least) - error),
            Narrowed(static_cast<double>(span.Most) + error)};
}

/// The sums of two amounts that vary independently, rounded as the engine rounds a sum.
Span SumOf(const Span& a, const Span& b) {
    return {Narrowed(static_cast<double>(a.Least) + static_cast<double>(b.Least)),
            Narrowed(static_cast<double>(a.Most) + static_cast<double>(b.Most))};
}

bool SameRules(const HomeDecisions& a, const HomeDecisions& b) {
    return a.DownPayment == b.DownPayment && a.PMI == b.PMI && a.MaxPayment == b.MaxPayment &&
           a.CaseFault == b.CaseFault && a.AffordabilityFault == b.AffordabilityFault;
}

bool SavingsPay(const Results& results) {
    return results.GMHCase.PVSavings >= results.Scenario.CostDifference;
}

/// PMI a month for a dollar of the loan.
double PMIRate(const HomeCase& home) {
    return home.LoanAmount > 0 ? static_cast<double>(home.PMIMonthly) / static_cast<double>(home.LoanAmount)
                               : 0;
}

/// How far the loan may stand from where it would only rise or only fall with the price. A down payment of
/// more than the price is the only one that is rounded more coarsely than the price.
double LoanError(const HomeCase& a, const HomeCase& b) {
    constexpr float exactBelow = 8388608; // single precision holds every half dollar
    const float largest = std::max(a.DownPayment, b.DownPayment);
    const bool exceedsPrice = a.DownPayment > a.Cost || b.DownPayment > b.Cost;
    return exceedsPrice && largest >= exactBelow ? std::ldexp(static_cast<double>(largest), -23) : 0;
}

/// The same for the payment on it, per month.
double PaymentError(const HomeCase& a, const HomeCase& b) {
    const auto perDollar = [](const HomeCase& home) {
        return home.LoanAmount == 0 ? 0
                                    : std::fabs(static_cast<double>(home.MortPayment + home.PMIMonthly) /
                                                static_cast<double>(home.LoanAmount));
    };
    const double loanError = LoanError(a, b);
    return loanError == 0 ? 0 : loanError * std::max(perDollar(a), perDollar(b));
}

std::optional<bool> Decided(bool always, bool never) {
    if (always)
        return true;
    if (never)
        return false;
    return std::nullopt;
}

/// What the savings add to the largest loan.
float AddedLoan(const HomeDecisions& decided, const Results& results) {
    switch (decided.MaxLoan) {
    case LoanRule::WithSavings:
        return results.GMHCase.PVSavings;
    case LoanRule::WithAllowance:
        return results.Scenario.EEMAllowance;
    case LoanRule::None:
    case LoanRule::FromPayment:
        break;
    }
    return 0;
}

/// The largest loans between two results: the loan from the payment and what the savings add may move in
/// opposite directions.
Span MaxLoanSpan(const HomeCase& a, const HomeCase& b, float addedA, float addedB) {
    if (addedA == addedB)
        return SpanOf(a.MaxLoan, b.MaxLoan);
    const float largest =
        std::max({std::fabs(a.MaxLoan), std::fabs(b.MaxLoan), std::fabs(addedA), std::fabs(addedB)});
    const double rounding = std::ldexp(static_cast<double>(largest), -21); // of the differences and the sum
    return Widened(SumOf(SpanOf(a.MaxLoan - addedA, b.MaxLoan - addedB), SpanOf(addedA, addedB)), rounding);
}

} // namespace

bool NetCondition::Holds(const Results& results) const {
    return (m_withTaxes ? results.Scenario.NetMonthlyCashFlow : results.Scenario.NetBeforeTax) >= 0;
}

std::optional<bool> NetCondition::Throughout(const Results& a, const Results& b) const {
    if (!SameRules(a.Decisions.GMH, b.Decisions.GMH) ||
        a.Decisions.CashFlowFault != b.Decisions.CashFlowFault)
        return std::nullopt;
    const double error = PaymentError(a.GMHCase, b.GMHCase);
    Span net = Widened(SpanOf(a.Scenario.NetBeforeTax, b.Scenario.NetBeforeTax), error);
    if (m_withTaxes)
        net = SumOf(net, Widened(SpanOf(a.Scenario.TaxSavings, b.Scenario.TaxSavings), error));
    return Decided(net.Least >= 0, net.Most < 0);
}

bool SavingsCondition::Holds(const Results& results) const {
    return SavingsPay(results);
}

std::optional<bool> SavingsCondition::Throughout(const Results& a, const Results& b) const {
    if (a.Decisions.GMH.CaseFault != b.Decisions.GMH.CaseFault)
        return std::nullopt;
    const Span savings = SpanOf(a.GMHCase.PVSavings, b.GMHCase.PVSavings);
    const Span upgrade = SpanOf(a.Scenario.CostDifference, b.Scenario.CostDifference);
    return Decided(savings.Least >= upgrade.Most, savings.Most < upgrade.Least);
}

bool QualifiesCondition::Holds(const Results& results) const {
    return m_home == HomeCode::GMH ? results.GMHQualifies : results.StdQualifies;
}

std::optional<bool> QualifiesCondition::Throughout(const Results& a, const Results& b) const {
    const HomeCase& homeA = a.Home(m_home);
    const HomeCase& homeB = b.Home(m_home);
    // With a negative ratio the payment rises and then falls with the income.
    const bool oddRatios = homeA.FrontRatio < 0 || homeA.BackRatio < 0;
    if (oddRatios || !SameRules(Decided(a), Decided(b)))
        return std::nullopt;
    const double error = LoanError(homeA, homeB);
    const Span loan = Widened(SpanOf(homeA.LoanAmount, homeB.LoanAmount), error);
    const Span largest =
        Widened(MaxLoanSpan(homeA, homeB, AddedLoan(Decided(a), a), AddedLoan(Decided(b), b)), error);
    using Module1::ShownDollars;
    return Ledgrove::Decided(ShownDollars(loan.Most) < ShownDollars(largest.Least),
                             ShownDollars(loan.Least) >= ShownDollars(largest.Most));
}

AnswerEdge QualifiesCondition::EdgeBetween(const Results& inside, const Results& outside) const {
    constexpr double rounding = 1 + 1e-5; // of two amounts in single precision
    const bool costsMore = PMIRate(outside.Home(m_home)) > PMIRate(inside.Home(m_home)) * rounding;
    if (Decided(inside).PMI != Decided(outside).PMI && costsMore)
        return AnswerEdge::PMIBand;
    const bool losesSavings = m_home == HomeCode::GMH &&
                              Decided(inside).MaxPayment != Decided(outside).MaxPayment &&
                              !SavingsPay(outside);
    return losesSavings ? AnswerEdge::SavingsWorth : AnswerEdge::None;
}

} // namespace Ledgrove
