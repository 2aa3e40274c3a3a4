#include "ui/StartUp.h"

#include "tests/engine/TestSession.h"
#include "tests/settings/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* settings = "BUILDERNAME= Acme Homes \r\n"
                                 "LOGOFILE=/pictures/acme.bmp\r\n"
                                 "HELPFILE=LEDGROVE.HLP\r\n"
                                 "FEATURE1= Finished basement\r\n"
                                 "FEATURE2=Larger deck\r\n"
                                 "TAXCAT=57000,10\r\n"
                                 "TAXCAT=-1,35\r\n"
                                 "ASSUMPTION1=0.90\r\n"
                                 "ASSUMPTION2=0.65\r\n"
                                 "PVSAVINGS_RATE=6.24\r\n"
                                 "PVSAVINGS_TERM=30\r\n"
                                 "PVSAVINGS_FLAG=TRUE\r\n"
                                 "YEARS_IN_HOME=7\r\n"
                                 "PMI_MULT1=0.0087\r\n"
                                 "GROWTH_UTILITIES=3.5\r\n"
                                 "LOANTYPE=1,Conventional,,0.280,0.360,,,,FALSE\r\n"
                                 "LOANTYPE=2,Fannie Mae EEM,,0.300,0.380,,,,TRUE\r\n";

class StartUp : public SettingsTest {
protected:
    std::optional<SettingsFault> Load() { return LoadMainScreen(m_session, m_host, Folder()); }

    Session m_session;
    ScriptedHost m_host;
};

TEST_F(StartUp, ReadsTheTablesAndTheHeader) {
    Given(settings);
    ASSERT_FALSE(Load());
    EXPECT_EQ(m_session.Folder, Folder());
    ASSERT_EQ(m_session.LoanTypes.size(), 2U);
    EXPECT_EQ(m_session.LoanTypes[1].Name, "Fannie Mae EEM");
    EXPECT_TRUE(m_session.LoanTypes[1].IsEEM);
    ASSERT_EQ(m_session.TaxBrackets.size(), 2U);
    EXPECT_EQ(m_session.TaxBrackets[1].Rate, 35);
    EXPECT_EQ(m_session.Assumptions.RealEstateTaxPct, 0.90F);
    EXPECT_EQ(m_session.Assumptions.PVRate, 0.0624F);
    EXPECT_TRUE(m_session.Assumptions.UsePVVars);
    EXPECT_EQ(m_session.Assumptions.YearsInHome, 7);
    EXPECT_EQ(m_session.Years.UtilityGrowth, 0.035);
    EXPECT_EQ(m_session.Years.SellingCost, 0.06);
    EXPECT_EQ(m_session.Features.Feature1, " Finished basement");
    EXPECT_EQ(m_session.Features.Feature2, "Larger deck");
    EXPECT_EQ(m_session.Screen.lblfeature1.Text, ""); // both amounts are still zero
    EXPECT_EQ(m_session.HelpFile, "LEDGROVE.HLP");
    EXPECT_EQ(m_session.Header.LogoFile, "/pictures/acme.bmp");
    EXPECT_EQ(m_session.Header.BuilderName, "Acme Homes");
}

TEST_F(StartUp, ShowsOnlyTheWelcomeTab) {
    Given(settings);
    ASSERT_FALSE(Load());
    EXPECT_EQ(m_session.Screen.SSTab1, 0);
    EXPECT_THAT(m_session.Screen.DetlFrame, ElementsAre(true, false, false, false, false));
    EXPECT_EQ(m_session.Screen.lblHomeName.Text, "Custom");
    EXPECT_TRUE(m_session.Screen.chkDoTax0);
}

