#include "ui/HouseScenarios.h"

#include "tests/engine/TestSession.h"
#include "tests/settings/TemporaryFolder.h"
#include "ui/Entry.h"
#include "ui/TextEntry.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using namespace Module1;
using Testing::ScriptedHost;

class NoFocus : public EntryFocus {
public:
    std::string FocusedControl() const override { return {}; }
    void ReturnFocusTo(const Field&) override {}
    void SelectFieldText() override {}
    void NextField() override {}
    void PreviousField() override {}
};

/// A settings file with three houses, and a main screen with different amounts.
class HouseScenariosTest : public SettingsTest {
protected:
    HouseScenariosTest() {
        Given("KEEP=me\r\n"
              "HOMELIST=Alder,150000,1800,157500,900\r\n"
              "HOMELIST=Birch,200000,2400,206000,1700\r\n"
              "HOMELIST=Cedar,300000,3000,310000,2000\r\n"
              "HOMESELECTIONDIALOG=CLOSED\r\n");
        m_session.Folder = Folder();
        m_session.Screen.lblHomeName.Text = "Custom";
        m_session.Screen.ecStdHome.Text = "$111,000";
        m_session.Screen.ecStdUtil.Text = "$1,200";
        m_session.Screen.ecGMHHome.Text = "$115,000";
        m_session.Screen.ecGMHUtil.Text = "$800";
    }

    void Open() { ASSERT_FALSE(OpenHouseScenarios(m_dialog, m_session, m_host)); }
    std::vector<std::string> Shown() const {
        return {m_dialog.ecStdCost.Text, m_dialog.ecStdUtil.Text, m_dialog.ecGMHCost.Text,
                m_dialog.ecGMHUtil.Text};
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const House& house : m_dialog.Houses)
            names.push_back(house.Name);
        return names;
    }

    Session m_session;
    HouseScenarios m_dialog;
    ScriptedHost m_host;
};

using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(HouseScenariosTest, OpensOnTheFirstHouseWhenTheMainScreensIsCustom) {
    Open();
    EXPECT_EQ(m_dialog.Selected, 0);
    EXPECT_THAT(Shown(), ElementsAre("$150,000", "$1,800", "$157,500", "$900"));
    EXPECT_FALSE(m_dialog.Editing);
}

TEST_F(HouseScenariosTest, OpensOnTheMainScreensHouse) {
    m_session.Screen.lblHomeName.Text = "Cedar";
    Open();
    EXPECT_EQ(m_dialog.Selected, 2);
}

TEST_F(HouseScenariosTest, NamesAreComparedExactly) {
    m_session.Screen.lblHomeName.Text = "cedar";
    Open();
    EXPECT_EQ(m_dialog.Selected, 0);
}

TEST_F(HouseScenariosTest, OpeningMarksTheDialogOpenAndClosingMarksItClosed) {
    Open();
    EXPECT_THAT(Bytes(), HasSubstr("HOMESELECTIONDIALOG=OPEN\r\n"));
    EXPECT_FALSE(SaveHouseScenarios(m_dialog, m_session));
    EXPECT_EQ(Bytes(), "KEEP=me\r\n"
                       "HOMESELECTIONDIALOG=CLOSED\r\n"
                       "HOMELIST=Alder,150000,1800,157500,900\r\n"
                       "HOMELIST=Birch,200000,2400,206000,1700\r\n"
                       "HOMELIST=Cedar,300000,3000,310000,2000\r\n");
}

TEST_F(HouseScenariosTest, AListThatCannotBeReadIsNotShown) {
    Given("HOMELIST=Alder,abc,1,2,3\r\n");
    const auto fault = OpenHouseScenarios(m_dialog, m_session, m_host);
    ASSERT_TRUE(fault);
    EXPECT_THAT(Sentence(*fault), HasSubstr("Line 1"));
    EXPECT_EQ(Bytes(), "HOMELIST=Alder,abc,1,2,3\r\n");
}

TEST_F(HouseScenariosTest, AnEmptyListShowsEmptyFields) {
    Given("");
    Open();
    EXPECT_EQ(m_dialog.Selected, -1);
    EXPECT_THAT(Shown(), ElementsAre("", "", "", ""));
    BeginHouseEdit(m_dialog);
    EXPECT_FALSE(m_dialog.Editing);
    ChooseHouse(m_dialog, m_session);
    EXPECT_EQ(m_session.Screen.lblHomeName.Text, "Custom");
}

TEST_F(HouseScenariosTest, ValuesAreFoundByTheirKeys) {
    Open();
    EXPECT_EQ(HouseValue(m_dialog.Houses[1], "StdCost"), 200000);
    EXPECT_EQ(HouseValue(m_dialog.Houses[1], "StdUtil"), 2400);
    EXPECT_EQ(HouseValue(m_dialog.Houses[1], "GMHCost"), 206000);
    EXPECT_EQ(HouseValue(m_dialog.Houses[1], "GMHUtil"), 1700);
    EXPECT_EQ(HouseValue(m_dialog.Houses[1], "stdcost"), 0);
}

