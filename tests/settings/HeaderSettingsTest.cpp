#include "settings/HeaderSettings.h"

#include "TemporaryFolder.h"

namespace Ledgrove::Module1 {
namespace {

using Kind = SettingsFault::Kind;

class HeaderSettingsTest : public SettingsTest {};

TEST_F(HeaderSettingsTest, TheLastBuilderNameCounts) {
    Given("BUILDERNAME=Old\r\nX=1\r\nBUILDERNAME=New\r\n");
    EXPECT_EQ(*GetBuilderName(File()), "New");
}

TEST_F(HeaderSettingsTest, TheCharacterAfterTheKeyIsNotChecked) {
    Given("BUILDERNAMEXAcme\r\n");
    EXPECT_EQ(*GetBuilderName(File()), "Acme");
}

TEST_F(HeaderSettingsTest, MissingKeysHaveTheirDefaults) {
    Given("X=1\r\n");
    EXPECT_EQ(*GetBuilderName(File()), "Partner Name");
    EXPECT_EQ(*GetLogoFile(File()), "");
    EXPECT_EQ(*GetHelpFile(File()), "");
    FeatureTexts features{"a", "b"};
    EXPECT_EQ(GetFeatures(File(), features), std::nullopt);
    EXPECT_EQ(features.Feature1, " ");
    EXPECT_EQ(features.Feature2, " ");
}

TEST_F(HeaderSettingsTest, AnEmptyBuilderNameIsNotAMissingOne) {
    Given("BUILDERNAME=\r\n");
    EXPECT_EQ(*GetBuilderName(File()), "");
}

TEST_F(HeaderSettingsTest, FeaturesKeepTheirBlanksOthersDoNot) {
    Given("FEATURE1=  x \r\nFEATURE2= y\r\nBUILDERNAME=  x \r\nLOGOFILE= /a b.bmp \r\nHELPFILE= LEDGROVE.HLP "
          "\r\n");
    FeatureTexts features;
    EXPECT_EQ(GetFeatures(File(), features), std::nullopt);
    EXPECT_EQ(features.Feature1, "  x ");
    EXPECT_EQ(features.Feature2, " y");
    EXPECT_EQ(*GetBuilderName(File()), "x");
    EXPECT_EQ(*GetLogoFile(File()), "/a b.bmp");
    EXPECT_EQ(*GetHelpFile(File()), "LEDGROVE.HLP");
}

TEST_F(HeaderSettingsTest, ALongerKeyIsReadAsTheShorterOne) {
    Given("FEATURE12=x\r\n");
    FeatureTexts features;
    EXPECT_EQ(GetFeatures(File(), features), std::nullopt);
    EXPECT_EQ(features.Feature1, "=x");
}

TEST_F(HeaderSettingsTest, TextsAreUtf8InMemory) {
    Given("BUILDERNAME=Andr\xE9 \x96 Homes\r\n");
    EXPECT_EQ(*GetBuilderName(File()), "Andr\xC3\xA9 \xE2\x80\x93 Homes");
}

TEST_F(HeaderSettingsTest, FeaturesOfAMissingFileCreateItEmpty) {
    FeatureTexts features{"a", "b"};
    EXPECT_EQ(GetFeatures(File(), features), std::nullopt);
    EXPECT_EQ(features.Feature1, " ");
    EXPECT_EQ(features.Feature2, " ");
    EXPECT_EQ(Bytes(), "");
}

TEST_F(HeaderSettingsTest, FeaturesAfterAnInterruptedSaveCreateNothing) {
    WriteBytes(File().TemporaryPath(), "FEATURE1=x\r\n");
    FeatureTexts features;
    const auto fault = GetFeatures(File(), features);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, Kind::InterruptedSave);
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(HeaderSettingsTest, SingleKeyReadersReportAMissingFile) {
    EXPECT_EQ(GetBuilderName(File()).Fault().What, Kind::Missing);
    EXPECT_EQ(GetLogoFile(File()).Fault().What, Kind::Missing);
    EXPECT_EQ(GetLogoOption(File()).Fault().What, Kind::Missing);
    EXPECT_EQ(GetHelpFile(File()).Fault().What, Kind::Missing);
    EXPECT_FALSE(Exists(File().Path()));
}

TEST_F(HeaderSettingsTest, LogoOptionIsTrimmedAndRoundedDown) {
    Given("LOGOOPTION= 2 \r\n");
    EXPECT_EQ(*GetLogoOption(File()), 2);
    Given("LOGOOPTION=1.9\r\n");
    EXPECT_EQ(*GetLogoOption(File()), 1);
    Given("LOGOOPTION=x\r\nLOGOOPTION=-0.5\r\n");
    EXPECT_EQ(*GetLogoOption(File()), -1);
}

TEST_F(HeaderSettingsTest, LogoOptionHasNoDefault) {
    Given("X=1\r\n");
    const auto option = GetLogoOption(File());
    ASSERT_FALSE(option);
    EXPECT_EQ(option.Fault().What, Kind::MissingKey);
    EXPECT_EQ(option.Fault().Text, "LOGOOPTION");
}

TEST_F(HeaderSettingsTest, LogoOptionThatIsNotANumberIsAFault) {
    for (const char* value : {"", "two", "40000"}) {
        Given(std::string("X=1\r\nLOGOOPTION=") + value + "\r\n");
        const auto option = GetLogoOption(File());
        ASSERT_FALSE(option) << value;
        EXPECT_EQ(option.Fault().What, Kind::BadLine);
        EXPECT_EQ(option.Fault().Line, 2u);
        EXPECT_EQ(option.Fault().Text, std::string("LOGOOPTION=") + value);
    }
}

TEST_F(HeaderSettingsTest, OptionsReplaceFeaturesAndAlwaysAppendTheHeader) {
    Given("BUILDERNAME=Acme\r\nFEATURE2=old\r\nX=1\r\n");
    EXPECT_EQ(WriteOptions(File(), {"a", "b", "Acme", "/logo.bmp"}), std::nullopt);
    EXPECT_EQ(Bytes(), "BUILDERNAME=Acme\r\nFEATURE2=b\r\nX=1\r\nFEATURE1=a\r\nBUILDERNAME=Acme\r\n"
                       "LOGOFILE=/logo.bmp\r\n");
}

TEST_F(HeaderSettingsTest, SavingOptionsTwiceLeavesThreeBuilderNames) {
    Given("BUILDERNAME=One\r\n");
    EXPECT_EQ(WriteOptions(File(), {"a", "b", "Two", ""}), std::nullopt);
    EXPECT_EQ(WriteOptions(File(), {"a", "b", "Three", ""}), std::nullopt);
    EXPECT_EQ(Bytes(), "BUILDERNAME=One\r\nFEATURE1=a\r\nFEATURE2=b\r\nBUILDERNAME=Two\r\nLOGOFILE=\r\n"
                       "BUILDERNAME=Three\r\nLOGOFILE=\r\n");
    EXPECT_EQ(*GetBuilderName(File()), "Three");
}

TEST_F(HeaderSettingsTest, OptionsLeaveOutABuilderNameThatTheFileCannotHold) {
    Given("BUILDERNAME=One\r\n");
    EXPECT_EQ(WriteOptions(File(), {"a", "b", "李", "/logo.bmp"}), std::nullopt);
    EXPECT_EQ(Bytes(), "BUILDERNAME=One\r\nFEATURE1=a\r\nFEATURE2=b\r\nLOGOFILE=/logo.bmp\r\n");
    ReportHeader header;
    header.BuilderName = "李";
    EXPECT_EQ(LoadReportHeader(File(), header), std::nullopt);
    EXPECT_EQ(header.BuilderName, "李");
    header.BuilderName = "Two";
    EXPECT_EQ(LoadReportHeader(File(), header), std::nullopt);
    EXPECT_EQ(header.BuilderName, "One");
}

TEST_F(HeaderSettingsTest, EmptyFeaturesAreSavedEmptyAndReadEmpty) {
    Given("FEATURE1=x\r\nFEATURE2=y\r\n");
    EXPECT_EQ(WriteOptions(File(), {"", "", "A", ""}), std::nullopt);
    EXPECT_EQ(Bytes(), "FEATURE1=\r\nFEATURE2=\r\nBUILDERNAME=A\r\nLOGOFILE=\r\n");
    FeatureTexts features;
    EXPECT_EQ(GetFeatures(File(), features), std::nullopt);
    EXPECT_EQ(features.Feature1, "");
    EXPECT_EQ(features.Feature2, "");
}

TEST_F(HeaderSettingsTest, PrintOptionsReplaceEveryDuplicate) {
    Given("BUILDERNAME=One\r\nLOGOOPTION=0\r\nLOGOFILE=/a\r\nBUILDERNAME=Two\r\nLOGOFILE=/b\r\n");
    EXPECT_EQ(WritePrintOptions(File(), {"f", "g", "New", 2, "/c"}), std::nullopt);
    EXPECT_EQ(Bytes(), "BUILDERNAME=New\r\nLOGOOPTION=2\r\nLOGOFILE=/c\r\nBUILDERNAME=New\r\nLOGOFILE=/c\r\n"
                       "FEATURE1=f\r\nFEATURE2=g\r\n");
}

TEST_F(HeaderSettingsTest, PrintOptionsNeverAddALogoOption) {
    Given("X=1\r\n");
    EXPECT_EQ(WritePrintOptions(File(), {"f", "g", "New", 2, "/c"}), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\r\nFEATURE1=f\r\nFEATURE2=g\r\nBUILDERNAME=New\r\nLOGOFILE=/c\r\n");
}

TEST_F(HeaderSettingsTest, WriteSettingReplacesEveryLineOrAppends) {
    Given("HOMESELECTIONDIALOG=CLOSED\r\nX=1\r\nHOMESELECTIONDIALOG=CLOSED\r\n");
    EXPECT_EQ(WriteSetting(File(), "HOMESELECTIONDIALOG", "OPEN"), std::nullopt);
    EXPECT_EQ(Bytes(), "HOMESELECTIONDIALOG=OPEN\r\nX=1\r\nHOMESELECTIONDIALOG=OPEN\r\n");
    EXPECT_EQ(WriteSetting(File(), "OTHER", " v "), std::nullopt);
    EXPECT_EQ(Bytes(), "HOMESELECTIONDIALOG=OPEN\r\nX=1\r\nHOMESELECTIONDIALOG=OPEN\r\nOTHER= v \r\n");
}

} // namespace
} // namespace Ledgrove::Module1
