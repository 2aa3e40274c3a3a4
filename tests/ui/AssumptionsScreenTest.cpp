#include "AssumptionsDesk.h"
#include "engine/Recalculate.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using namespace Module1;
using testing::HasSubstr;
using AssumptionsScreenTest = AssumptionsDesk;

TEST_F(AssumptionsScreenTest, ShowsTheShippedValuesInTheirFormats) {
    StartShipped();
    EXPECT_EQ(m_dialog.ecRealEstateTaxPct.Text, "0.90%");
    EXPECT_EQ(m_dialog.ecInsurancePct.Text, "0.65%");
    EXPECT_EQ(m_dialog.ecPV_Rate.Text, "6.24%");
    EXPECT_EQ(m_dialog.ecPV_Term.Text, "30");
    EXPECT_EQ(m_dialog.ecYrsInHome.Text, "7");
    EXPECT_FALSE(m_dialog.optUsePVVars);
    EXPECT_EQ(m_dialog.PMI_Multiplier[0].Text, "0.0087");
    EXPECT_EQ(m_dialog.PMI_Multiplier[3].Text, "0.0023");
    EXPECT_EQ(m_dialog.RatioRows, 7U);
    EXPECT_EQ(m_dialog.lblLoanType[4], "FHA EEM");
    EXPECT_EQ(m_dialog.FER[4].Text, "33.00%");
    EXPECT_EQ(m_dialog.BER[4].Text, "45.00%");
    EXPECT_EQ(m_dialog.ecLowEnd[0].Text, "$0");
    EXPECT_EQ(m_dialog.ecHighEnd[0].Text, "$57,000");
    EXPECT_EQ(m_dialog.ecLowEnd[5].Text, "$544,651");
    EXPECT_EQ(m_dialog.ecHighEnd[5].Text, "");
    EXPECT_EQ(m_dialog.ecRate[5].Text, "35.00%");
}

TEST_F(AssumptionsScreenTest, TwoBracketsShowLowEndsOneDollarAbove) {
    Start("LOANTYPE=1,Conventional,,0.28,0.36,,,,FALSE\r\nTAXCAT=45200,15\r\nTAXCAT=109250,28\r\n");
    EXPECT_EQ(m_dialog.ecLowEnd[0].Text, "$0");
    EXPECT_EQ(m_dialog.ecHighEnd[0].Text, "$45,200");
    EXPECT_EQ(m_dialog.ecRate[0].Text, "15.00%");
    EXPECT_EQ(m_dialog.ecLowEnd[1].Text, "$45,201");
    EXPECT_EQ(m_dialog.ecHighEnd[1].Text, "");
    EXPECT_EQ(m_dialog.ecRate[1].Text, "28.00%");
    EXPECT_EQ(m_dialog.ecLowEnd[2].Text, "");
    EXPECT_EQ(m_dialog.OpenTaxRow, 1U);
}

TEST_F(AssumptionsScreenTest, MoreBracketsThanRowsAreNamedAndKept) {
    std::string settings = "LOANTYPE=1,C,,0.28,0.36,,,,FALSE\r\n";
    for (int bracket = 1; bracket <= 8; ++bracket)
        settings += "TAXCAT=" + std::to_string(bracket * 10000) + ",10\r\n";
    Start(settings);
    EXPECT_EQ(m_dialog.OpenTaxRow, 7U); // none of the rows
    EXPECT_EQ(FurtherBrackets(m_dialog), "The settings file keeps 2 further brackets.");
    EXPECT_EQ(m_dialog.ecHighEnd[5].Text, "$60,000");
    ASSERT_FALSE(Confirm());
    EXPECT_THAT(Bytes(), HasSubstr("TAXCAT=60000,10.00\r\nTAXCAT=70000,10\r\n"));
}

TEST_F(AssumptionsScreenTest, MissingAssumptionsShowZeros) {
    Start("LOANTYPE=1,Conventional,,0.28,0.36,,,,FALSE\r\nTAXCAT=-1,15\r\n");
    EXPECT_EQ(m_dialog.ecRealEstateTaxPct.Text, "0.00%");
    EXPECT_EQ(m_dialog.ecPV_Rate.Text, "0.00%");
    EXPECT_EQ(m_dialog.ecPV_Term.Text, "0");
    EXPECT_EQ(m_dialog.ecYrsInHome.Text, "0");
    EXPECT_EQ(m_dialog.PMI_Multiplier[1].Text, "0");

    m_session.Screen.ecStdHome.Text = "$100,000";
    Recalculate(m_session, m_host); // no down payment
    EXPECT_EQ(m_session.StdCase.LoanAmount, 100000);
    EXPECT_EQ(m_session.StdCase.PMIMonthly, 0);
    EXPECT_EQ(m_session.StdCase.TaxMonthly, 0);
}