TEST_F(StartUp, SetsTermAndRates) {
    Given(settings);
    ASSERT_FALSE(Load());
    const MainScreen& screen = m_session.Screen;
    EXPECT_EQ(screen.cboMortTerm.Items.size(), 7U);
    EXPECT_EQ(screen.cboMortTerm.Text(), "30 years");
    EXPECT_EQ(screen.ecGMHTerm.Text, "30 years");
    EXPECT_EQ(screen.xMortTerm, 30);
    EXPECT_EQ(screen.ecRate.Text, "6.500%");
    EXPECT_EQ(screen.ecGMHRate.Text, "6.500%");
    EXPECT_EQ(screen.ecStdRate.Text, "6.5");
}

TEST_F(StartUp, LeavesTheOtherInputsEmpty) {
    Given(settings);
    ASSERT_FALSE(Load());
    for (const char* name : {"ecIncome", "ecMonthlyDebt", "ecPctDown", "ecFixedDown", "ecStdHome",
                             "ecGMHHome", "ecStdUtil", "ecGMHUtil", "ecStdStr", "ecGMHStr", "ecSaveRate"})
        EXPECT_EQ(FieldNamed(m_session, name).Text, "") << name;
}

TEST_F(StartUp, ChoosesPercentDownAndConventional) {
    Given(settings);
    ASSERT_FALSE(Load());
    const MainScreen& screen = m_session.Screen;
    EXPECT_EQ(screen.optDownPayment, 0);
    EXPECT_TRUE(m_session.Scenario.DownAsPercent);
    EXPECT_EQ(screen.ecPctDown.Colour, TextColour::Normal);
    EXPECT_EQ(screen.ecFixedDown.Colour, TextColour::Grey);
    EXPECT_EQ(screen.cboStdMortOption.Items.size(), 3U);
    EXPECT_EQ(screen.cboStdMortOption.Text(), "Conventional");
    EXPECT_EQ(screen.cboGMHMortOption.Items.size(), 3U);
    EXPECT_EQ(screen.cboGMHMortOption.Text(), "Conventional");
}

TEST_F(StartUp, RunsAFirstRecalculationWithoutAMessage) {
    Given(settings);
    ASSERT_FALSE(Load());
    EXPECT_EQ(m_session.StdCase.IntRate, 0.065F);
    EXPECT_EQ(m_session.GMHCase.IntRate, 0.065F);
    EXPECT_EQ(m_session.StdCase.FrontRatio, 0.280F);
    EXPECT_EQ(m_session.Screen.lblNetCashMo.Text, "$0");
    EXPECT_EQ(m_session.Screen.lblYrsIn.Text, " Expected Savings After:   7 Years");
    EXPECT_TRUE(m_host.Messages.empty());
    EXPECT_GE(m_host.PendingEventRuns, 2); // from the recalculation, and at the end
}

TEST_F(StartUp, ClearsTheSession) {
    Given(settings);
    m_session = SampleSession();
    m_session.Scenario.EEMAllowance = 8000;
    m_session.TaxBrackets.resize(9);
    ASSERT_FALSE(Load());
    EXPECT_EQ(m_session.Screen.ecIncome.Text, "");
    EXPECT_EQ(m_session.Scenario.EEMAllowance, 0);
    EXPECT_EQ(m_session.TaxBrackets.size(), 2U);
}

TEST_F(StartUp, WithAnEmptySettingsFileUsesZeroesAndTheReadersDefaults) {
    Given("");
    ASSERT_FALSE(Load());
    EXPECT_TRUE(m_session.LoanTypes.empty());
    EXPECT_TRUE(m_session.TaxBrackets.empty());
    EXPECT_EQ(m_session.Assumptions.YearsInHome, 0);
    EXPECT_EQ(m_session.Header.BuilderName, "Partner Name");
    EXPECT_EQ(m_session.HelpFile, "");
    EXPECT_EQ(m_session.Features.Feature1, " ");
    EXPECT_EQ(m_session.Screen.lblfeature1.Text, "");
    EXPECT_EQ(m_session.Screen.cboGMHMortOption.Text(), "Conventional");
}

