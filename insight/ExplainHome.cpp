#include "engine/NumberText.h"
#include "engine/Rounding.h"
#include "insight/ExplainWords.h"
#include "insight/ExplainWriter.h"
#include "settings/LineSyntax.h"

// The costs of a home and the loan that the buyer qualifies for.
namespace Ledgrove {

namespace {

using S = MainScreen;

/// The steps of one home.
class HomeSteps {
public:
    HomeSteps(ExplanationWriter& writer, HomeCode home)
        : m_writer(writer)
        , m_labelled(home == HomeCode::GMH)
        , m_record(writer.Of().Record())
        , m_home(m_record.Home(home))
        , m_decided(m_labelled ? m_record.Decisions.GMH : m_record.Decisions.Std)
        , m_option(m_labelled ? writer.Of().Now().GMH.Option : writer.Of().Now().Std.Option)
        , m_code(home) {
        writer.TakeHome(home);
    }

    void Costs();
    void Affordability();

private:
    using Labels = ExplanationWriter::Labels;

    void Case(Figure figure, std::string_view expression, std::string because = {}, Labels labels = {});
    void PresentValue();
    void DownPayment();
    void Insurance();
    void IncomeNeeded();
    void Allowance();
    void Maximums();
    void Qualifies();
    std::string RatioBecause() const;
    std::string LoanBecause() const;
    std::string PaymentExpression() const;
    std::string FaultReason(Fault fault) const { return AsReason(FaultSentence(fault, m_code, m_option)); }
    /// Labels of this home: the first of the base home, the second of the labelled one.
    Label S::*Of(Label S::*base, Label S::*labelled) const { return m_labelled ? labelled : base; }

