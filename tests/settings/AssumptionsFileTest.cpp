#include "settings/AssumptionsFile.h"

#include "TemporaryFolder.h"

namespace Ledgrove::Module1 {
namespace {

class AssumptionsFileTest : public SettingsTest {
protected:
    AssumptionSet Load(AssumptionSet before = {}) const {
        EXPECT_EQ(LoadAssumptions(File(), before), std::nullopt);
        return before;
    }
};

TEST_F(AssumptionsFileTest, ReadsEveryKeyInItsUnit) {
    Given("PMI_MULT4=.0023\r\nPMI_MULT3=0.0046\r\nPMI_MULT2=0.0066\r\nPMI_MULT1=0.0087\r\nYEARS_IN_HOME=7\r\n"
          "PVSAVINGS_FLAG=TRUE\r\nPVSAVINGS_TERM=30\r\nPVSAVINGS_RATE=7.5\r\nASSUMPTION2=0.65\r\nASSUMPTION1="
          "1.5\r\n");
    const AssumptionSet read = Load();
    EXPECT_EQ(read.RealEstateTaxPct, 1.5f);
    EXPECT_EQ(read.InsurancePct, 0.65f);
    EXPECT_EQ(read.PVRate, 0.075f);
    EXPECT_EQ(read.PVTerm, 30.0f);
    EXPECT_TRUE(read.UsePVVars);
    EXPECT_EQ(read.YearsInHome, 7);
    EXPECT_EQ(read.PMIMult1, 0.0087f);
    EXPECT_EQ(read.PMIMult2, 0.0066f);
    EXPECT_EQ(read.PMIMult3, 0.0046f);
    EXPECT_EQ(read.PMIMult4, 0.0023f);
}

TEST_F(AssumptionsFileTest, PercentSignsInThePVRateAreIgnored) {
    Given("PVSAVINGS_RATE=7.5%\r\n");
    EXPECT_EQ(Load().PVRate, 0.075f);
}

TEST_F(AssumptionsFileTest, TheFlagIsTrueOnlyForItsExactText) {
    for (const char* text : {"true", "TRUE ", " TRUE", "1", ""}) {
        Given(std::string("PVSAVINGS_FLAG=") + text + "\r\n");
        AssumptionSet before;
        before.UsePVVars = true;
        EXPECT_FALSE(Load(before).UsePVVars) << text;
    }
}

TEST_F(AssumptionsFileTest, ValuesWithoutALineDoNotChange) {
    Given("ASSUMPTION2=0.65\r\nLOANTYPE=1,Conventional,,0.280,0.360,,,,FALSE\r\nTAXCAT=1,1\r\n");
    AssumptionSet before;
    before.RealEstateTaxPct = 1.25f;
    before.UsePVVars = true;
    before.YearsInHome = 9;
    const AssumptionSet read = Load(before);
    EXPECT_EQ(read.RealEstateTaxPct, 1.25f);
    EXPECT_EQ(read.InsurancePct, 0.65f);
    EXPECT_TRUE(read.UsePVVars);
    EXPECT_EQ(read.YearsInHome, 9);
    EXPECT_EQ(read.PMIMult1, 0.0f);
}

TEST_F(AssumptionsFileTest, AFileWithoutAssumptionsLeavesZeros) {
    Given("LOANTYPE=1,Conventional,,0.280,0.360,,,,FALSE\r\nTAXCAT=45200,15\r\n");
    const AssumptionSet read = Load();
    EXPECT_EQ(read.RealEstateTaxPct, 0.0f);
    EXPECT_EQ(read.InsurancePct, 0.0f);
    EXPECT_EQ(read.PVRate, 0.0f);
    EXPECT_EQ(read.PVTerm, 0.0f);
    EXPECT_FALSE(read.UsePVVars);
    EXPECT_EQ(read.YearsInHome, 0);
    EXPECT_EQ(read.PMIMult1, 0.0f);
    EXPECT_EQ(read.PMIMult4, 0.0f);
}

TEST_F(AssumptionsFileTest, TheLastLineOfAKeyCounts) {
    Given("ASSUMPTION1=1\r\nASSUMPTION1=2\r\n");
    EXPECT_EQ(Load().RealEstateTaxPct, 2.0f);
}

TEST_F(AssumptionsFileTest, AValueThatIsNotANumberStopsTheReaderSilently) {
    for (const char* bad : {"ASSUMPTION2=x", "ASSUMPTION2=", "ASSUMPTION2=1%", "PVSAVINGS_TERM=30 years",
                            "YEARS_IN_HOME=40000", "PMI_MULT2=-"}) {
        Given(std::string("ASSUMPTION1=1.5\r\n") + bad + "\r\nPMI_MULT1=0.0087\r\nASSUMPTION1=9\r\n");
        const AssumptionSet read = Load();
        EXPECT_EQ(read.RealEstateTaxPct, 1.5f) << bad;
        EXPECT_EQ(read.PMIMult1, 0.0f) << bad;
    }
}

TEST_F(AssumptionsFileTest, ARateThatIsNotANumberCountsAsZero) {
    for (const char* bad :
         {"PVSAVINGS_RATE=x", "PVSAVINGS_RATE=", "PVSAVINGS_RATE=%", "PVSAVINGS_RATE=6.5 percent"}) {
        Given(std::string("PVSAVINGS_RATE=6.24\r\n") + bad + "\r\nPMI_MULT1=0.0087\r\n");
        const AssumptionSet read = Load();
        EXPECT_EQ(read.PVRate, 0.0f) << bad;
        EXPECT_EQ(read.PMIMult1, 0.0087f) << bad;
    }
}

TEST_F(AssumptionsFileTest, YearsRoundHalvesToTheEvenNeighbour) {
    Given("YEARS_IN_HOME=6.5\r\n");
    EXPECT_EQ(Load().YearsInHome, 6);
    Given("YEARS_IN_HOME=7.5\r\n");
    EXPECT_EQ(Load().YearsInHome, 8);
}

TEST_F(AssumptionsFileTest, AMissingFileIsCreatedEmptyAndKeepsEveryValue) {
    AssumptionSet before;
    before.YearsInHome = 9;
    EXPECT_EQ(Load(before).YearsInHome, 9);
    EXPECT_EQ(Bytes(), "");
}

TEST_F(AssumptionsFileTest, AfterAnInterruptedSaveNothingIsCreated) {
    WriteBytes(File().TemporaryPath(), "ASSUMPTION1=1\r\n");
    AssumptionSet assumptions;
    const auto fault = LoadAssumptions(File(), assumptions);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::InterruptedSave);
    EXPECT_FALSE(Exists(File().Path()));
}

const AssumptionTexts dialogTexts = {
    "1.50%", "0.65%", "7.50%", "30", true, "7", {"0.0087", "0.0066", "0.0046", "0.0023"}};

TEST_F(AssumptionsFileTest, WritingAppendsMissingKeysInOrderWithTheFlagFalse) {
    Given("X=1\r\n");
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteAssumpsToFile(draft, dialogTexts); }),
              std::nullopt);
    EXPECT_EQ(Bytes(),
              "X=1\r\nASSUMPTION1=1.50\r\nASSUMPTION2=0.65\r\nPVSAVINGS_RATE=7.50\r\nPVSAVINGS_TERM=30\r\n"
              "PVSAVINGS_FLAG=FALSE\r\nYEARS_IN_HOME=7\r\nPMI_MULT1=0.0087\r\nPMI_MULT2=0.0066\r\n"
              "PMI_MULT3=0.0046\r\nPMI_MULT4=0.0023\r\n");
}