TEST_F(StartUp, AMissingSettingsFileIsNamedWithItsFullPath) {
    const auto fault = Load();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::Missing);
    EXPECT_EQ(fault->Path, Folder() / "Ledgrove.ini");
    EXPECT_THAT(Sentence(*fault), HasSubstr((Folder() / "Ledgrove.ini").string()));
    EXPECT_FALSE(Exists(Folder() / "Ledgrove.ini"));
}

TEST_F(StartUp, AfterAnInterruptedSaveNothingIsCreated) {
    WriteBytes(Folder() / "Pennaro2.INI", settings);
    const auto fault = Load();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::InterruptedSave);
    EXPECT_FALSE(Exists(Folder() / "Ledgrove.ini"));
    EXPECT_EQ(ReadBytes(Folder() / "Pennaro2.INI"), settings);
}

TEST_F(StartUp, AfterAnInterruptedSaveTheUserIsAskedAndYesRestores) {
    WriteBytes(Folder() / "Pennaro2.INI", settings);
    m_host.Answers = {MessageAnswer::Yes};
    ASSERT_FALSE(OpenMainScreen(m_session, m_host, Folder()));
    ASSERT_EQ(m_host.Messages.size(), 1U);
    const Message& question = m_host.Messages.front();
    EXPECT_EQ(question.Title, "Ledgrove");
    EXPECT_EQ(question.Text,
              "The last save was interrupted. Your settings are in Pennaro2.INI. Restore them?");
    EXPECT_EQ(question.Icon, MessageIcon::Question);
    EXPECT_EQ(question.Buttons, MessageButtons::YesNo);
    EXPECT_EQ(m_session.Header.BuilderName, "Acme Homes");
    EXPECT_EQ(Bytes(), settings);
    EXPECT_FALSE(Exists(Folder() / "Pennaro2.INI"));
}

TEST_F(StartUp, NoLeavesTheInterruptedSaveAsItIs) {
    WriteBytes(Folder() / "Pennaro2.INI", settings);
    m_host.Answers = {MessageAnswer::No};
    const auto fault = OpenMainScreen(m_session, m_host, Folder());
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::InterruptedSave);
    EXPECT_FALSE(Exists(Folder() / "Ledgrove.ini"));
    EXPECT_EQ(ReadBytes(Folder() / "Pennaro2.INI"), settings);
}

TEST_F(StartUp, AsksOnlyAboutAnInterruptedSave) {
    ASSERT_TRUE(OpenMainScreen(m_session, m_host, Folder()));
    Given(settings);
    WriteBytes(Folder() / "Pennaro2.INI", "BUILDERNAME=half");
    ASSERT_FALSE(OpenMainScreen(m_session, m_host, Folder()));
    EXPECT_EQ(m_session.Header.BuilderName, "Acme Homes");
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(StartUp, ABadLoanTypeStopsTheStartAndNamesItsLine) {
    Given("BUILDERNAME=Acme\r\nLOANTYPE=1,Conventional,,0.280,0.360,,,,FALSE\r\nLOANTYPE=2,Fannie Mae "
          "EEM,,much,0.380,,,,TRUE\r\n");
    const auto fault = Load();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::BadLine);
    EXPECT_EQ(fault->Line, 3U);
    EXPECT_EQ(fault->Path, Folder() / "Ledgrove.ini");
    EXPECT_THAT(Sentence(*fault), HasSubstr("Line 3 "));
}

TEST_F(StartUp, ABadTaxBracketOrAssumptionStopsOnlyItsOwnReader) {
    Given("LOANTYPE=1,Conventional,,0.280,0.360,,,,FALSE\r\nTAXCAT=57000,10\r\nTAXCAT=x,12\r\nASSUMPTION1="
          "high\r\n"
          "YEARS_IN_HOME=7\r\nBUILDERNAME=Acme\r\n");
    ASSERT_FALSE(Load());
    EXPECT_EQ(m_session.TaxBrackets.front().Rate, 10);
    EXPECT_EQ(m_session.Assumptions.YearsInHome, 0);
    EXPECT_EQ(m_session.Header.BuilderName, "Acme");
}

} // namespace

} // namespace Ledgrove::Module1
