#include "AssumptionsDesk.h"
#include "engine/NumberText.h"
#include "engine/Recalculate.h"
#include "settings/AssumptionsFile.h"
#include "settings/TaxScheduleFile.h"

#include <gmock/gmock.h>

// What OK of the assumptions dialog saves, and what it refuses.
namespace Ledgrove {
namespace {

using namespace Module1;
using testing::HasSubstr;
using testing::Not;

class AssumptionsSaveTest : public AssumptionsDesk {
protected:
    bool MayConfirm() { return MayConfirmAssumptions(m_context, m_dialog); }

    /// The session of a program that starts now.
    Session Restarted() {
        Session session;
        EXPECT_FALSE(LoadMainScreen(session, m_host, Folder()));
        return session;
    }

    /// Another copy of the program saves this in place of `line`.
    void ChangedMeanwhile(std::string_view line, std::string_view by) {
        std::string bytes = Bytes();
        const auto at = bytes.find(line);
        ASSERT_NE(at, bytes.npos) << line;
        Given(bytes.replace(at, line.size(), by));
    }
};

TEST_F(AssumptionsSaveTest, OKRefusesWhatTheReaderCannotUse) {
    struct Case {
        Field* Control;
        const char* Text;
        const char* Sentence;
    };
    StartShipped();
    const std::string before = Bytes();
    const Case cases[] = {
        {&m_dialog.PMI_Multiplier[0], "0.87%",
         "You must enter a fraction of the loan amount here, without \"%\". "
         "For example, 0.0087 is 0.87%."},
        {&m_dialog.PMI_Multiplier[3], "", "You must enter a number here."},
        {&m_dialog.ecYrsInHome, "40,000", "You must enter at most 32,767 years here."},
        {&m_dialog.ecYrsInHome, "abc", "You must enter a number here."},
        {&m_dialog.ecPV_Term, "-3", "You must enter a positive number here."},
        {&m_dialog.ecRate[2], "abc", "You must enter a number here."},
        {&m_dialog.ecHighEnd[1], "x", "You must enter a number here."},
        {&m_dialog.BER[6], "?", "You must enter a number here."},
    };
    for (const auto& [control, text, sentence] : cases) {
        m_host.Messages.clear();
        m_log.clear();
        const std::string good = std::exchange(control->Text, text);
        EXPECT_FALSE(MayConfirm()) << text;
        ASSERT_EQ(m_host.Messages.size(), 1U);
        EXPECT_EQ(m_host.Messages[0].Text, sentence);
        EXPECT_EQ(m_log, (std::vector<std::string>{"focus another form's field", "select"}));
        control->Text = good;
    }
    EXPECT_TRUE(MayConfirm());
    EXPECT_EQ(Bytes(), before);
}

// Everything that OK takes: after a restart, the same values are in force.
TEST_F(AssumptionsSaveTest, WhatOKTakesIsInForceAfterARestart) {
    const char* texts[] = {"0",      "0.0087", "0.87%", "40,000",
                           "32,767", "32,768", "1",     "99999999999999999999999999999999999999",
                           "-1",     "",       "abc",   "$5",
                           "1e3",    "12%",    "7.5",   "99999999999999999999.00%"};
    int taken = 0;
    StartShipped();
    const std::string shipped = Bytes();
    for (const char* text : texts) {
        for (Field AssumptionsScreen::*field :
             {&AssumptionsScreen::ecRealEstateTaxPct, &AssumptionsScreen::ecInsurancePct,
              &AssumptionsScreen::ecPV_Rate, &AssumptionsScreen::ecPV_Term,
              &AssumptionsScreen::ecYrsInHome}) {
            m_session = {};
            Start(shipped);
            (m_dialog.*field).Text = text;
            m_dialog.PMI_Multiplier[1].Text = text;
            m_dialog.ecHighEnd[1].Text = text;
            m_dialog.ecRate[3].Text = text;
            if (!MayConfirm())
                continue;
            ASSERT_FALSE(Confirm());
            ++taken;
            const Session restarted = Restarted();
            EXPECT_EQ(restarted.Assumptions.YearsInHome, m_session.Assumptions.YearsInHome) << text;
            EXPECT_EQ(restarted.Assumptions.PVTerm, m_session.Assumptions.PVTerm) << text;
            EXPECT_EQ(restarted.Assumptions.PMIMult4, 0.0023F) << text; // the last line is read
            EXPECT_EQ(restarted.Assumptions.PMIMult2, ParseFieldValue(text, 1)) << text;
            EXPECT_EQ(restarted.TaxBrackets.size(), 6U);
            EXPECT_EQ(restarted.TaxBrackets[1].HighEnd, ParseFieldValue(text, 1)) << text;
            EXPECT_EQ(restarted.TaxBrackets[5].Rate, 35) << text;
        }
    }
    EXPECT_GT(taken, 20);
}

TEST_F(AssumptionsSaveTest, TheOpenLastBracketOfATypedScheduleHasNoUpperLimit) {
    Start("LOANTYPE=1,C,,0.28,0.36,,,,FALSE\r\n");
    const char* highEnds[] = {"$57,000", "$133,000", "$243,600", "$435,750", "$544,650", ""};
    for (std::size_t row = 0; row < TaxRowCount; ++row) {
        m_dialog.ecHighEnd[row].Text = highEnds[row];
        m_dialog.ecRate[row].Text = std::to_string(10 + 5 * row) + ".00%";
    }
    ASSERT_FALSE(Confirm());
    EXPECT_THAT(Bytes(), HasSubstr("TAXCAT=544650,30.00\r\nTAXCAT=-1,35.00\r\n"));
    m_session.Screen.ecIncome.Text = "$700,000";
    Recalculate(m_session, m_host);
    EXPECT_FLOAT_EQ(m_session.Scenario.MarginalTaxRate, 0.35F);
}

TEST_F(AssumptionsSaveTest, UntouchedFieldsKeepWhatAnotherCopySaved) {
    StartShipped();
    ChangedMeanwhile("ASSUMPTION1=0.90", "ASSUMPTION1=1.25");
    ChangedMeanwhile("PVSAVINGS_FLAG=FALSE", "PVSAVINGS_FLAG=TRUE");
    ChangedMeanwhile("YEARS_IN_HOME=7", "YEARS_IN_HOME=12");
    ChangedMeanwhile("TAXCAT=133000,12", "TAXCAT=140000,13");
    ChangedMeanwhile("TAXCAT=-1,35", "TAXCAT=-1,39");
    ChangedMeanwhile("4,FHA,,0.310,0.430", "4,FHA,,0.320,0.440");
    ChangedMeanwhile("PMI_MULT3=0.0046", "PMI_MULT3=0.005");
    m_dialog.ecInsurancePct.Text = "0.70%";
    m_dialog.BER[3].Text = "45.00%";
    m_dialog.ecRate[0].Text = "11.00%";
    ASSERT_FALSE(Confirm());
    for (const char* line : {"ASSUMPTION1=1.25", "ASSUMPTION2=0.70", "PVSAVINGS_FLAG=TRUE",
                             "YEARS_IN_HOME=12", "TAXCAT=57000,11.00", "TAXCAT=140000,13.00",
                             "TAXCAT=-1,39.00", "LOANTYPE=4,FHA,,0.320,0.450,", "PMI_MULT3=0.005"})
        EXPECT_THAT(Bytes(),
                    HasSubstr(std::string(line) + (std::string_view(line).ends_with(',') ? "" : "\r\n")));
    // The session uses what the file now holds.
    EXPECT_EQ(m_session.Assumptions.YearsInHome, 12);
    EXPECT_TRUE(m_session.Assumptions.UsePVVars);
    EXPECT_EQ(m_session.TaxBrackets[1].HighEnd, 140000);
    EXPECT_FLOAT_EQ(m_session.LoanTypes[3].FrontRatio, 0.32F);
    EXPECT_FLOAT_EQ(m_session.LoanTypes[3].BackRatio, 0.45F);
}

TEST_F(AssumptionsSaveTest, AnEntryWithoutABracketIsNamedBeforeItIsDropped) {
    Start("LOANTYPE=1,C,,0.28,0.36,,,,FALSE\r\nTAXCAT=10000,10\r\nTAXCAT=-1,20\r\n");
    EXPECT_TRUE(MayConfirm());
    EXPECT_TRUE(m_host.Messages.empty());
    m_dialog.ecHighEnd[2].Text = "$0"; // only passed through
    EXPECT_TRUE(MayConfirm());
    m_dialog.ecHighEnd[2].Text = "$50,000";
    m_dialog.ecRate[3].Text = "30.00%";
    m_host.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    EXPECT_FALSE(MayConfirm());
    ASSERT_EQ(m_host.Messages.size(), 1U);
    EXPECT_EQ(m_host.Messages[0].Text,
              "The settings file has 2 income tax brackets, and OK keeps their number. "
              "Rows 3 and 4 are not saved.\r\rContinue to save?");
    EXPECT_TRUE(MayConfirm());
}

TEST_F(AssumptionsSaveTest, RowsWithoutALoanTypeKeepTheirCaptions) {
    Start("LOANTYPE=1,One,,0.28,0.36,,,,FALSE\r\nLOANTYPE=2,Two,,0.28,0.36,,,,FALSE\r\n");
    EXPECT_EQ(m_dialog.RatioRows, 2U);
    EXPECT_EQ(m_dialog.lblLoanType, (std::array<std::string, 7>{"One", "Two", "FHA EEM", "VA EEM",
                                                                "Fannie Mae", "Freddie Mac", ""}));
}

// Another copy left a line that stops the reader. Memory takes exactly what a reader gets from the saved
// file.
TEST_F(AssumptionsSaveTest, MemoryAndFileAgreeAfterEverySave) {
    StartShipped();
    ChangedMeanwhile("PVSAVINGS_TERM=30", "PVSAVINGS_TERM=30\r\nPMI_MULT=x");
    m_dialog.ecInsurancePct.Text = "0.70%";
    ASSERT_FALSE(Confirm());
    TaxSchedule brackets;
    AssumptionSet assumptions;
    ASSERT_FALSE(LoadTaxCats(File(), brackets));
    ASSERT_FALSE(LoadAssumptions(File(), assumptions));
    EXPECT_EQ(assumptions.InsurancePct, m_session.Assumptions.InsurancePct);
    EXPECT_EQ(assumptions.PMIMult4, m_session.Assumptions.PMIMult4);
    EXPECT_EQ(brackets.size(), m_session.TaxBrackets.size());
    EXPECT_EQ(brackets.back().Rate, m_session.TaxBrackets.back().Rate);
}

TEST_F(AssumptionsSaveTest, AFailedSaveChangesNeitherFileNorMemory) {
    StartShipped();
    const std::string before = Bytes();
    m_dialog.FER[0].Text = "99%";
    m_dialog.ecYrsInHome.Text = "12";
    std::filesystem::create_directory(Folder() / "Pennaro2.INI");
    const auto fault = Confirm();
    ASSERT_TRUE(fault);
    EXPECT_EQ(Bytes(), before);
    EXPECT_FLOAT_EQ(m_session.LoanTypes[0].FrontRatio, 0.28F);
    EXPECT_EQ(m_session.Assumptions.YearsInHome, 7);
}

TEST_F(AssumptionsSaveTest, NothingIsSavedWhenOneWriterRefuses) {
    StartShipped();
    const std::string before = Bytes();
    m_dialog.ecHighEnd[0].Text = "$60,000";     // good
    m_dialog.PMI_Multiplier[0].Text = "1\n2=3"; // a line break cannot be saved
    const auto fault = Confirm();
    ASSERT_TRUE(fault);
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(m_session.TaxBrackets[0].HighEnd, 57000);
}

TEST_F(AssumptionsSaveTest, OKTakesTheYearSettingsOfTheFileIntoTheSession) {
    StartShipped();
    ChangedMeanwhile("GROWTH_UTILITIES=0.00", "GROWTH_UTILITIES=2.00");
    ASSERT_FALSE(Confirm());
    EXPECT_EQ(m_session.Years.UtilityGrowth, 0.02);
    EXPECT_THAT(Bytes(), HasSubstr("GROWTH_UTILITIES=2.00"));
}

} // namespace
} // namespace Ledgrove