    ExplanationWriter& m_writer;
    bool m_labelled;
    const Results& m_record;
    const HomeCase& m_home;
    const HomeDecisions& m_decided;
    std::optional<MortgageOption> m_option;
    HomeCode m_code;
};

/// Whether the savings pay for the upgrade, as the rules decided: "Savings worth $9,229 pay for the price
/// difference of $6,000".
std::string UpgradeWords(const Results& record, bool savingsPay) {
    const float savings = record.GMHCase.PVSavings;
    const float difference = record.Scenario.CostDifference;
    if (difference <= 0 && savingsPay)
        return "The GREENMARK home does not cost more than the base home";
    std::string worth = Module1::MoneyText(savings);
    std::string cost = Module1::MoneyText(difference);
    if (worth == cost) {
        worth = ValueText(static_cast<double>(savings), CellUnit::Dollars);
        cost = ValueText(static_cast<double>(difference), CellUnit::Dollars);
    }
    return "Savings worth " + worth + (savingsPay ? " pay" : " do not pay") +
           " for the price difference of " + cost;
}

/// "The front-end ratio allows less", or what is said where both decide.
std::string RatioWords(QualifyingRatio ratio, const char* does, const char* both) {
    if (ratio == QualifyingRatio::Both)
        return both;
    return std::string(ratio == QualifyingRatio::FrontEnd ? "The front-end ratio" : "The back-end ratio") +
           does;
}

/// A figure that a fault, or a home without a price, sets to 0.
void HomeSteps::Case(Figure figure, std::string_view expression, std::string because, Labels labels) {
    if (m_decided.CaseFault != Fault::None)
        return m_writer.Add(figure, "0", FaultReason(m_decided.CaseFault), labels);
    if (!(m_home.Cost > 0))
        return m_writer.Add(figure, "0", "The home has no price", labels);
    m_writer.Add(figure, expression, std::move(because), labels);
}

void HomeSteps::PresentValue() {
    const Labels labels{&S::lblPVofSavings};
    if (!m_labelled)
        return m_writer.Add(Figure::StdPVSavings, "0", "Only the GREENMARK home has energy savings");
    if (m_decided.CaseFault != Fault::None)
        return m_writer.Add(Figure::GMHPVSavings, "0", FaultReason(m_decided.CaseFault), labels);
    if (m_record.Decisions.PVSavings == SavingsTerms::PVVariables)
        return m_writer.Add(
            Figure::GMHPVSavings, "PV(PVSAVINGS_RATE / 12, PVSAVINGS_TERM * 12, -Scenario.UtilitySavings)",
            std::string(Key::PVFlag) + " is TRUE: the rate and term of the assumptions", labels);
    m_writer.Add(Figure::GMHPVSavings, "PV(@IntRate / 12, Term * 12, -Scenario.UtilitySavings)",
                 std::string(Key::PVFlag) + " is FALSE: the rate and term of the loan", labels);
}

void HomeSteps::DownPayment() {
    const Labels labels{Of(&S::lblStdDown, &S::lblgmhDown), Of(&S::lblstddown2, &S::lblgmhdown2)};
    switch (m_decided.DownPayment) {
    case DownPaymentBase::FixedAmount:
        return Case(Figure::StdDownPayment, "Scenario.FixedDown", "The fixed amount is in force", labels);
    case DownPaymentBase::BasePrice:
        return Case(Figure::StdDownPayment, "Scenario.PctDown * StdCase.Cost",
                    UpgradeWords(m_record, true) + ": the percentage is taken of the base home's price",
                    labels);
    case DownPaymentBase::OwnPrice:
    case DownPaymentBase::None:
        break;
    }
    std::string because = "The percentage is taken of the home's own price";
    if (m_labelled && m_option && BenefitOf(*m_option) == EEMBenefit::FinancedUpgrade)
        because = UpgradeWords(m_record, false) + ": the percentage is taken of the home's own price";
    Case(Figure::StdDownPayment, "Scenario.PctDown * @Cost", because, labels);
}

struct BandWords {
    std::string_view Key;
    double Below;
};

BandWords WordsOfBand(PMIBand band) {
    switch (band) {
    case PMIBand::Below5:
        return {Key::PMIMult1, 0.05};
    case PMIBand::Below10:
        return {Key::PMIMult2, 0.10};
    case PMIBand::Below15:
        return {Key::PMIMult3, 0.15};
    case PMIBand::Below20:
        return {Key::PMIMult4, 0.20};
    case PMIBand::None:
    case PMIBand::NoPMI:
        break;
    }
    return {"", 0.20};
}

void HomeSteps::Insurance() {
    const Scenario& scenario = m_record.Scenario;
    float down = scenario.PctDown;
    if (!scenario.DownAsPercent)
        down = static_cast<float>(static_cast<double>(scenario.FixedDown) /
                                  static_cast<double>(m_record.StdCase.Cost));
    const BandWords band = WordsOfBand(m_decided.PMI);
    std::string because = PercentText(static_cast<double>(down), band.Below);
    if (scenario.DownAsPercent)
        because += " down";
    else
        because =
            Module1::MoneyText(scenario.FixedDown) + " is " + because + " of the base home's price, which";
    if (band.Key.empty())
        return Case(Figure::StdPMIMonthly, "0", because + " is not below 20 %: no PMI");
    because += " falls below " + Module1::FormatPicture(band.Below * 100, "#0") + " %: ";
    because += band.Key;
    Case(Figure::StdPMIMonthly, std::string(band.Key) + " * @LoanAmount / 12", because);
}

void HomeSteps::IncomeNeeded() {
    if (m_decided.CaseFault != Fault::None)
        return m_writer.Add(Figure::StdIncomeNeeded, "0", FaultReason(m_decided.CaseFault));
    // Only the savings are divided by the front-end ratio.
    const std::string_view byRatios =
        m_labelled
            ? "max((@PITI - Scenario.UtilitySavings / @FrontRatio) * 12, (Scenario.MonthlyDebt + @PITI - "
              "Scenario.UtilitySavings) / @BackRatio * 12)"
            : "max(@PITI / @FrontRatio * 12, (Scenario.MonthlyDebt + @PITI) / @BackRatio * 12)";
    m_writer.AddOwn("@IncomeByRatios", byRatios,
                    RatioWords(m_decided.IncomeNeeded, " requires more income",
                               "Both ratios require the same income in whole dollars"));
    m_writer.AddRounding("@IncomeRounding",
                         static_cast<double>(m_home.IncomeNeeded) - m_writer.ValueOf("@IncomeByRatios"));
    m_writer.Add(Figure::StdIncomeNeeded, "@IncomeByRatios + @IncomeRounding",
                 "Rounded to cents, then to whole dollars");
}

void HomeSteps::Costs() {
    m_writer.Add(Figure::StdUtilMonthly, "@UtilAnnual / 12", {}, {Of(&S::lblStdUtilMo, &S::lblGMHUtilMo)});
    if (m_labelled)
        m_writer.AddCashFlow(Figure::UtilitySavings, "StdCase.UtilMonthly - GMHCase.UtilMonthly", {},
                             {&S::lblUtilSavMo});
    PresentValue();
    DownPayment();
    Case(Figure::StdLoanAmount, "@Cost - @DownPayment", {},
         {Of(&S::lblStdMortgage, &S::lblgmhMortgage), Of(&S::lblStdMort, &S::lblGMHMort)});
    Case(Figure::StdMortPayment, "PMT(@IntRate / 12, Term * 12, -@LoanAmount)", {},
         {Of(&S::lblStdMortPayment, &S::lblGMHMortPayment)});
    Case(Figure::StdTaxMonthly, "ASSUMPTION1 * @Cost / 12");
    Case(Figure::StdInsMonthly, "ASSUMPTION2 * @Cost / 12");
    Insurance();
    Case(Figure::StdPITI, "@MortPayment + @TaxMonthly + @InsMonthly + @PMIMonthly", {},
         {Of(&S::lblStdPITI, &S::lblGMHPITI)});
    Case(Figure::StdTIPMonthly, "@TaxMonthly + @InsMonthly + @PMIMonthly");
    if (m_labelled)
        Case(Figure::StdPITIU, "@PITI + @UtilMonthly");
    else
        Case(Figure::StdPITIU, "@PITI + @UtilMonthly", {},
             {&S::lblStdPITIU, &S::lblMonthlyHCStd, &S::lblMonthlyHCGM});
    IncomeNeeded();
}

void HomeSteps::Allowance() {
    const bool isFHA = m_option == MortgageOption::FHAEEM;
    const std::string least = isFHA ? "4000" : "3000";
    const std::string most = isFHA ? "8000" : "6000";
    std::string because;
    switch (m_record.Decisions.Allowance) {
    case AllowanceRule::Kept:
        return m_writer.Add(Figure::EEMAllowance, "0", "The mortgage option has no energy allowance");
    case AllowanceRule::ShareOfPrice:
        because = "5 % of the base home's price, within the limits of the option";
        break;
    case AllowanceRule::Least:
        because = "5 % of the base home's price is below the least allowance of the option";
        break;
    case AllowanceRule::Most:
        because = "5 % of the base home's price reaches the largest allowance of the option";
        break;
    }
    m_writer.Add(Figure::EEMAllowance, "min(" + most + ", max(" + least + ", 0.05 * StdCase.Cost))", because);
}

/// The payment that both ratios allow.
std::string HomeSteps::PaymentExpression() const {
    if (m_decided.MaxPayment == PaymentRule::Stretched)
        return "min(Scenario.UtilitySavings * @FrontRatio + Scenario.AnnualIncome / 12, "
               "(Scenario.AnnualIncome "
               "/ 12 + Scenario.UtilitySavings) * @BackRatio - Scenario.MonthlyDebt)";
    std::string ratios = "@";
    if (m_decided.MaxPayment == PaymentRule::PlainPartner)
        ratios = std::string(Key::LoanType) + std::to_string(CodeOf(PlainPartner(*m_option))) + ".";
    return "min(Scenario.AnnualIncome * " + ratios + "FrontRatio / 12, Scenario.AnnualIncome * " + ratios +
           "BackRatio / 12 - Scenario.MonthlyDebt)";
}

std::string HomeSteps::RatioBecause() const {
    const std::string because =
        RatioWords(m_decided.MaxPaymentRatio, " allows less", "Both ratios allow the same");
    switch (m_decided.MaxPayment) {
    case PaymentRule::Stretched:
        return UpgradeWords(m_record, true) + ", so the savings count as income. " + because;
    case PaymentRule::PlainPartner:
        return UpgradeWords(m_record, false) + ": the ratios of the plain option count. " + because;
    case PaymentRule::Ordinary:
    case PaymentRule::None:
        break;
    }
    if (m_labelled && m_option && BenefitOf(*m_option) == EEMBenefit::StretchedPayment)
        return UpgradeWords(m_record, false) + ", so the savings do not count as income. " + because;
    return because;
}

std::string HomeSteps::LoanBecause() const {
    const std::string loan = "What the payment repays after taxes, insurance and PMI";
    if (m_decided.MaxLoan == LoanRule::WithSavings)
        return loan + ", and the savings: they are worth less than the energy allowance";
    if (m_decided.MaxLoan == LoanRule::WithAllowance)
        return loan + ", and the energy allowance: the savings are not worth less";
    return loan;
}

void HomeSteps::Maximums() {
    const Labels payment{Of(&S::lblStdInc, &S::lblGMHInc)};
    const Labels loan{Of(&S::lblStdMaxHome, &S::lblGMHMaxHome)};
    if (m_decided.AffordabilityFault != Fault::None) {
        const std::string reason = FaultReason(m_decided.AffordabilityFault);
        m_writer.Add(Figure::StdMaxPayment, "0", reason, payment);
        m_writer.Add(Figure::StdMaxLoan, "0", reason, loan);
        return m_writer.Add(Figure::StdMaxHome, "0", reason);
    }
    const bool carriesLoan = m_decided.PaymentCarriesLoan;
    if (carriesLoan)
        m_writer.AddRounded("@RatioPayment", PaymentExpression(), RatioBecause());
    else
        m_writer.Add(Figure::StdMaxPayment, PaymentExpression(), RatioBecause(), payment);
    std::string expression = "PV(@IntRate / 12, Term * 12, -(@MaxPayment - @TIPMonthly))";
    if (carriesLoan)
        expression = "PV(@IntRate / 12, Term * 12, -(@RatioPayment - @TIPMonthly))";
    if (m_decided.MaxLoan != LoanRule::FromPayment)
        expression += " + min(@PVSavings, Scenario.EEMAllowance)";
    m_writer.Add(Figure::StdMaxLoan, expression, LoanBecause(), loan);
    if (carriesLoan)
        m_writer.Add(Figure::StdMaxPayment, "PMT(@IntRate / 12, Term * 12, -@MaxLoan)",
                     "The payment that repays the whole of the largest loan", payment);
    m_writer.Add(Figure::StdMaxHome, "@MaxLoan + @DownPayment");
}

void HomeSteps::Qualifies() {
    const bool qualifies = m_labelled ? m_record.GMHQualifies : m_record.StdQualifies;
    const std::string loan = Module1::MoneyText(m_home.LoanAmount);
    const std::string largest = Module1::MoneyText(m_home.MaxLoan);
    std::string because = "The whole dollars as shown decide: a mortgage of " + loan;
    because += qualifies ? " is less than the largest loan of " + largest + ": YES"
                         : " is not less than the largest loan of " + largest + ": *NO";
    m_writer.AddShown("@Margin", "@MaxLoan - @LoanAmount", because, qualifies ? "YES" : "*NO",
                      {Of(&S::lblStdQual, &S::lblGMHQual)});
}

void HomeSteps::Affordability() {
    if (m_labelled)
        Allowance();
    Maximums();
    Qualifies();
}

} // namespace

void ExplainPrices(ExplanationWriter& writer) {
    const Insight& insight = writer.Of();
    writer.AddLeaf(LeafOf(insight, "StdCase.Cost"), {&S::lblStdHome, &S::lblHouseValueStd});
    writer.AddLeaf(LeafOf(insight, "GMHCase.Cost"), {&S::lblGMHHome});
    writer.Add(Figure::CostDifference, "GMHCase.Cost - StdCase.Cost");
}

void ExplainHomeCosts(ExplanationWriter& writer) {
    for (const HomeCode home : {HomeCode::Std, HomeCode::GMH})
        HomeSteps(writer, home).Costs();
}

void ExplainAffordability(ExplanationWriter& writer) {
    for (const HomeCode home : {HomeCode::Std, HomeCode::GMH})
        HomeSteps(writer, home).Affordability();
}

} // namespace Ledgrove
