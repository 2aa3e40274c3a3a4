#include "engine/LoanRules.h"

#include <cmath>
#include <limits>

#include "engine/Arithmetic.h"
#include "engine/FinancialFunctions.h"
#include "engine/NumberText.h"

namespace Ledgrove::Module1 {

namespace {

constexpr const char* EEMNotice = "The homebuyer may not qualify for the EEM you have selected because the "
                                  "present value of the savings are less "
                                  "than the cost of the energy efficiency upgrade.";

/// A percentage assumption as a fraction, by way of its decimal text so that 1.5 becomes exactly what "1.5"
/// means.
float AssumptionFraction(float percent) {
    return ParseFieldValue(PlainText(percent), 100);
}

void TakeRatios(HomeCase& home, const LoanType& loanType) {
    home.FrontRatio = loanType.FrontRatio;
    home.BackRatio = loanType.BackRatio;
}

float DownPaymentOn(const Scenario& scenario, float price, Arithmetic& arithmetic) {
    if (!scenario.DownAsPercent)
        return scenario.FixedDown;
    return arithmetic.Single(static_cast<double>(scenario.PctDown) * static_cast<double>(price));
}

float PresentValueOfSavings(const Session& session, Arithmetic& arithmetic) {
    const AssumptionSet& assumptions = session.Assumptions;
    const double rate = assumptions.UsePVVars ? assumptions.PVRate : session.GMHCase.IntRate;
    const double years =
        assumptions.UsePVVars ? assumptions.PVTerm : static_cast<float>(session.Screen.xMortTerm);
    return arithmetic.Single(
        PV(rate / 12, years * 12, -static_cast<double>(session.Scenario.UtilitySavings)));
}

/// Shown at most once per edit of the inputs that feed it.
void ShowEEMNotice(Session& session, const LoanType& loanType, Host& host) {
    if (!loanType.IsEEM || !session.Scenario.EEMNoticeFlag || session.GMHCase.PVSavings <= 0)
        return;
    session.Scenario.EEMNoticeFlag = false;
    // Equality included, although such a buyer's savings do pay for the upgrade.
    if (session.GMHCase.PVSavings <= session.Scenario.CostDifference)
        host.ShowMessage({ApplicationTitle, EEMNotice});
}

/// The FHA and VA EEMs finance the whole upgrade when the savings are worth it: the down payment is then
/// taken on the base home's price.
float LabelledDownPayment(const Session& session, Arithmetic& arithmetic) {
    const std::string_view option = session.Screen.cboGMHMortOption.Text();
    const bool paysOnOwnPrice = option == "Freddie Mac EEM" || option == "Fannie Mae EEM" || option == "VA" ||
                                option == "FHA" || option == "Conventional";
    const bool upgradeFinanced =
        !paysOnOwnPrice && session.GMHCase.PVSavings >= session.Scenario.CostDifference;
    return DownPaymentOn(session.Scenario, upgradeFinanced ? session.StdCase.Cost : session.GMHCase.Cost,
                         arithmetic);
}

/// Annual PMI as a fraction of the loan. A down payment exactly on a band's edge falls in the cheaper band.
float PMIMultiplier(const AssumptionSet& assumptions, float downFraction) {
    if (downFraction < 0.05F)
        return assumptions.PMIMult1;
    if (downFraction < 0.10F)
        return assumptions.PMIMult2;
    if (downFraction < 0.15F)
        return assumptions.PMIMult3;
    if (downFraction < 0.20F)
        return assumptions.PMIMult4;
    return 0;
}

float DownFraction(const Session& session, Arithmetic& arithmetic) {
    if (session.Scenario.DownAsPercent)
        return session.Scenario.PctDown;
    // The base home's price for both homes, on purpose.
    return arithmetic.Single(arithmetic.Quotient(session.Scenario.FixedDown, session.StdCase.Cost));
}

void ComputePayment(const Session& session, HomeCase& home, Arithmetic& arithmetic) {
    const double cost = home.Cost;
    home.LoanAmount = arithmetic.Single(cost - static_cast<double>(home.DownPayment));
    const double loan = home.LoanAmount;
    home.MortPayment = arithmetic.Single(
        PMT(static_cast<double>(home.IntRate) / 12, session.Screen.xMortTerm * 12.0, -loan));

    const double insRate = AssumptionFraction(session.Assumptions.InsurancePct);
    const double taxRate = AssumptionFraction(session.Assumptions.RealEstateTaxPct);
    home.InsMonthly = arithmetic.Single(insRate * cost / 12);
    home.TaxMonthly = arithmetic.Single(taxRate * cost / 12);
    const double multiplier = PMIMultiplier(session.Assumptions, DownFraction(session, arithmetic));
    home.PMIMonthly = arithmetic.Single(multiplier * loan / 12);

    const double principalAndInterest = home.MortPayment;
    const double insurance = home.InsMonthly;
    const double tax = home.TaxMonthly;
    const double pmi = home.PMIMonthly;
    home.PITI = arithmetic.Single(tax + principalAndInterest + insurance + pmi);
    home.TIPMonthly = arithmetic.Single(insurance + tax + pmi);
    home.PITIU = arithmetic.Single(static_cast<double>(home.PITI) + static_cast<double>(home.UtilMonthly));
}

/// Cents first, halves to even, then whole dollars, halves away from zero. Beyond single precision not
/// finite.
double WholeDollars(double amount) {
    const double cents = std::nearbyint(amount * 100) / 100;
    constexpr double overflow = std::numeric_limits<double>::infinity();
    // "#0" is the picture "#" with a text for zero.
    return ReadNumber(FormatPicture(cents, "#0")).value_or(overflow);
}

void ComputeIncomeNeeded(const Scenario& scenario, HomeCase& home, HomeCode code, Arithmetic& arithmetic) {
    const double piti = home.PITI;
    const double debt = scenario.MonthlyDebt;
    const double savings = scenario.UtilitySavings;
    double front = 0;
    double back = 0;
    if (code == HomeCode::Std) {
        front = arithmetic.Quotient(piti, home.FrontRatio) * 12;
        back = arithmetic.Quotient(debt + piti, home.BackRatio) * 12;
    } else {
        // Only the savings are divided by the front ratio, on purpose.
        front = (piti - arithmetic.Quotient(savings, home.FrontRatio)) * 12;
        back = arithmetic.Quotient(debt + piti - savings, home.BackRatio) * 12;
    }
    home.IncomeNeeded = MaxOf(arithmetic.Single(WholeDollars(front)), arithmetic.Single(WholeDollars(back)));
}

void ComputeCase(Session& session, HomeCode code, Host& host, Arithmetic& arithmetic) {
    const bool labelled = code == HomeCode::GMH;
    HomeCase& home = labelled ? session.GMHCase : session.StdCase;
    const PickList& option = labelled ? session.Screen.cboGMHMortOption : session.Screen.cboStdMortOption;
    const LoanType* loanType = FindLoanType(session.LoanTypes, option.Code());
    if (!loanType)
        return arithmetic.Fault();
    if (labelled) {
        TakeRatios(home, *loanType);
        home.PVSavings = PresentValueOfSavings(session, arithmetic);
        // A fault abandons the rest, and the rest may show a message.
        if (arithmetic.Faulted())
            return;
        ShowEEMNotice(session, *loanType, host);
        home.DownPayment = LabelledDownPayment(session, arithmetic);
    } else {
        home.DownPayment = DownPaymentOn(session.Scenario, home.Cost, arithmetic);
        TakeRatios(home, *loanType);
    }
    if (home.Cost > 0)
        ComputePayment(session, home, arithmetic);
    else
        home.DownPayment = 0;
    ComputeIncomeNeeded(session.Scenario, home, code, arithmetic);
}

void ClearFigures(HomeCase& home) {
    home.DownPayment = home.LoanAmount = home.MortPayment = home.InsMonthly = home.TaxMonthly =
        home.PMIMonthly = 0;
    home.PITI = home.PITIU = home.IncomeNeeded = home.TIPMonthly = home.PVSavings = 0;
}

} // namespace

const LoanType* FindLoanType(const LoanTypeList& loanTypes, int code) {
    const auto index = static_cast<std::size_t>(code) - 1;
    return code >= 1 && index < loanTypes.size() ? &loanTypes[index] : nullptr;
}

void ComputeHomeCase(Session& session, HomeCode code, Host& host) {
    Arithmetic arithmetic;
    ComputeCase(session, code, host, arithmetic);
    if (arithmetic.Faulted())
        ClearFigures(code == HomeCode::GMH ? session.GMHCase : session.StdCase);
}

} // namespace Ledgrove::Module1