TEST_F(AssumptionsScreenTest, ConfirmingWritesPercentagesWithTwoPlaces) {
    Start("LOANTYPE=1,C,,0.28,0.36,,,,FALSE\r\nASSUMPTION1=1.5\r\n");
    ASSERT_FALSE(Confirm());
    EXPECT_THAT(Bytes(), HasSubstr("ASSUMPTION1=1.50\r\n"));
}

TEST_F(AssumptionsScreenTest, ARateWithPercentSignIsHeldAsAFraction) {
    Start("LOANTYPE=1,C,,0.28,0.36,,,,FALSE\r\nPVSAVINGS_RATE=7.5%\r\n");
    EXPECT_FLOAT_EQ(m_session.Assumptions.PVRate, 0.075F);
    EXPECT_EQ(m_dialog.ecPV_Rate.Text, "7.50%");
}

TEST_F(AssumptionsScreenTest, EightLoanTypesShowSevenAndAllAreKept) {
    std::string settings;
    for (int number = 1; number <= 8; ++number)
        settings += "LOANTYPE=" + std::to_string(number) + ",Type,,0.280,0.360,a,b,c,FALSE\r\n";
    Start(settings);
    EXPECT_EQ(m_dialog.RatioRows, 7U);
    ASSERT_FALSE(Confirm());
    EXPECT_THAT(Bytes(), HasSubstr("LOANTYPE=8,Type,,0.280,0.360,a,b,c,FALSE\r\n"));
}

TEST_F(AssumptionsScreenTest, ConfirmingUntouchedChangesOnlyNumberFormats) {
    StartShipped();
    const std::string before = Bytes();
    ASSERT_FALSE(Confirm());
    // "57000,10" is written with the rate as its field shows it
    std::string wanted = before;
    for (const char* line : {"57000,10", "133000,12", "243600,22", "435750,24", "544650,32", "-1,35"}) {
        const auto at = wanted.find(std::string("TAXCAT=") + line + "\r\n");
        ASSERT_NE(at, std::string::npos);
        wanted.insert(at + 7 + std::string(line).size(), ".00");
    }
    const auto sorted = [](const std::string& bytes) {
        std::vector<std::string> lines;
        for (const FileLine& line : SplitLines(bytes))
            lines.push_back(line.Text + line.End);
        std::sort(lines.begin(), lines.end());
        return lines;
    };
    EXPECT_EQ(sorted(Bytes()), sorted(wanted)); // the loan types are now at the end
    EXPECT_EQ(m_session.TaxBrackets.back().HighEnd, -1);
    EXPECT_EQ(m_session.TaxBrackets.back().Rate, 35);
    const std::string first = Bytes();
    ASSERT_FALSE(FillAssumptions(m_dialog, m_session));
    ASSERT_FALSE(Confirm());
    EXPECT_EQ(Bytes(), first);
}

TEST_F(AssumptionsScreenTest, ConfirmingUntouchedChangesNoResult) {
    StartShipped();
    MainScreen& screen = m_session.Screen;
    screen.ecIncome.Text = "$700,000";
    screen.ecStdHome.Text = "$900,000";
    screen.ecGMHHome.Text = "$930,000";
    screen.ecPctDown.Text = "12.00%";
    ASSERT_FALSE(Confirm());
    std::vector<std::string> first;
    for (const auto& entry : LabelTable())
        first.push_back((screen.*entry.Member).Text);
    for (int again = 0; again < 2; ++again) {
        ASSERT_FALSE(FillAssumptions(m_dialog, m_session));
        ASSERT_FALSE(Confirm());
    }
    std::vector<std::string> second;
    for (const auto& entry : LabelTable())
        second.push_back((screen.*entry.Member).Text);
    EXPECT_EQ(first, second);
    EXPECT_FLOAT_EQ(m_session.Scenario.MarginalTaxRate, 0.35F); // the top bracket keeps its rate
}

TEST_F(AssumptionsScreenTest, ATypedRatioIsSavedAsAFractionAndRecalculates) {
    StartShipped();
    m_session.Screen.ecIncome.Text = "$60,000";
    m_dialog.FER[0].Text = "33%";
    ASSERT_FALSE(Confirm());
    EXPECT_THAT(Bytes(), HasSubstr("LOANTYPE=1,Conventional,,0.330,0.360,,,,FALSE\r\n"));
    EXPECT_FLOAT_EQ(m_session.LoanTypes[0].FrontRatio, 0.33F);
    EXPECT_EQ(m_session.Screen.lblStdInc.Text, "$1,650"); // 60,000 x 0.33 / 12
    ASSERT_FALSE(FillAssumptions(m_dialog, m_session));
    EXPECT_EQ(m_dialog.FER[0].Text, "33.00%");
}

