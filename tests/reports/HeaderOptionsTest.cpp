#include "reports/HeaderOptions.h"

#include "tests/settings/TemporaryFolder.h"

namespace Ledgrove::Module1 {
namespace {

constexpr const char* unnamed = "Full Path To Logo File";

/// A run of the program with a separate folder.
class HeaderOptionsTest : public SettingsTest {
protected:
    HeaderOptionsTest() { m_session.Folder = Folder(); }

    HeaderOptions Filled() const {
        HeaderOptions dialog;
        EXPECT_EQ(FillHeaderOptions(dialog, m_session), std::nullopt);
        return dialog;
    }

    Session m_session;
};

TEST_F(HeaderOptionsTest, FillingUsesTheRunsBuyerAndTheFilesOtherValues) {
    Given("BUILDERNAME= Acme Homes \r\nLOGOOPTION=2\r\nLOGOFILE= /logos/a.bmp \r\nFEATURE1=Deck\r\n");
    m_session.Header = {"not this", "Kim Park", "nor this"};
    const HeaderOptions dialog = Filled();
    EXPECT_EQ(dialog.txtHomeBuyer.Text, "Kim Park");
    EXPECT_EQ(dialog.ecBuilderName.Text, "Acme Homes");
    EXPECT_EQ(dialog.ecLogoFile.Text, "/logos/a.bmp");
    EXPECT_EQ(dialog.cboUserLogoOptions, 2);
    EXPECT_EQ(dialog.Features.Feature1, "Deck");
    EXPECT_EQ(dialog.Features.Feature2, " ");
}

TEST_F(HeaderOptionsTest, FillingChangesNothingInTheRun) {
    Given("BUILDERNAME=Acme\r\nLOGOOPTION=1\r\nLOGOFILE=/a.bmp\r\n");
    m_session.Header = {"Builder", "Buyer", "/b.bmp"};
    Filled();
    EXPECT_EQ(m_session.Header.BuilderName, "Builder");
    EXPECT_EQ(m_session.Header.LogoFile, "/b.bmp");
}

TEST_F(HeaderOptionsTest, ABlankLogoFileLeavesThePlaceholder) {
    for (const char* line : {"", "LOGOFILE=\r\n", "LOGOFILE=   \r\n"}) {
        Given(line);
        EXPECT_EQ(Filled().ecLogoFile.Text, unnamed) << line;
    }
}

TEST_F(HeaderOptionsTest, AMissingBuilderNameIsThePartnersName) {
    Given("X=1\r\n");
    EXPECT_EQ(Filled().ecBuilderName.Text, "Partner Name");
}

TEST_F(HeaderOptionsTest, ALogoOptionOutsideTheListCountsAsNone) {
    for (const char* line : {"", "LOGOOPTION=\r\n", "LOGOOPTION=x\r\n", "LOGOOPTION=3\r\n",
                             "LOGOOPTION=-1\r\n", "LOGOOPTION=99999\r\n"}) {
        Given(line);
        EXPECT_EQ(Filled().cboUserLogoOptions, 0) << line;
    }
    Given("LOGOOPTION= 1.9 \r\n"); // rounded down
    EXPECT_EQ(Filled().cboUserLogoOptions, 1);
}

TEST_F(HeaderOptionsTest, WithoutASettingsFileFillingIsAFault) {
    HeaderOptions dialog;
    const auto fault = FillHeaderOptions(dialog, m_session);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->What, SettingsFault::Kind::Missing);
}

TEST_F(HeaderOptionsTest, NoLogoShowsNothing) {
    HeaderOptions dialog;
    dialog.ecLogoFile.Text = "/logos/a.bmp";
    EXPECT_EQ(ViewOfLogo(dialog, "/home/ledgrove"), (LogoView{false, ""}));
}

TEST_F(HeaderOptionsTest, TheGenericHouseIsInTheProgramsFolder) {
    HeaderOptions dialog;
    dialog.ecLogoFile.Text = "/logos/a.bmp";
    dialog.cboUserLogoOptions = 1;
    EXPECT_EQ(ViewOfLogo(dialog, "/home/ledgrove"), (LogoView{false, "/home/ledgrove/GenericHouseLogo.bmp"}));
}

TEST_F(HeaderOptionsTest, TheUsersLogoIsTheFileOfTheField) {
    HeaderOptions dialog;
    dialog.cboUserLogoOptions = 2;
    dialog.ecLogoFile.Text = "/logos/a.bmp";
    EXPECT_EQ(ViewOfLogo(dialog, "/home/ledgrove"), (LogoView{true, "/logos/a.bmp"}));
    dialog.ecLogoFile.Text = "logos/a.bmp"; // relative to the program's folder
    EXPECT_EQ(ViewOfLogo(dialog, "/home/ledgrove"), (LogoView{true, "/home/ledgrove/logos/a.bmp"}));
}

TEST_F(HeaderOptionsTest, AUsersLogoWithoutANameIsNotLoaded) {
    HeaderOptions dialog;
    dialog.cboUserLogoOptions = 2;
    for (const char* text : {unnamed, ""}) {
        dialog.ecLogoFile.Text = text;
        EXPECT_EQ(ViewOfLogo(dialog, "/home/ledgrove"), (LogoView{true, ""})) << text;
    }
}

TEST_F(HeaderOptionsTest, ConfirmingSavesTheHeaderAndTheFeaturesInPlace) {
    Given("LOGOFILE=\r\nX=1\r\nBUILDERNAME=Old\r\nLOGOOPTION=0\r\nFEATURE2=Porch\r\nFEATURE1= Deck \r\n");
    HeaderOptions dialog = Filled();
    dialog.ecBuilderName.Text = "Acme Homes";
    dialog.txtHomeBuyer.Text = "Kim Park";
    dialog.ecLogoFile.Text = "/logos/a.bmp";
    dialog.cboUserLogoOptions = 2;
    EXPECT_EQ(ConfirmHeaderOptions(dialog, m_session), std::nullopt);
    EXPECT_EQ(Bytes(), "LOGOFILE=/logos/a.bmp\r\nX=1\r\nBUILDERNAME=Acme Homes\r\nLOGOOPTION=2\r\n"
                       "FEATURE2=Porch\r\nFEATURE1= Deck \r\n");
    EXPECT_EQ(m_session.Header.BuilderName, "Acme Homes");
    EXPECT_EQ(m_session.Header.HomeBuyer, "Kim Park");
    EXPECT_EQ(m_session.Header.LogoFile, "/logos/a.bmp");
}

TEST_F(HeaderOptionsTest, ConfirmingAppendsMissingLinesButNeverTheLogoOption) {
    Given("X=1\r\n");
    HeaderOptions dialog = Filled();
    dialog.cboUserLogoOptions = 1;
    EXPECT_EQ(ConfirmHeaderOptions(dialog, m_session), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\r\nFEATURE1= \r\nFEATURE2= \r\nBUILDERNAME=Partner Name\r\n"
                       "LOGOFILE=Full Path To Logo File\r\n");
    EXPECT_EQ(StoredLogoOption(m_session), 0);
}

TEST_F(HeaderOptionsTest, OnlyTheSameRunRemembersTheBuyer) {
    Given("BUILDERNAME=Old\r\nLOGOOPTION=0\r\n");
    HeaderOptions dialog = Filled();
    dialog.txtHomeBuyer.Text = "Kim Park";
    dialog.ecBuilderName.Text = "Acme";
    dialog.cboUserLogoOptions = 1;
    EXPECT_EQ(ConfirmHeaderOptions(dialog, m_session), std::nullopt);
    EXPECT_EQ(Filled().txtHomeBuyer.Text, "Kim Park");

    m_session = Session{};
    m_session.Folder = Folder();
    const HeaderOptions later = Filled();
    EXPECT_EQ(later.txtHomeBuyer.Text, "");
    EXPECT_EQ(later.ecBuilderName.Text, "Acme");
    EXPECT_EQ(later.cboUserLogoOptions, 1);
}

TEST_F(HeaderOptionsTest, AFailedSaveChangesNeitherRunNorFile) {
    Given("BUILDERNAME=Old\r\n");
    m_session.Header = {"Old", "Buyer", unnamed};
    HeaderOptions dialog = Filled();
    dialog.ecLogoFile.Text = "/logos/\xE2\x98\x80.bmp"; // a character outside the file's encoding
    dialog.txtHomeBuyer.Text = "Kim Park";
    EXPECT_TRUE(ConfirmHeaderOptions(dialog, m_session));
    EXPECT_EQ(Bytes(), "BUILDERNAME=Old\r\n");
    EXPECT_EQ(m_session.Header.BuilderName, "Old");
    EXPECT_EQ(m_session.Header.HomeBuyer, "Buyer");
}

TEST_F(HeaderOptionsTest, ANameThatTheFileCannotHoldLastsForTheRun) {
    Given("BUILDERNAME=Old\r\nLOGOOPTION=0\r\nLOGOFILE=/a.bmp\r\n");
    HeaderOptions dialog = Filled();
    dialog.ecBuilderName.Text = "Li 李明";
    dialog.txtHomeBuyer.Text = "김";
    dialog.ecLogoFile.Text = "/b.bmp";
    dialog.cboUserLogoOptions = 2;
    EXPECT_EQ(ConfirmHeaderOptions(dialog, m_session), std::nullopt);
    EXPECT_EQ(Bytes(), "BUILDERNAME=Old\r\nLOGOOPTION=2\r\nLOGOFILE=/b.bmp\r\nFEATURE1= \r\nFEATURE2= \r\n");
    EXPECT_EQ(m_session.Header.BuilderName, "Li 李明");
    EXPECT_EQ(m_session.Header.HomeBuyer, "김");
    EXPECT_EQ(UnkeptNameNotice(m_session), "The name \"Li 李明\" is used for this report but cannot be kept: "
                                           "Ledgrove.ini cannot hold the character "
                                           "\"李\" (U+674E).");
    EXPECT_EQ(Filled().ecBuilderName.Text, "Li 李明");
}

TEST_F(HeaderOptionsTest, ANameThatTheFileCannotHoldAddsNoLine) {
    Given("X=1\r\n");
    HeaderOptions dialog = Filled();
    dialog.ecBuilderName.Text = "李";
    EXPECT_EQ(ConfirmHeaderOptions(dialog, m_session), std::nullopt);
    EXPECT_EQ(Bytes(), "X=1\r\nFEATURE1= \r\nFEATURE2= \r\nLOGOFILE=Full Path To Logo File\r\n");
}

TEST_F(HeaderOptionsTest, ANameThatTheFileHoldsNeedsNoNotice) {
    Given("BUILDERNAME=Old\r\n");
    m_session.Header.BuilderName = "李";
    HeaderOptions dialog = Filled();
    dialog.ecBuilderName.Text = "Häuser & Söhne";
    dialog.txtHomeBuyer.Text = "李";
    EXPECT_EQ(ConfirmHeaderOptions(dialog, m_session), std::nullopt);
    EXPECT_EQ(UnkeptNameNotice(m_session), "");
    EXPECT_EQ(Filled().ecBuilderName.Text, "Häuser & Söhne");
}

TEST_F(HeaderOptionsTest, ReloadingTheFeaturesShowsTheStoredTexts) {
    Given("FEATURE1=Deck\r\nFEATURE2=Porch\r\n");
    m_session.Features = {"Old 1", "Old 2"};
    m_session.Scenario.PVNetCashFlow = 100; // the tab shows the features only for an amount other than zero
    ReloadFeatureCaptions(m_session);
    EXPECT_EQ(m_session.Features.Feature2, "Porch");
    EXPECT_EQ(m_session.Screen.lblfeature1.Text, "Deck");
    EXPECT_EQ(m_session.Screen.lblfeature2.Text, "Porch");
}

} // namespace
} // namespace Ledgrove::Module1
