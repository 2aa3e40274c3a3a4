#include "settings/SettingsText.h"

#include "settings/ValueRules.h"

#include "settings/HeaderSettings.h"

#include "TemporaryFolder.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::HasSubstr;

class SettingsTextTest : public SettingsTest {
protected:
    std::string Get(std::string_view key) const {
        const auto text = SettingText(File(), key);
        return text ? *text : "fault: " + Sentence(text.Fault());
    }
};

TEST_F(SettingsTextTest, GivesTheTextsThatTheProgramReads) {
    Given("BUILDERNAME= Caf\xE9 \r\nFEATURE1= x \r\nLOGOOPTION= 1.9\r\nHELPFILE= A.HLP\r\nLOGOFILE= b.bmp "
          "\r\n");
    EXPECT_EQ(Get("BUILDERNAME"), "Caf\xC3\xA9");
    EXPECT_EQ(Get("FEATURE1"), " x ");
    EXPECT_EQ(Get("FEATURE2"), " ");
    EXPECT_EQ(Get("LOGOOPTION"), "1");
    EXPECT_EQ(Get("HELPFILE"), "A.HLP");
    EXPECT_EQ(Get("LOGOFILE"), "b.bmp");
}

TEST_F(SettingsTextTest, GivesDefaultsForMissingKeys) {
    Given("");
    EXPECT_EQ(Get("BUILDERNAME"), "Partner Name");
    EXPECT_EQ(Get("LOGOFILE"), "");
    EXPECT_EQ(Get("ASSUMPTION1"), "0");
    EXPECT_EQ(Get("PVSAVINGS_RATE"), "0");
    EXPECT_EQ(Get("PVSAVINGS_FLAG"), "FALSE");
    EXPECT_EQ(Get("YEARS_IN_HOME"), "0");
    EXPECT_EQ(Get("TAXCAT"), "");
}

TEST_F(SettingsTextTest, GivesNumbersPlainAndInTheFilesUnit) {
    Given("ASSUMPTION1= 0.90\r\nPVSAVINGS_RATE=6.24%\r\nPVSAVINGS_TERM=030\r\nYEARS_IN_HOME=7.5\r\n"
          "PMI_MULT1=.0087\r\nPVSAVINGS_FLAG=TRUE\r\n");
    EXPECT_EQ(Get("ASSUMPTION1"), "0.9");
    EXPECT_EQ(Get("PVSAVINGS_RATE"), "6.24");
    EXPECT_EQ(Get("PVSAVINGS_TERM"), "30");
    EXPECT_EQ(Get("YEARS_IN_HOME"), "8");
    EXPECT_EQ(Get("PMI_MULT1"), "0.0087");
    EXPECT_EQ(Get("PVSAVINGS_FLAG"), "TRUE");
}

TEST_F(SettingsTextTest, AValueFromGetCanBeSet) {
    Given("PVSAVINGS_RATE=6.24%\r\n");
    ASSERT_EQ(Module1::WriteSetting(File(), "PVSAVINGS_RATE", Get("PVSAVINGS_RATE")), std::nullopt);
    EXPECT_EQ(Bytes(), "PVSAVINGS_RATE=6.24\r\n");
    EXPECT_EQ(Get("PVSAVINGS_RATE"), "6.24");
}

TEST_F(SettingsTextTest, ARateThatIsNotANumberIsReportedAlone) {
    Given("PVSAVINGS_RATE=six\r\nPVSAVINGS_TERM=30\r\n");
    EXPECT_THAT(Get("PVSAVINGS_RATE"), HasSubstr("Line 1 of the settings file"));
    EXPECT_THAT(Get("PVSAVINGS_RATE"),
                HasSubstr("(not a number; the rate counts as 0): \"PVSAVINGS_RATE=six\""));
    EXPECT_EQ(Get("PVSAVINGS_TERM"), "30");
}

