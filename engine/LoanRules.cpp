#include "engine/LoanRules.h"

#include "engine/Arithmetic.h"
#include "engine/FinancialFunctions.h"
#include "engine/Rounding.h"

namespace Ledgrove::Module1 {

namespace {

/// The arguments that all steps of one home's housing cost share.
struct CaseSteps {
    const Inputs& In;
    const Rules& By;
    Results& All;
    HomeCase& Home;
    HomeDecisions& Decided;
    Arithmetic& Faults;
};

void TakeRatios(HomeCase& home, const LoanType& loanType) {
    home.FrontRatio = loanType.FrontRatio;
    home.BackRatio = loanType.BackRatio;
}

float DownPaymentOn(CaseSteps& steps, DownPaymentBase percentOf) {
    const Scenario& scenario = steps.All.Scenario;
    if (!scenario.DownAsPercent) {
        steps.Decided.DownPayment = DownPaymentBase::FixedAmount;
        return scenario.FixedDown;
    }
    steps.Decided.DownPayment = percentOf;
    const float price = percentOf == DownPaymentBase::BasePrice ? steps.All.StdCase.Cost : steps.Home.Cost;
    return steps.Faults.Single(static_cast<double>(scenario.PctDown) * static_cast<double>(price));
}

float PresentValueOfSavings(CaseSteps& steps) {
    const AssumptionSet& assumptions = steps.By.Assumptions;
    const bool ownTerms = assumptions.UsePVVars;
    steps.All.Decisions.PVSavings = ownTerms ? SavingsTerms::PVVariables : SavingsTerms::Loan;
    const double rate = ownTerms ? assumptions.PVRate : steps.Home.IntRate;
    const double years = ownTerms ? assumptions.PVTerm : static_cast<float>(steps.In.TermYears);
    return steps.Faults.Single(
        PV(rate / 12, years * 12, -static_cast<double>(steps.All.Scenario.UtilitySavings)));
}

/// The notice appears at most once after each edit of the inputs that set the flag.
void SpendNoticeFlag(Results& results, const LoanType& loanType) {
    if (!loanType.IsEEM || !results.Scenario.EEMNoticeFlag || results.GMHCase.PVSavings <= 0)
        return;
    results.Scenario.EEMNoticeFlag = false;
    // Intended: the notice also appears if both are equal, although the savings then pay for the upgrade.
    results.NoticeApplies = results.GMHCase.PVSavings <= results.Scenario.CostDifference;
}

/// The FHA and VA EEMs finance the whole upgrade if the savings are worth it. The down payment is then a
/// percentage of the base home's price.
DownPaymentBase LabelledDownPaymentBase(const Results& results, MortgageOption option) {
    const bool upgradeFinanced = BenefitOf(option) == EEMBenefit::FinancedUpgrade &&
                                 results.GMHCase.PVSavings >= results.Scenario.CostDifference;
    return upgradeFinanced ? DownPaymentBase::BasePrice : DownPaymentBase::OwnPrice;
}

/// A down payment exactly on an edge belongs to the cheaper band.
PMIBand BandOf(float downFraction) {
    if (downFraction < 0.05F)
        return PMIBand::Below5;
    if (downFraction < 0.10F)
        return PMIBand::Below10;
    if (downFraction < 0.15F)
        return PMIBand::Below15;
    return downFraction < 0.20F ? PMIBand::Below20 : PMIBand::NoPMI;
}

/// The annual PMI premium as a fraction of the loan.
float PMIMultiplier(const AssumptionSet& assumptions, PMIBand band) {
    switch (band) {
    case PMIBand::Below5:
        return assumptions.PMIMult1;
    case PMIBand::Below10:
        return assumptions.PMIMult2;
    case PMIBand::Below15:
        return assumptions.PMIMult3;
    case PMIBand::Below20:
        return assumptions.PMIMult4;
    case PMIBand::None:
    case PMIBand::NoPMI:
        break;
    }
    return 0;
}

float DownFraction(CaseSteps& steps) {
    const Scenario& scenario = steps.All.Scenario;
    if (scenario.DownAsPercent)
        return scenario.PctDown;
    // Intended: both homes use the base home's price.
    return steps.Faults.Single(
        steps.Faults.Quotient(scenario.FixedDown, steps.All.StdCase.Cost, Fault::ZeroBasePrice));
}

void ComputePayment(CaseSteps& steps) {
    HomeCase& home = steps.Home;
    Arithmetic& arithmetic = steps.Faults;
    const AssumptionSet& assumptions = steps.By.Assumptions;
    const double cost = home.Cost;
    home.LoanAmount = arithmetic.Single(cost - static_cast<double>(home.DownPayment));
    const double loan = home.LoanAmount;
    home.MortPayment =
        arithmetic.Single(PMT(static_cast<double>(home.IntRate) / 12, steps.In.TermYears * 12.0, -loan));

    home.InsMonthly = arithmetic.Single(static_cast<double>(AsTyped(assumptions.InsurancePct)) * cost / 12);
    home.TaxMonthly =
        arithmetic.Single(static_cast<double>(AsTyped(assumptions.RealEstateTaxPct)) * cost / 12);
    steps.Decided.PMI = BandOf(DownFraction(steps));
    const double multiplier = PMIMultiplier(assumptions, steps.Decided.PMI);
    home.PMIMonthly = arithmetic.Single(multiplier * loan / 12);

    const double principalAndInterest = home.MortPayment;
    const double insurance = home.InsMonthly;
    const double tax = home.TaxMonthly;
    const double pmi = home.PMIMonthly;
    home.PITI = arithmetic.Single(tax + principalAndInterest + insurance + pmi);
    home.TIPMonthly = arithmetic.Single(insurance + tax + pmi);
    home.PITIU = arithmetic.Single(static_cast<double>(home.PITI) + static_cast<double>(home.UtilMonthly));
}

void ComputeIncomeNeeded(CaseSteps& steps, HomeCode code) {
    HomeCase& home = steps.Home;
    const double piti = home.PITI;
    const double debt = steps.All.Scenario.MonthlyDebt;
    const double savings = steps.All.Scenario.UtilitySavings;
    const auto byRatio = [&steps](double amount, float ratio) {
        return steps.Faults.Quotient(amount, ratio, Fault::ZeroRatio);
    };
    double front = 0;
    double back = 0;
    if (code == HomeCode::Std) {
        front = byRatio(piti, home.FrontRatio) * 12;
        back = byRatio(debt + piti, home.BackRatio) * 12;
    } else {
        // Intended: only the savings are divided by the front ratio.
        front = (piti - byRatio(savings, home.FrontRatio)) * 12;
        back = byRatio(debt + piti - savings, home.BackRatio) * 12;
    }
    const float byFront = steps.Faults.Single(WholeDollarsFromCents(front));
    const float byBack = steps.Faults.Single(WholeDollarsFromCents(back));
    home.IncomeNeeded = MaxOf(byFront, byBack);
    steps.Decided.IncomeNeeded = DecidingRatio(home.IncomeNeeded, byFront, byBack);
}

void ComputeCase(CaseSteps& steps, HomeCode code) {
    const bool labelled = code == HomeCode::GMH;
    HomeCase& home = steps.Home;
    const auto option = labelled ? steps.In.GMH.Option : steps.In.Std.Option;
    const LoanType* loanType = FindLoanType(steps.By.LoanTypes, option);
    if (!loanType)
        return steps.Faults.Fail(Fault::MissingLoanType);
    TakeRatios(home, *loanType);
    auto percentOf = DownPaymentBase::OwnPrice;
    if (labelled) {
        home.PVSavings = PresentValueOfSavings(steps);
        // After a fault, the notice flag must stay as it is.
        if (steps.Faults.Faulted())
            return;
        SpendNoticeFlag(steps.All, *loanType);
        percentOf = LabelledDownPaymentBase(steps.All, *option);
    }
    home.DownPayment = DownPaymentOn(steps, percentOf);
    if (home.Cost > 0) {
        ComputePayment(steps);
    } else {
        home.DownPayment = 0;
        steps.Decided.DownPayment = DownPaymentBase::None;
    }
    ComputeIncomeNeeded(steps, code);
}

void ClearFigures(HomeCase& home) {
    home.DownPayment = home.LoanAmount = home.MortPayment = home.InsMonthly = home.TaxMonthly =
        home.PMIMonthly = 0;
    home.PITI = home.PITIU = home.IncomeNeeded = home.TIPMonthly = home.PVSavings = 0;
}

} // namespace

const LoanType* FindLoanType(const LoanTypeList& loanTypes, std::optional<MortgageOption> option) {
    if (!option)
        return nullptr;
    const auto index = static_cast<std::size_t>(CodeOf(*option)) - 1;
    return index < loanTypes.size() ? &loanTypes[index] : nullptr;
}

void ComputeHomeCase(const Inputs& inputs, const Rules& rules, HomeCode code, Results& results) {
    Arithmetic arithmetic;
    HomeDecisions& decided = results.Decided(code);
    CaseSteps steps{inputs, rules, results, results.Home(code), decided, arithmetic};
    ComputeCase(steps, code);
    decided.CaseFault = arithmetic.What();
    if (arithmetic.Faulted())
        ClearFigures(steps.Home);
}

} // namespace Ledgrove::Module1
