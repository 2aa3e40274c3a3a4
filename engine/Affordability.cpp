#include "engine/Affordability.h"

#include "engine/Arithmetic.h"
#include "engine/FinancialFunctions.h"
#include "engine/LoanRules.h"
#include "engine/Rounding.h"

namespace Ledgrove::Module1 {

namespace {

/// The arguments that all steps of one home's affordability share.
struct QualifyingSteps {
    const Rules& By;
    const Scenario& Buyer;
    HomeCase& Home;
    HomeDecisions& Decided;
    Arithmetic& Faults;
    double Rate; ///< per month
    double Periods;
};

struct AllowanceLimits {
    float Least, Most;
};

/// The allowance is 5 % of the base home's price, within the limits of the option. An option without an
/// allowance keeps the last value.
void SetEEMAllowance(Results& results, MortgageOption option) {
    if (BenefitOf(option) != EEMBenefit::FinancedUpgrade)
        return;
    const AllowanceLimits limits =
        option == MortgageOption::FHAEEM ? AllowanceLimits{4000, 8000} : AllowanceLimits{3000, 6000};
    const auto share = static_cast<float>(0.05 * static_cast<double>(results.StdCase.Cost));
    float& allowance = results.Scenario.EEMAllowance;
    if (share >= limits.Most) {
        allowance = limits.Most;
        results.Decisions.Allowance = AllowanceRule::Most;
    } else {
        allowance = MaxOf(limits.Least, share);
        results.Decisions.Allowance =
            limits.Least > share ? AllowanceRule::Least : AllowanceRule::ShareOfPrice;
    }
}

/// The smaller of the payments that the two ratios allow, per month.
float LimitedPayment(QualifyingSteps& steps, PaymentRule rule, double front, double back) {
    const float byFront = steps.Faults.Single(front);
    const float byBack = steps.Faults.Single(back);
    steps.Decided.MaxPayment = rule;
    const float payment = MinOf(byFront, byBack);
    steps.Decided.MaxPaymentRatio = DecidingRatio(payment, byFront, byBack);
    return payment;
}

float OrdinaryPayment(QualifyingSteps& steps, PaymentRule rule, float frontRatio, float backRatio) {
    const double income = steps.Buyer.AnnualIncome;
    return LimitedPayment(steps, rule, income * static_cast<double>(frontRatio) / 12,
                          income * static_cast<double>(backRatio) / 12 -
                              static_cast<double>(steps.Buyer.MonthlyDebt));
}

/// The front-end payment uses the whole monthly income instead of its front-ratio share. This is intended:
/// the EEM rule is applied this way.
float StretchedPayment(QualifyingSteps& steps) {
    const double income = static_cast<double>(steps.Buyer.AnnualIncome) / 12;
    const double savings = steps.Buyer.UtilitySavings;
    return LimitedPayment(steps, PaymentRule::Stretched,
                          savings * static_cast<double>(steps.Home.FrontRatio) + income,
                          (income + savings) * static_cast<double>(steps.Home.BackRatio) -
                              static_cast<double>(steps.Buyer.MonthlyDebt));
}

/// The loan that the largest payment repays after taxes, insurance and PMI.
double LoanFromPayment(const QualifyingSteps& steps) {
    return PV(steps.Rate, steps.Periods,
              static_cast<double>(steps.Home.TIPMonthly) - static_cast<double>(steps.Home.MaxPayment));
}

void ComputeOrdinaryLoan(QualifyingSteps& steps) {
    steps.Decided.MaxLoan = LoanRule::FromPayment;
    steps.Home.MaxLoan = steps.Faults.Single(LoanFromPayment(steps));
}

/// The loan grows by the energy allowance or the present value of the savings, whichever is smaller.
void ComputeAllowanceLoan(QualifyingSteps& steps) {
    HomeCase& home = steps.Home;
    const float allowance = steps.Buyer.EEMAllowance;
    home.MaxPayment = OrdinaryPayment(steps, PaymentRule::Ordinary, home.FrontRatio, home.BackRatio);
    steps.Decided.MaxLoan = home.PVSavings < allowance ? LoanRule::WithSavings : LoanRule::WithAllowance;
    home.MaxLoan =
        steps.Faults.Single(LoanFromPayment(steps) + static_cast<double>(MinOf(home.PVSavings, allowance)));
}

/// The FHA and VA EEMs add the energy allowance if the savings are worth the upgrade; otherwise they use the
/// plain option's ratios. In both cases the payment shown is the one that repays the whole loan.
void ComputeFinancedUpgrade(QualifyingSteps& steps, MortgageOption option, bool savingsPay) {
    HomeCase& home = steps.Home;
    if (savingsPay) {
        ComputeAllowanceLoan(steps);
    } else {
        const LoanType* plain = FindLoanType(steps.By.LoanTypes, PlainPartner(option));
        if (!plain)
            return steps.Faults.Fail(Fault::MissingLoanType);
        home.MaxPayment =
            OrdinaryPayment(steps, PaymentRule::PlainPartner, plain->FrontRatio, plain->BackRatio);
        ComputeOrdinaryLoan(steps);
    }
    steps.Decided.PaymentCarriesLoan = true;
    home.MaxPayment = steps.Faults.Single(PMT(steps.Rate, steps.Periods, -static_cast<double>(home.MaxLoan)));
}

/// `option` selects the rules. It is Conventional for the base home, whose options are all plain, and if no
/// option is chosen.
void ComputeMaximums(QualifyingSteps& steps, MortgageOption option) {
    HomeCase& home = steps.Home;
    const bool savingsPay = home.PVSavings >= steps.Buyer.CostDifference;
    const EEMBenefit benefit = BenefitOf(option);
    if (benefit == EEMBenefit::FinancedUpgrade) {
        ComputeFinancedUpgrade(steps, option, savingsPay);
    } else {
        home.MaxPayment =
            benefit == EEMBenefit::StretchedPayment && savingsPay
                ? StretchedPayment(steps)
                : OrdinaryPayment(steps, PaymentRule::Ordinary, home.FrontRatio, home.BackRatio);
        ComputeOrdinaryLoan(steps);
    }
    home.MaxHome =
        steps.Faults.Single(static_cast<double>(home.MaxLoan) + static_cast<double>(home.DownPayment));
}

} // namespace

void ComputeAffordability(const Inputs& inputs, const Rules& rules, HomeCode code, Results& results) {
    const bool labelled = code == HomeCode::GMH;
    HomeCase& home = results.Home(code);
    HomeDecisions& decided = results.Decided(code);
    const auto option =
        labelled ? inputs.GMH.Option.value_or(MortgageOption::Conventional) : MortgageOption::Conventional;
    SetEEMAllowance(results, option);

    Arithmetic arithmetic;
    QualifyingSteps steps{rules,
                          results.Scenario,
                          home,
                          decided,
                          arithmetic,
                          static_cast<double>(home.IntRate) / 12,
                          inputs.TermYears * 12.0};
    ComputeMaximums(steps, option);
    decided.AffordabilityFault = arithmetic.What();
    if (arithmetic.Faulted())
        home.MaxPayment = home.MaxLoan = home.MaxHome = 0;

    // Intended: this compares the whole dollars that are shown, and equal amounts do not qualify.
    (labelled ? results.GMHQualifies : results.StdQualifies) =
        ShownDollars(home.LoanAmount) < ShownDollars(home.MaxLoan);
}

} // namespace Ledgrove::Module1