TEST_F(SettingsTextTest, AListKeyGivesAllItsLinesInOrder) {
    Given("HOMELIST=B,1,2,3,4\r\nX=1\r\nHOMELIST=\xC0,5,6,7,8\r\nTAXCAT=100,10\r\nTAXCAT=bad\r\n");
    EXPECT_EQ(Get("HOMELIST"), "B,1,2,3,4\n\xC3\x80,5,6,7,8");
    EXPECT_EQ(Get("TAXCAT"), "100,10\nbad");
}

TEST_F(SettingsTextTest, AnUnknownKeyGivesItsLastLine) {
    Given("OTHER=1\r\nHOMESELECTIONDIALOG=OPEN\r\nOTHER= 2 \r\nK\xC9Y=3\r\n");
    EXPECT_EQ(Get("OTHER"), " 2 ");
    EXPECT_EQ(Get("HOMESELECTIONDIALOG"), "OPEN");
    EXPECT_EQ(Get("K\xC3\x89Y"), "3");
    for (const char* key : {"NONE", "\xE2\x86\x92", ""})
        EXPECT_THAT(Get(key), HasSubstr("has no line for")) << key;
}

TEST_F(SettingsTextTest, AValueThatIsNotANumberGivesASentenceThatNamesTheLine) {
    Given("X=1\r\nASSUMPTION2=abc\r\nPMI_MULT1=0.0087\r\nLOGOOPTION=x\r\n");
    EXPECT_THAT(Get("ASSUMPTION2"), HasSubstr("Line 2 of the settings file"));
    EXPECT_THAT(Get("LOGOOPTION"), HasSubstr("Line 4 of the settings file"));
    // The reader stops at line 2 and never reads PMI_MULT1, so it has no value to show.
    EXPECT_THAT(Get("PMI_MULT1"), HasSubstr("Line 2 of the settings file"));
    EXPECT_EQ(Get("PMI_MULT2"), "0");
}

TEST_F(SettingsTextTest, AMissingLogoOptionGivesASentence) {
    Given("X=1\r\n");
    EXPECT_THAT(Get("LOGOOPTION"), HasSubstr("has no line for \"LOGOOPTION\""));
}

TEST_F(SettingsTextTest, NoKeyCreatesAMissingFile) {
    for (const char* key : {"FEATURE1", "ASSUMPTION1", "TAXCAT", "BUILDERNAME", "OTHER"}) {
        EXPECT_THAT(Get(key), HasSubstr("is missing")) << key;
        EXPECT_FALSE(Exists(File().Path())) << key;
    }
}

TEST(CheckSetRequest, AcceptsWhatWriteSettingCanKeep) {
    EXPECT_EQ(CheckSetRequest("BUILDERNAME", "Caf\xC3\xA9 = \xE2\x82\xAC"), std::nullopt);
    EXPECT_EQ(CheckSetRequest("FEATURE1", ""), std::nullopt);
    EXPECT_EQ(CheckSetRequest("HOMESELECTIONDIALOG", "OPEN"), std::nullopt);
    EXPECT_EQ(CheckSetRequest("MYKEY", "x", UnknownKeys::Accepted), std::nullopt);
}

TEST(CheckSetRequest, AcceptsTheValuesThatTheReadersUse) {
    const struct {
        const char* Key;
        const char* Value;
    } usable[] = {{"ASSUMPTION1", "0.9%"},     {"ASSUMPTION1", " 0.9 "}, {"ASSUMPTION2", "0"},
                  {"PVSAVINGS_RATE", "6.24"},  {"PVSAVINGS_TERM", "30"}, {"PVSAVINGS_FLAG", "TRUE"},
                  {"PVSAVINGS_FLAG", "FALSE"}, {"YEARS_IN_HOME", "100"}, {"PMI_MULT1", "1"},
                  {"PMI_MULT4", "0.0023"},     {"LOGOOPTION", "2"}};
    for (const auto& one : usable)
        EXPECT_EQ(CheckSetRequest(one.Key, one.Value), std::nullopt) << one.Key << " " << one.Value;
    EXPECT_EQ(StoredValue("ASSUMPTION1", " 0.9% "), "0.9");
    EXPECT_EQ(StoredValue("FEATURE1", " 5% off "), " 5% off ");
}

