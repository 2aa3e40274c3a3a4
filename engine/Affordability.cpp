#include "engine/Affordability.h"

#include "engine/Arithmetic.h"
#include "engine/FinancialFunctions.h"
#include "engine/NumberText.h"

namespace Ledgrove::Module1 {

namespace {

// Rows of the loan-type table whose plain ratios stand in where an EEM does not apply.
constexpr int FHACode = 4;
constexpr int VACode = 6;

struct HomeLabels {
    Label &PITI, &MortPayment, &UtilMonthly, &Price, &Down, &Down2, &Mortgage, &Mort, &MaxPayment, &MaxLoan,
        &Qualifies;
};

HomeLabels LabelsOf(MainScreen& s, HomeCode code) {
    if (code == HomeCode::Std)
        return {s.lblStdPITI, s.lblStdMortPayment, s.lblStdUtilMo,   s.lblStdHome,
                s.lblStdDown, s.lblstddown2,       s.lblStdMortgage, s.lblStdMort,
                s.lblStdInc,  s.lblStdMaxHome,     s.lblStdQual};
    return {s.lblGMHPITI, s.lblGMHMortPayment, s.lblGMHUtilMo,   s.lblGMHHome,
            s.lblgmhDown, s.lblgmhdown2,       s.lblgmhMortgage, s.lblGMHMort,
            s.lblGMHInc,  s.lblGMHMaxHome,     s.lblGMHQual};
}

/// 5 % of the base home's price within the program's limits; any other option leaves the last allowance in
/// place.
void SetEEMAllowance(Session& session, std::string_view option) {
    const auto share = static_cast<float>(0.05 * static_cast<double>(session.StdCase.Cost));
    float& allowance = session.Scenario.EEMAllowance;
    if (option == "FHA EEM")
        allowance = share >= 8000 ? 8000.0F : MaxOf(4000, share);
    else if (option == "VA EEM")
        allowance = share >= 6000 ? 6000.0F : MaxOf(3000, share);
}

struct Qualifying {
    double MonthlyIncome;
    double MonthlyDebt;
    double MonthlySavings;
    double Rate; ///< per month
    double Periods;
};

Qualifying QualifyingInputs(const Session& session, const HomeCase& home) {
    return {static_cast<double>(session.Scenario.AnnualIncome) / 12, session.Scenario.MonthlyDebt,
            session.Scenario.UtilitySavings, static_cast<double>(home.IntRate) / 12,
            session.Screen.xMortTerm * 12.0};
}

float OrdinaryPayment(const Session& session, float frontRatio, float backRatio, Arithmetic& arithmetic) {
    const double income = session.Scenario.AnnualIncome;
    return MinOf(arithmetic.Single(income * static_cast<double>(frontRatio) / 12),
                 arithmetic.Single(income * static_cast<double>(backRatio) / 12 -
                                   static_cast<double>(session.Scenario.MonthlyDebt)));
}

/// The first operand takes the whole monthly income, not its share: the EEM rule is applied so, on purpose.
float StretchedPayment(const Qualifying& in, const HomeCase& home, Arithmetic& arithmetic) {
    return MinOf(
        arithmetic.Single(in.MonthlySavings * static_cast<double>(home.FrontRatio) + in.MonthlyIncome),
        arithmetic.Single((in.MonthlyIncome + in.MonthlySavings) * static_cast<double>(home.BackRatio) -
                          in.MonthlyDebt));
}

/// The loan that a payment carries after taxes, insurance and PMI.
double LoanFor(const Qualifying& in, const HomeCase& home) {
    return PV(in.Rate, in.Periods,
              static_cast<double>(home.TIPMonthly) - static_cast<double>(home.MaxPayment));
}

/// The FHA and VA EEMs add the energy allowance when the savings are worth the upgrade and fall back to the
/// plain loan type's ratios when they are not. The payment shown is the one that carries the whole loan.
void ComputeAllowanceLoan(Session& session, HomeCase& home, int plainCode, Arithmetic& arithmetic) {
    const Qualifying in = QualifyingInputs(session, home);
    if (home.PVSavings >= session.Scenario.CostDifference) {
        home.MaxPayment = OrdinaryPayment(session, home.FrontRatio, home.BackRatio, arithmetic);
        home.MaxLoan = arithmetic.Single(
            LoanFor(in, home) + static_cast<double>(MinOf(home.PVSavings, session.Scenario.EEMAllowance)));
    } else {
        const LoanType* plain = FindLoanType(session.LoanTypes, plainCode);
        if (!plain)
            return arithmetic.Fault();
        home.MaxPayment = OrdinaryPayment(session, plain->FrontRatio, plain->BackRatio, arithmetic);
        home.MaxLoan = arithmetic.Single(LoanFor(in, home));
    }
    home.MaxPayment = arithmetic.Single(PMT(in.Rate, in.Periods, -static_cast<double>(home.MaxLoan)));
}

void ComputeMaximums(Session& session, HomeCase& home, std::string_view option, Arithmetic& arithmetic) {
    if (option == "FHA EEM" || option == "VA EEM") {
        ComputeAllowanceLoan(session, home, option == "FHA EEM" ? FHACode : VACode, arithmetic);
    } else {
        const Qualifying in = QualifyingInputs(session, home);
        const bool stretched = (option == "Freddie Mac EEM" || option == "Fannie Mae EEM") &&
                               home.PVSavings >= session.Scenario.CostDifference;
        home.MaxPayment = stretched ? StretchedPayment(in, home, arithmetic)
                                    : OrdinaryPayment(session, home.FrontRatio, home.BackRatio, arithmetic);
        home.MaxLoan = arithmetic.Single(LoanFor(in, home));
    }
    home.MaxHome =
        arithmetic.Single(static_cast<double>(home.MaxLoan) + static_cast<double>(home.DownPayment));
}

} // namespace

void ComputeAffordability(Session& session, HomeCode code) {
    HomeCase& home = code == HomeCode::GMH ? session.GMHCase : session.StdCase;
    const HomeLabels labels = LabelsOf(session.Screen, code);
    MoneyText(home.PITI, labels.PITI.Text);
    MoneyText(home.MortPayment, labels.MortPayment.Text);
    MoneyText(home.UtilMonthly, labels.UtilMonthly.Text);

    // The EEM rules are the labelled home's; the base home's options are plain ones.
    std::string_view option;
    if (code == HomeCode::GMH) {
        option = session.Screen.cboGMHMortOption.Text();
        SetEEMAllowance(session, option);
    }
    MoneyText(home.Cost, labels.Price.Text);
    MoneyText(home.DownPayment, labels.Down.Text);
    MoneyText(home.DownPayment, labels.Down2.Text);
    MoneyText(home.LoanAmount, labels.Mortgage.Text);
    MoneyText(home.LoanAmount, labels.Mort.Text);

    Arithmetic arithmetic;
    ComputeMaximums(session, home, option, arithmetic);
    if (arithmetic.Faulted())
        home.MaxPayment = home.MaxLoan = home.MaxHome = 0;
    MoneyText(home.MaxPayment, labels.MaxPayment.Text);
    MoneyText(home.MaxLoan, labels.MaxLoan.Text);

    // Read back from the labels: what is shown decides, and equal amounts do not qualify.
    const bool qualifies = ParseFieldValue(labels.Mortgage.Text, 1) < ParseFieldValue(labels.MaxLoan.Text, 1);
    labels.Qualifies.Text = qualifies ? "YES" : "*NO";
}

} // namespace Ledgrove::Module1
