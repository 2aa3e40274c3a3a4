#include "engine/Evaluate.h"

#include "engine/ReadScreen.h"
#include "tests/engine/TestSession.h"

#include <gtest/gtest.h>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

/// The sample: FHA and FHA EEM, with savings worth $9,229 and an upgrade of $6,000.
class Evaluation : public testing::Test {
protected:
    Results Run() {
        Carried carried = m_carried;
        return Evaluate(m_inputs, m_rules, carried);
    }

    Session m_session = SampleSession();
    Rules m_rules = m_session;
    Inputs m_inputs = ReadInputs(m_session.Screen);
    Carried m_carried;
};

TEST_F(Evaluation, GivesEqualResultsForEqualInputs) {
    EXPECT_EQ(Run(), Run());
    EXPECT_EQ(Run().From, m_inputs);
}

TEST_F(Evaluation, RecordsTheDecisionsForTheSample) {
    const Results results = Run();
    const HomeDecisions& base = results.Decisions.Std;
    const HomeDecisions& labelled = results.Decisions.GMH;
    EXPECT_EQ(base.DownPayment, DownPaymentBase::OwnPrice);
    EXPECT_EQ(labelled.DownPayment, DownPaymentBase::BasePrice); // 9,229 pays for 6,000
    EXPECT_EQ(base.PMI, PMIBand::Below15);                       // 10 % down, on the edge of the cheaper band
    EXPECT_EQ(base.MaxPayment, PaymentRule::Ordinary);
    EXPECT_EQ(base.MaxPaymentRatio, QualifyingRatio::FrontEnd); // 6,000 x 0.31 = 1,860 < 6,000 x 0.43 - 350
    EXPECT_EQ(base.MaxLoan, LoanRule::FromPayment);
    EXPECT_EQ(labelled.MaxLoan, LoanRule::WithAllowance); // 8,000 < 9,229
    EXPECT_FALSE(base.PaymentCarriesLoan);
    EXPECT_TRUE(labelled.PaymentCarriesLoan);
    EXPECT_EQ(base.IncomeNeeded, QualifyingRatio::FrontEnd);     // 1,465 / 0.31 > (350 + 1,465) / 0.43
    EXPECT_EQ(results.Decisions.Allowance, AllowanceRule::Most); // 5 % of 200,000 = 10,000
    EXPECT_EQ(results.Decisions.PVSavings, SavingsTerms::Loan);
    EXPECT_EQ(results.Decisions.TaxBracket, 1U); // 57,000 < 72,000 <= 133,000
    EXPECT_FALSE(results.Decisions.StaysBeyondTerm);
    for (const HomeDecisions* home : {&base, &labelled}) {
        EXPECT_EQ(home->CaseFault, Fault::None);
        EXPECT_EQ(home->AffordabilityFault, Fault::None);
    }
    EXPECT_EQ(results.Decisions.CashFlowFault, Fault::None);
    EXPECT_TRUE(results.StdQualifies);
}

TEST_F(Evaluation, RecordsAnAllowanceThatIsAShareOrTheLeast) {
    m_inputs.Std.Cost = m_inputs.GMH.Cost = 100000;
    EXPECT_EQ(Run().Decisions.Allowance, AllowanceRule::ShareOfPrice); // 5,000
    m_inputs.Std.Cost = 60000;
    EXPECT_EQ(Run().Decisions.Allowance, AllowanceRule::Least); // 3,000 < 4,000
    m_inputs.GMH.Option = MortgageOption::FHA;
    EXPECT_EQ(Run().Decisions.Allowance, AllowanceRule::Kept);
}

TEST_F(Evaluation, RecordsSavingsThatAreBelowTheAllowance) {
    m_inputs.GMH.Cost = 200000;
    m_inputs.GMH.UtilAnnual = 2000; // 33.33 per month is worth 5,274
    EXPECT_EQ(Run().Decisions.GMH.MaxLoan, LoanRule::WithSavings);
}