TEST(CheckGetRequest, RefusesTheBeginningOfAKey) {
    EXPECT_THAT(CheckGetRequest("ASSUMPTION").value_or(""),
                HasSubstr("only the beginning of \"ASSUMPTION1\""));
    EXPECT_EQ(CheckGetRequest("ASSUMPTION1"), std::nullopt);
    EXPECT_EQ(CheckGetRequest("OTHER"), std::nullopt);
}

struct BadRequest {
    const char* Key;
    const char* Value;
    const char* Says;
};

class CheckSetRequestRefusal : public testing::TestWithParam<BadRequest> {};

TEST_P(CheckSetRequestRefusal, IsASentenceThatNamesTheProblem) {
    const auto sentence = CheckSetRequest(GetParam().Key, GetParam().Value);
    ASSERT_TRUE(sentence);
    EXPECT_THAT(*sentence, HasSubstr(GetParam().Says));
    EXPECT_EQ(sentence->back(), '.');
}

INSTANTIATE_TEST_SUITE_P(
    Requests, CheckSetRequestRefusal,
    testing::Values(
        BadRequest{"", "x", "The key is empty"}, BadRequest{"A\nB", "x", "The key contains a line break"},
        BadRequest{"BUILDERNAME", "a\r", "The value contains a line break"},
        BadRequest{"BUILDERNAME", "a\xE2\x86\x92",
                   "The value contains the character \"\xE2\x86\x92\" (U+2192)"},
        BadRequest{"\xE2\x86\x92", "a", "The key contains the character \"\xE2\x86\x92\" (U+2192)"},
        BadRequest{"BUILDERNAME", "\xFF", "The value contains the byte FF"},
        BadRequest{"A=B", "x", "\"A=B\" contains \"=\""},
        BadRequest{"TAXCAT", "1,1", "\"TAXCAT\" has one line for each item"},
        BadRequest{"LOANTYPE", "x", "\"LOANTYPE\" has one line for each item"},
        BadRequest{"HOMELIST", "x", "\"HOMELIST\" has one line for each item"},
        BadRequest{"FEATURE", "x", "\"FEATURE\" is only the beginning of \"FEATURE1\""},
        BadRequest{"P", "x", "\"P\" is only the beginning of"},
        BadRequest{"TAX", "x", "\"TAX\" is only the beginning of \"TAXCAT\""},
        BadRequest{"ASSUMPTON1", "0.9", "is not a setting of Ledgrove"},
        BadRequest{"ASSUMPTION1", "abc", "\"abc\" cannot be used for ASSUMPTION1"},
        BadRequest{"ASSUMPTION1", "", "a percentage from 0 to 100"},
        BadRequest{"ASSUMPTION1", "1e9", "a percentage"}, BadRequest{"ASSUMPTION1", "0,9", "a percentage"},
        BadRequest{"ASSUMPTION2", "100.5", "a percentage"},
        BadRequest{"PVSAVINGS_RATE", "-1", "a percentage"},
        BadRequest{"PVSAVINGS_RATE", "1%2", "a percentage"},
        BadRequest{"PVSAVINGS_TERM", "-1", "a number of years"},
        BadRequest{"PVSAVINGS_FLAG", "true", "TRUE or FALSE"},
        BadRequest{"YEARS_IN_HOME", "7.5", "a whole number of years"},
        BadRequest{"YEARS_IN_HOME", "101", "a whole number of years"},
        BadRequest{"PMI_MULT1", "0.87%", "a fraction from 0 to 1"},
        BadRequest{"PMI_MULT2", "66", "a fraction from 0 to 1"}, BadRequest{"LOGOOPTION", "3", "0 (no logo)"},
        BadRequest{"FEATURE12", "x", "\"FEATURE12\" begins with \"FEATURE1\""},
        BadRequest{"LOANTYPES", "x", "\"LOANTYPES\" begins with \"LOANTYPE\""}));

} // namespace
} // namespace Ledgrove