TEST_F(HouseScenariosTest, ANewHouseTakesTheMainScreensAmounts) {
    Open();
    EXPECT_TRUE(AddHouse(m_dialog, m_session, m_host, "Dogwood"));
    EXPECT_THAT(Names(), ElementsAre("Alder", "Birch", "Cedar", "Dogwood"));
    EXPECT_THAT(Shown(), ElementsAre("$111,000", "$1,200", "$115,000", "$800"));
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(HouseScenariosTest, ATakenNameIsRefusedUnlessTheCaseDiffers) {
    Open();
    EXPECT_TRUE(AddHouse(m_dialog, m_session, m_host, "Lot 7"));
    EXPECT_FALSE(AddHouse(m_dialog, m_session, m_host, "Lot 7"));
    ASSERT_EQ(m_host.Messages.size(), 1U);
    EXPECT_EQ(m_host.Messages[0].Text, "This Home Name Has Already Been Entered.");
    EXPECT_EQ(m_host.Messages[0].Title, "Ledgrove");
    EXPECT_TRUE(AddHouse(m_dialog, m_session, m_host, "lot 7"));
    EXPECT_EQ(m_dialog.Houses.size(), 5U);
}

TEST_F(HouseScenariosTest, NamesThatDoNotFitTheirLineAreRefused) {
    EXPECT_EQ(HouseNameComplaint({}, ""), "No Name Entered. Add Aborted");
    EXPECT_EQ(HouseNameComplaint({}, "  "), "No Name Entered. Add Aborted");
    EXPECT_EQ(HouseNameComplaint({}, "Lot 7, east"), "A name cannot contain a comma.");
    EXPECT_EQ(HouseNameComplaint({}, "Lot\n7"), "A name cannot contain a line break.");
    EXPECT_EQ(HouseNameComplaint({}, "Lot\r7"), "A name cannot contain a line break.");
    EXPECT_THAT(HouseNameComplaint({}, "\xE5\xAE\xB6"),
                HasSubstr("\xE5\xAE\xB6")); // the Chinese character for house
    EXPECT_EQ(HouseNameComplaint({}, "Caf\xC3\xA9 \xE2\x82\xAC"),
              ""); // e with an acute accent and the euro sign are in Windows-1252
}

TEST_F(HouseScenariosTest, AnEditThatLooksRightIsStoredWithoutAsking) {
    Open();
    BeginHouseEdit(m_dialog);
    EXPECT_TRUE(m_dialog.Editing);
    m_dialog.ecGMHCost.Text = "$160,000";
    EXPECT_TRUE(FinishHouseEdit(m_dialog, m_host));
    EXPECT_FALSE(m_dialog.Editing);
    EXPECT_EQ(m_dialog.Houses[0].GMHCost, 160000);
    EXPECT_TRUE(m_host.Messages.empty());
}

TEST_F(HouseScenariosTest, AnEditThatLooksWrongIsStoredOnYes) {
    Open();
    BeginHouseEdit(m_dialog);
    m_dialog.ecGMHCost.Text = "$140,000";
    m_dialog.ecGMHUtil.Text = "$0";
    m_host.Answers = {MessageAnswer::Yes};
    EXPECT_TRUE(FinishHouseEdit(m_dialog, m_host));
    ASSERT_EQ(m_host.Messages.size(), 1U);
    EXPECT_EQ(m_host.Messages[0].Title, "Ledgrove Data Check");
    EXPECT_EQ(m_host.Messages[0].Icon, MessageIcon::Question);
    EXPECT_EQ(m_host.Messages[0].Buttons, MessageButtons::YesNo);
    EXPECT_EQ(m_host.Messages[0].Text, "Attention!\r\rGREENMARK utility bill is missing.\r"
                                       "Note:  GREENMARK Home is cheaper!\r"
                                       "\rYou may continue to save, or return to data entry mode.\r\r"
                                       "Continue to save?");
    EXPECT_EQ(m_dialog.Houses[0].GMHCost, 140000);
    EXPECT_FALSE(m_dialog.Editing);
}

TEST_F(HouseScenariosTest, AnsweringNoKeepsEditModeAndTheTypedValues) {
    Open();
    BeginHouseEdit(m_dialog);
    m_dialog.ecStdCost.Text = "$0";
    m_host.Answers = {MessageAnswer::No};
    EXPECT_FALSE(FinishHouseEdit(m_dialog, m_host));
    EXPECT_TRUE(m_dialog.Editing);
    EXPECT_EQ(m_dialog.ecStdCost.Text, "$0");
    EXPECT_EQ(m_dialog.Houses[0].StdCost, 150000);
}

TEST_F(HouseScenariosTest, CancellingAnEditShowsTheStoredValuesAgain) {
    Open();
    BeginHouseEdit(m_dialog);
    m_dialog.ecStdCost.Text = "$1";
    CancelHouseEdit(m_dialog);
    EXPECT_FALSE(m_dialog.Editing);
    EXPECT_EQ(m_dialog.ecStdCost.Text, "$150,000");
}

TEST_F(HouseScenariosTest, DeletingMovesLaterHousesUpAndSelectsTheFirst) {
    Open();
    SelectHouse(m_dialog, 1);
    m_host.Answers = {MessageAnswer::Yes};
    DeleteHouse(m_dialog, m_host);
    EXPECT_EQ(m_host.Messages[0].Title, "House Package Data Delete");
    EXPECT_EQ(m_host.Messages[0].Text, "Do you really want to delete?");
    EXPECT_THAT(Names(), ElementsAre("Alder", "Cedar"));
    EXPECT_EQ(m_dialog.Selected, 0);
    EXPECT_EQ(m_dialog.ecStdCost.Text, "$150,000");
}

TEST_F(HouseScenariosTest, DeletingAsksFirst) {
    Open();
    m_host.Answers = {MessageAnswer::No};
    DeleteHouse(m_dialog, m_host);
    EXPECT_EQ(m_dialog.Houses.size(), 3U);
}

TEST_F(HouseScenariosTest, AfterTheLastHouseTheFieldsAreEmpty) {
    Given("HOMELIST=Alder,150000,1800,157500,900\r\n");
    Open();
    m_host.Answers = {MessageAnswer::Yes};
    DeleteHouse(m_dialog, m_host);
    EXPECT_EQ(m_dialog.Selected, -1);
    EXPECT_THAT(Shown(), ElementsAre("", "", "", ""));
}

TEST_F(HouseScenariosTest, ChoosingCopiesTheHouseAndAnEditedPriceMakesItCustom) {
    Open();
    SelectHouse(m_dialog, 1);
    ChooseHouse(m_dialog, m_session);
    MainScreen& screen = m_session.Screen;
    EXPECT_EQ(screen.lblHomeName.Text, "Birch");
    EXPECT_EQ(screen.ecStdHome.Text, "$200,000");
    EXPECT_EQ(screen.ecStdUtil.Text, "$2,400");
    EXPECT_EQ(screen.ecGMHHome.Text, "$206,000");
    EXPECT_EQ(screen.ecGMHUtil.Text, "$1,700");
    EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
    CheckCustomHouse(m_session);
    EXPECT_EQ(screen.lblHomeName.Text, "Birch");
    screen.ecGMHUtil.Text = "$1,701";
    CheckCustomHouse(m_session);
    EXPECT_EQ(screen.lblHomeName.Text, "Custom");
}

TEST_F(HouseScenariosTest, AFailedSaveNamesTheFileAndLeavesItWhole) {
    Open();
    const std::string before = Bytes();
    std::filesystem::create_directory(Folder() / "Pennaro2.INI");
    const auto fault = SaveHouseScenarios(m_dialog, m_session);
    ASSERT_TRUE(fault);
    EXPECT_THAT(Sentence(*fault), HasSubstr((Folder() / "Pennaro2.INI").string()));
    EXPECT_EQ(Bytes(), before);
}

TEST_F(HouseScenariosTest, AnUnwritableOpenMarkIsReportedAndStopsNothing) {
    std::filesystem::create_directory(Folder() / "Pennaro2.INI");
    Open();
    EXPECT_EQ(m_dialog.Houses.size(), 3U);
    ASSERT_EQ(m_host.Messages.size(), 1U);
    EXPECT_EQ(m_host.Messages[0].Icon, MessageIcon::Exclamation);
}

/// As the rows of the house range propose it.
TEST_F(HouseScenariosTest, EnteringTheAmountsAndThenTheNameChoosesTheHouse) {
    NoFocus focus;
    EntryContext context{m_session, m_host, focus};
    EnterTexts(context, std::vector<EntryText>{{"ecStdHome", "$200,000"},
                                               {"ecStdUtil", "$2,400"},
                                               {"ecGMHHome", "$206,000"},
                                               {"ecGMHUtil", "$1,700"},
                                               {"lblHomeName", "Birch"}});
    EXPECT_EQ(m_session.Screen.lblHomeName.Text, "Birch");
    CheckCustomHouse(m_session);
    EXPECT_EQ(m_session.Screen.lblHomeName.Text, "Birch");
    EnterTexts(context, std::vector<EntryText>{{"ecGMHHome", "$207,000"}});
    EXPECT_EQ(m_session.Screen.lblHomeName.Text, "Custom");
}

} // namespace
} // namespace Ledgrove