TEST_F(Evaluation, RecordsTheUseOfThePlainPartnersRatios) {
    m_inputs.GMH.Cost = 220000;
    const Results results = Run();
    EXPECT_EQ(results.Decisions.GMH.MaxPayment, PaymentRule::PlainPartner);
    EXPECT_EQ(results.Decisions.GMH.MaxLoan, LoanRule::FromPayment);
    EXPECT_EQ(results.Decisions.GMH.DownPayment, DownPaymentBase::OwnPrice);
}

TEST_F(Evaluation, RecordsAStretchedPayment) {
    m_inputs.GMH.Option = MortgageOption::FreddieMacEEM;
    const Results results = Run();
    EXPECT_EQ(results.Decisions.GMH.MaxPayment, PaymentRule::Stretched);
    // 58.33 x 0.30 + 6,000 = 6,017.50 against (6,000 + 58.33) x 0.38 - 350 = 1,952.17
    EXPECT_EQ(results.Decisions.GMH.MaxPaymentRatio, QualifyingRatio::BackEnd);
}

TEST_F(Evaluation, RecordsTheFaultOfAHome) {
    m_inputs.GMH.Option = std::nullopt;
    EXPECT_EQ(Run().Decisions.GMH.CaseFault, Fault::MissingLoanType);
    m_inputs.GMH.Option = MortgageOption::FHAEEM;
    m_rules.LoanTypes[4].BackRatio = 0;
    EXPECT_EQ(Run().Decisions.GMH.CaseFault, Fault::ZeroRatio);
    m_inputs.DownAsPercent = false;
    m_inputs.Std.Cost = 0;
    EXPECT_EQ(Run().Decisions.GMH.CaseFault, Fault::ZeroBasePrice); // occurs before the fault of the ratio
    m_inputs = ReadInputs(m_session.Screen);
    m_inputs.TermYears = 0;
    EXPECT_EQ(Run().Decisions.Std.CaseFault, Fault::OutOfRange);
}

TEST_F(Evaluation, RecordsThatNoBracketMatches) {
    m_inputs.AnnualIncome = 0;
    m_rules.TaxBrackets.front().LowEnd = 0;
    EXPECT_EQ(Run().Decisions.TaxBracket, std::nullopt);
    EXPECT_EQ(Run().Scenario.MarginalTaxRate, 0);
}

TEST_F(Evaluation, CarriesTheAllowance) {
    Evaluate(m_inputs, m_rules, m_carried);
    EXPECT_EQ(m_carried.EEMAllowance, 8000);
    m_inputs.GMH.Option = MortgageOption::FHA;
    EXPECT_EQ(Evaluate(m_inputs, m_rules, m_carried).Scenario.EEMAllowance, 8000);
}

TEST_F(Evaluation, CarriesTheRatiosWhileTheLoanTypeIsMissing) {
    Evaluate(m_inputs, m_rules, m_carried);
    m_rules.LoanTypes.clear();
    const Results results = Evaluate(m_inputs, m_rules, m_carried);
    EXPECT_EQ(results.StdCase.FrontRatio, 0.310F);
    EXPECT_FLOAT_EQ(results.StdCase.MaxPayment, 1860); // 6,000 x 0.31, although the home's case has a fault
    EXPECT_EQ(m_carried.Std.Back, 0.430F);
}

TEST_F(Evaluation, ClearsTheNoticeFlag) {
    m_carried.EEMNoticeFlag = true;
    EXPECT_FALSE(Evaluate(m_inputs, m_rules, m_carried).NoticeApplies); // the savings pay for the upgrade
    EXPECT_FALSE(m_carried.EEMNoticeFlag);
    m_inputs.GMH.Cost = 220000;
    EXPECT_FALSE(Evaluate(m_inputs, m_rules, m_carried).NoticeApplies);
    m_carried.EEMNoticeFlag = true;
    EXPECT_TRUE(Evaluate(m_inputs, m_rules, m_carried).NoticeApplies);
}

} // namespace

} // namespace Ledgrove::Module1