TEST_F(AssumptionsScreenTest, AMissingFlagLineIsAddedAsFalseAndReplacedTheNextTime) {
    Start("LOANTYPE=1,C,,0.28,0.36,,,,FALSE\r\n");
    m_dialog.optUsePVVars = true;
    ASSERT_FALSE(Confirm());
    EXPECT_THAT(Bytes(), HasSubstr("PVSAVINGS_FLAG=FALSE\r\n"));
    EXPECT_FALSE(m_session.Assumptions.UsePVVars);
    ASSERT_FALSE(Confirm());
    EXPECT_THAT(Bytes(), HasSubstr("PVSAVINGS_FLAG=TRUE\r\n"));
    EXPECT_TRUE(m_session.Assumptions.UsePVVars);
}

TEST_F(AssumptionsScreenTest, WithoutBracketsSixAreAppended) {
    Start("LOANTYPE=1,C,,0.28,0.36,,,,FALSE\r\n");
    m_dialog.ecHighEnd[0].Text = "$10,000";
    m_dialog.ecRate[0].Text = "12.00%";
    ASSERT_FALSE(Confirm());
    EXPECT_THAT(Bytes(), HasSubstr("TAXCAT=10000,12.00\r\nTAXCAT=0,\r\n"));
    EXPECT_EQ(m_session.TaxBrackets.size(), 6U);
}

TEST_F(AssumptionsScreenTest, LeavingAHighEndMovesTheNextLowEndAtOnce) {
    StartShipped();
    m_dialog.ecHighEnd[1].Text = "50000";
    EXPECT_EQ(LeaveHighEnd(m_context, m_dialog, 1), EntryOutcome::Accepted);
    EXPECT_EQ(m_dialog.ecHighEnd[1].Text, "$50,000");
    EXPECT_EQ(m_dialog.ecLowEnd[2].Text, "$50,001");
}

TEST_F(AssumptionsScreenTest, ARefusedHighEndChangesNothing) {
    StartShipped();
    m_dialog.ecHighEnd[1].Text = "abc";
    EXPECT_EQ(LeaveHighEnd(m_context, m_dialog, 1), EntryOutcome::Refused);
    EXPECT_EQ(m_dialog.ecLowEnd[2].Text, "$133,001");
    ASSERT_EQ(m_host.Messages.size(), 1U);
}

TEST_F(AssumptionsScreenTest, TheLastHighEndDoesNotTouchASeventhRow) {
    StartShipped();
    m_dialog.ecHighEnd[5].Text = "900000";
    EXPECT_EQ(LeaveHighEnd(m_context, m_dialog, 5), EntryOutcome::Accepted);
    EXPECT_EQ(m_dialog.ecHighEnd[5].Text, "$900,000");
}

TEST_F(AssumptionsScreenTest, ALowEndIsFormattedWithoutACheck) {
    StartShipped();
    m_dialog.ecLowEnd[2].Text = "abc";
    LeaveLowEnd(m_session, m_dialog, 2);
    EXPECT_EQ(m_dialog.ecLowEnd[2].Text, "$0");
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(AssumptionsScreenTest, TheSavingsRateKeepsItsTextOnEveryExit) {
    StartShipped();
    m_dialog.ecPV_Rate.Text = "0.5";
    EXPECT_EQ(LeaveFieldAs(m_context, m_dialog.ecPV_Rate, FieldFormat::Percent, FieldFormat::WholePercent),
              EntryOutcome::Accepted);
    EXPECT_EQ(m_dialog.ecPV_Rate.Text, "0.50%");
}

TEST_F(AssumptionsScreenTest, ThePropertyTaxDependsOnHowTheFieldIsLeft) {
    StartShipped();
    m_dialog.ecRealEstateTaxPct.Text = "0.5";
    HandleEntryKey(m_context, m_dialog.ecRealEstateTaxPct, KeyCode::Enter, FieldFormat::WholePercent);
    EXPECT_EQ(m_dialog.ecRealEstateTaxPct.Text, "0.50%");
    m_dialog.ecRealEstateTaxPct.Text = "0.5";
    LeaveField(m_context, m_dialog.ecRealEstateTaxPct, FieldFormat::Percent, AfterEdit::Nothing);
    EXPECT_EQ(m_dialog.ecRealEstateTaxPct.Text, "50.00%");
}

TEST_F(AssumptionsScreenTest, TheUpgradeIsThePriceDifference) {
    StartShipped();
    m_session.Scenario.PriceDifference = 6000;
    CalcExpUpgrValue(m_dialog, m_session);
    EXPECT_EQ(m_dialog.ecExpUpgrValue.Text, "$6,000");
    m_session.Scenario.PriceDifference = -1500;
    CalcExpUpgrValue(m_dialog, m_session);
    EXPECT_EQ(m_dialog.ecExpUpgrValue.Text, "-$1,500");
}

} // namespace
} // namespace Ledgrove