TEST_F(AssumptionsFileTest, TheNextSaveWritesTheChosenFlag) {
    Given("");
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteAssumpsToFile(draft, dialogTexts); }),
              std::nullopt);
    EXPECT_FALSE(Load().UsePVVars);
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteAssumpsToFile(draft, dialogTexts); }),
              std::nullopt);
    EXPECT_TRUE(Load().UsePVVars);
    EXPECT_NE(Bytes().find("PVSAVINGS_FLAG=TRUE\r\n"), std::string::npos);
    EXPECT_EQ(Bytes().find("PVSAVINGS_FLAG=FALSE"), std::string::npos);
}

TEST_F(AssumptionsFileTest, WritingReplacesInPlaceAndKeepsUnknownLines) {
    Given(
        "; note "
        "\xE9\n\r\nPMI_MULT4=1\r\nPVSAVINGS_FLAG=TRUE\r\nUNKNOWN=1\r\nASSUMPTION1=9\nPVSAVINGS_TERM=9\r\n"
        "PVSAVINGS_RATE=9\r\nPMI_MULT1=9\r\nPMI_MULT2=9\r\nPMI_MULT3=9\r\nYEARS_IN_HOME=9\r\nASSUMPTION2=9");
    AssumptionTexts texts = dialogTexts;
    texts.UsePVVars = false;
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteAssumpsToFile(draft, texts); }), std::nullopt);
    EXPECT_EQ(Bytes(),
              "; note \xE9\n\r\nPMI_MULT4=0.0023\r\nPVSAVINGS_FLAG=FALSE\r\nUNKNOWN=1\r\nASSUMPTION1=1.50\r\n"
              "PVSAVINGS_TERM=30\r\nPVSAVINGS_RATE=7.50\r\nPMI_MULT1=0.0087\r\nPMI_MULT2=0.0066\r\n"
              "PMI_MULT3=0.0046\r\nYEARS_IN_HOME=7\r\nASSUMPTION2=0.65\r\n");
}

TEST_F(AssumptionsFileTest, OtherFieldsAreWrittenAsShown) {
    // The writer removes percent signs only from the three percent fields.
    Given("PVSAVINGS_TERM=1\r\nPMI_MULT1=1\r\n");
    AssumptionTexts texts = dialogTexts;
    texts.PVTerm = " 25 %";
    texts.PMIMult[0] = "0.87%";
    EXPECT_EQ(Save([&](SettingsDraft& draft) { return WriteAssumpsToFile(draft, texts); }), std::nullopt);
    EXPECT_TRUE(Bytes().starts_with("PVSAVINGS_TERM= 25 %\r\nPMI_MULT1=0.87%\r\nASSUMPTION1="));
}

} // namespace
} // namespace Ledgrove::Module1
