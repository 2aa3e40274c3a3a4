#include "ui/OptionsScreen.h"

#include "settings/HeaderSettings.h"
#include "tests/settings/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using namespace Module1;
using testing::HasSubstr;

class OptionsScreenTest : public SettingsTest {
protected:
    void Open(std::string_view settings) {
        Given(settings);
        m_session.Folder = Folder();
        ASSERT_FALSE(FillOptions(m_dialog, m_session));
    }

    Session m_session;
    OptionsScreen m_dialog;
};

TEST_F(OptionsScreenTest, ShowsTheFeaturesAndABlankForAMissingOne) {
    Open("FEATURE1=Deck\r\n");
    EXPECT_EQ(m_dialog.ecFeat1.Text, "Deck");
    EXPECT_EQ(m_dialog.ecFeat2.Text, " ");
}

TEST_F(OptionsScreenTest, EverySaveGrowsTheFileByTwoLines) {
    Open("BUILDERNAME=Acme\r\nFEATURE1=Deck\r\nLOGOFILE=a.bmp\r\n");
    m_dialog.ecFeat1.Text = "Porch";
    m_dialog.ecFeat2.Text = "Sauna";
    ASSERT_FALSE(ConfirmOptions(m_dialog, m_session));
    ASSERT_FALSE(ConfirmOptions(m_dialog, m_session));
    EXPECT_EQ(Bytes(), "BUILDERNAME=Acme\r\nFEATURE1=Porch\r\nLOGOFILE=a.bmp\r\nFEATURE2=Sauna\r\n"
                       "BUILDERNAME=Acme\r\nLOGOFILE=a.bmp\r\nBUILDERNAME=Acme\r\nLOGOFILE=a.bmp\r\n");
}

TEST_F(OptionsScreenTest, EmptyFeaturesAreSavedEmptyAndShownEmpty) {
    Open("FEATURE1=Deck\r\nFEATURE2=Porch\r\n");
    m_dialog.ecFeat1.Text = "";
    m_dialog.ecFeat2.Text = "";
    ASSERT_FALSE(ConfirmOptions(m_dialog, m_session));
    EXPECT_THAT(Bytes(), HasSubstr("FEATURE1=\r\nFEATURE2=\r\n"));
    OptionsScreen again;
    ASSERT_FALSE(FillOptions(again, m_session));
    EXPECT_EQ(again.ecFeat1.Text, "");
    EXPECT_EQ(again.ecFeat2.Text, "");
}

TEST_F(OptionsScreenTest, TheCaptionsShowTheTextsOnlyWithAMonthlyDifference) {
    Open("FEATURE1=Deck\r\nFEATURE2=Porch\r\n");
    ASSERT_FALSE(ConfirmOptions(m_dialog, m_session));
    EXPECT_EQ(m_session.Screen.lblfeature1.Text, "");
    m_session.Scenario.PVNetBeforeTax = -3;
    ASSERT_FALSE(ConfirmOptions(m_dialog, m_session));
    EXPECT_EQ(m_session.Screen.lblfeature1.Text, "Deck");
    EXPECT_EQ(m_session.Screen.lblfeature2.Text, "Porch");
    EXPECT_EQ(m_session.Features.Feature2, "Porch");
}

TEST_F(OptionsScreenTest, TheNextLeftFieldRecalculatesTheCaptions) {
    Open("");
    m_session.From = Inputs{};
    ASSERT_FALSE(ConfirmOptions(m_dialog, m_session));
    EXPECT_FALSE(m_session.From);
}

TEST_F(OptionsScreenTest, ALogoWithoutANameKeepsItsPlaceholder) {
    Open("LOGOFILE=   \r\n");
    EXPECT_EQ(m_session.Header.LogoFile, "Full Path To Logo File");
    EXPECT_EQ(m_session.Header.BuilderName, "Partner Name");
}

TEST_F(OptionsScreenTest, ACharacterThatTheFileCannotHoldIsRefusedAndNothingChanges) {
    Open("FEATURE1=Deck\r\n");
    m_session.Scenario.PVNetCashFlow = 5;
    m_dialog.ecFeat1.Text = "\xE5\xAE\xB6";
    const auto fault = ConfirmOptions(m_dialog, m_session);
    ASSERT_TRUE(fault);
    EXPECT_THAT(Sentence(*fault), HasSubstr("\xE5\xAE\xB6"));
    EXPECT_EQ(Bytes(), "FEATURE1=Deck\r\n");
    EXPECT_EQ(m_session.Screen.lblfeature1.Text, "");
}

} // namespace
} // namespace Ledgrove
