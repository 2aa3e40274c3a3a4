#include "tests/ui/EntryDesk.h"

#include <gmock/gmock.h>

#include <set>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* notANumber = "You must enter a number here.";
constexpr const char* notPositive = "You must enter a positive number here.";

struct ComplaintRow {
    FieldFormat Format;
    const char *Text, *Complaint;
};

class Complaints : public testing::TestWithParam<ComplaintRow> {};

TEST_P(Complaints, SayWhatIsWrong) {
    EXPECT_EQ(FieldComplaint(GetParam().Text, GetParam().Format), GetParam().Complaint);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Complaints,
    testing::Values(
        ComplaintRow{FieldFormat::Dollar, "0", ""}, ComplaintRow{FieldFormat::Dollar, "$150,000", ""},
        ComplaintRow{FieldFormat::Dollar, "", ""}, ComplaintRow{FieldFormat::Dollar, "-0", ""},
        ComplaintRow{FieldFormat::Dollar, "-0.01", notPositive},
        ComplaintRow{FieldFormat::Dollar, "-5", notPositive},
        ComplaintRow{FieldFormat::Dollar, "-$5", notPositive},
        ComplaintRow{FieldFormat::Dollar, "abc", notANumber},
        ComplaintRow{FieldFormat::Dollar, " ", notANumber},
        ComplaintRow{FieldFormat::Dollar, "%", notANumber},
        ComplaintRow{FieldFormat::Dollar, "1e5", notANumber},
        ComplaintRow{FieldFormat::Dollar, "1.2.3", notANumber},
        ComplaintRow{FieldFormat::Dollar, "350000000000000000000000000000000000000", notANumber},
        ComplaintRow{FieldFormat::IntRate, "6.5%", ""}, ComplaintRow{FieldFormat::Percent, "%5%", ""},
        ComplaintRow{FieldFormat::Whole, "12%", ""}, ComplaintRow{FieldFormat::Whole, "x", notANumber},
        ComplaintRow{FieldFormat::SmallPercent, "0.25", ""},
        ComplaintRow{FieldFormat::SmallPercent, "x", notANumber},
        ComplaintRow{FieldFormat::SmallPercent, "-1", notPositive},
        ComplaintRow{FieldFormat::String, "abc", ""}, ComplaintRow{FieldFormat::String, "-5", ""}));

class Validation : public EntryDesk {
protected:
    bool Validate(Field& field, FieldFormat type, Complaint complaint = Complaint::Shown) {
        return ValidateField(m_context, field, type, complaint);
    }
};

TEST_F(Validation, AcceptsANumberWithoutTouchingTheFocus) {
    Screen().ecIncome.Text = "80000";
    EXPECT_TRUE(Validate(Screen().ecIncome, FieldFormat::Dollar));
    EXPECT_EQ(Screen().ecIncome.Text, "80000");
    EXPECT_THAT(m_log, IsEmpty());
}

TEST_F(Validation, SetsAnEmptyFieldToZero) {
    Screen().ecIncome.Text.clear();
    EXPECT_TRUE(Validate(Screen().ecIncome, FieldFormat::Dollar));
    EXPECT_EQ(Screen().ecIncome.Text, "0");
    Screen().ecIncome.Text.clear();
    EXPECT_TRUE(Validate(Screen().ecIncome, FieldFormat::String));
    EXPECT_EQ(Screen().ecIncome.Text, "0");
}

TEST_F(Validation, ReturnsTheFocusComplainsAndSelects) {
    Screen().ecIncome.Text = "lots";
    EXPECT_FALSE(Validate(Screen().ecIncome, FieldFormat::Dollar));
    EXPECT_THAT(m_log, ElementsAre("focus ecIncome", "message You must enter a number here.", "select"));
    EXPECT_EQ(Screen().ecIncome.Text, "lots");

    ForgetLog();
    Screen().ecGMHUtil.Text = "-5";
    EXPECT_FALSE(Validate(Screen().ecGMHUtil, FieldFormat::Dollar));
    EXPECT_THAT(m_log,
                ElementsAre("focus ecGMHUtil", "message You must enter a positive number here.", "select"));
}

TEST_F(Validation, ComplainsInAMessageBoxOfTheProgram) {
    Screen().ecIncome.Text = "lots";
    Validate(Screen().ecIncome, FieldFormat::Dollar);
    ASSERT_EQ(m_host.Messages.size(), 1U);
    EXPECT_EQ(m_host.Messages[0].Title, "Ledgrove");
    EXPECT_EQ(m_host.Messages[0].Icon, MessageIcon::Information);
    EXPECT_EQ(m_host.Messages[0].Buttons, MessageButtons::Ok);
}

TEST_F(Validation, ReturnsTheFocusWithoutAMessage) {
    Screen().ecIncome.Text = "lots";
    EXPECT_FALSE(Validate(Screen().ecIncome, FieldFormat::Dollar, Complaint::Quiet));
    EXPECT_THAT(m_log, ElementsAre("focus ecIncome", "select"));
}

TEST_F(Validation, NeverKeepsTheFocusFromACancelOrExitButton) {
    for (const char* name : {"bCancel", "bCancelEdit", "bExit", "bExitNow"}) {
        m_focus.Focused = name;
        for (const char* text : {"-5", "abc", ""}) {
            Screen().ecIncome.Text = text;
            EXPECT_TRUE(Validate(Screen().ecIncome, FieldFormat::Dollar)) << name;
            EXPECT_EQ(Screen().ecIncome.Text, text);
        }
    }
    EXPECT_THAT(m_log, IsEmpty());
}

TEST_F(Validation, KeepsTheFocusFromEveryOtherControl) {
    Screen().ecIncome.Text = "-5";
    for (const char* name : {"", "ecIncome", "bOK", "bCance", "bcancel", "cmdCancel", "bExi", "BExit"}) {
        m_focus.Focused = name;
        EXPECT_FALSE(Validate(Screen().ecIncome, FieldFormat::Dollar)) << name;
    }
}

using Formatting = EntryDesk;

TEST_F(Formatting, RewritesTheFieldInItsDisplayFormat) {
    Screen().ecIncome.Text = "80000";
    FormatField(m_session, Screen().ecIncome, FieldFormat::Dollar);
    EXPECT_EQ(Screen().ecIncome.Text, "$80,000");
}

TEST_F(Formatting, KeepsASmallPercentAsTyped) {
    Field multiplier;
    multiplier.Text = "0.25";
    EXPECT_EQ(LeaveField(m_context, multiplier, FieldFormat::SmallPercent, AfterEdit::Nothing),
              EntryOutcome::Unchanged);
    EXPECT_EQ(multiplier.Text, "0.25");
}

TEST_F(Formatting, ShowsAWholeNumberWithPercentAsZero) {
    Field years;
    years.Text = "12%";
    EXPECT_EQ(LeaveField(m_context, years, FieldFormat::Whole, AfterEdit::Nothing), EntryOutcome::Accepted);
    EXPECT_EQ(years.Text, "0");
    EXPECT_THAT(m_log, IsEmpty());
}

class EntryKeys : public EntryDesk {
protected:
    EntryOutcome Press(KeyCode key, Field& field, FieldFormat type = FieldFormat::Dollar) {
        return HandleEntryKey(m_context, field, key, type);
    }
};

TEST_F(EntryKeys, EnterCommitsAndMovesOn) {
    Screen().ecGMHHome.Text = "207000";
    m_session.Scenario.EEMNoticeFlag = false;
    EXPECT_EQ(Press(KeyCode::Enter, Screen().ecGMHHome), EntryOutcome::Accepted);
    EXPECT_EQ(Screen().ecGMHHome.Text, "$207,000");
    EXPECT_EQ(m_session.GMHCase.Cost, 207000);
    EXPECT_EQ(Screen().lblGMHHome.Text, "$207,000");
    EXPECT_THAT(m_log, ElementsAre("recalculated", "next"));
}

TEST_F(EntryKeys, TabCommitsAndTheToolkitMovesTheFocus) {
    Screen().ecIncome.Text = "80000";
    Press(KeyCode::Tab, Screen().ecIncome);
    EXPECT_EQ(Screen().ecIncome.Text, "$80,000");
    EXPECT_EQ(m_session.Scenario.AnnualIncome, 80000);
    EXPECT_THAT(m_log, ElementsAre("recalculated"));
}

TEST_F(EntryKeys, AnyOtherKeyDoesNothing) {
    for (const int code : {0, 8, 10, 27, 32, 46, 48}) {
        Screen().ecIncome.Text = "lots";
        EXPECT_EQ(Press(static_cast<KeyCode>(code), Screen().ecIncome), EntryOutcome::Accepted) << code;
        EXPECT_EQ(Screen().ecIncome.Text, "lots") << code;
    }
    EXPECT_THAT(m_log, IsEmpty());
}

TEST_F(EntryKeys, ARefusalStoresAndRecalculatesNothing) {
    Screen().ecIncome.Text = "-5";
    EXPECT_EQ(Press(KeyCode::Enter, Screen().ecIncome), EntryOutcome::Refused);
    EXPECT_EQ(Screen().ecIncome.Text, "-5");
    EXPECT_EQ(m_session.Scenario.AnnualIncome, 0);
    EXPECT_THAT(m_log,
                ElementsAre("focus ecIncome", "message You must enter a positive number here.", "select"));
}

TEST_F(EntryKeys, TheHouseIsCheckedBeforeTheRecalculation) {
    m_session.ChosenHouse = {"The Alder", 200000, 2400, 206000, 1700};
    Screen().lblHomeName.Text = "The Alder";
    Screen().ecStdUtil.Text = "2500";
    std::string nameWhenRecalculated;
    m_host.OnPendingEvents = [&] { nameWhenRecalculated = Screen().lblHomeName.Text; };
    Press(KeyCode::Enter, Screen().ecStdUtil);
    EXPECT_EQ(nameWhenRecalculated, "Custom");
}

TEST_F(EntryKeys, ADialogsFieldRecalculatesTheMainScreenToo) {
    Field ratio;
    ratio.Text = "28";
    Press(KeyCode::Enter, ratio, FieldFormat::WholePercent);
    EXPECT_EQ(ratio.Text, "28.00%");
    EXPECT_THAT(m_log, ElementsAre("recalculated", "next"));
}

TEST_F(EntryKeys, TheNoticeOfAnEditAppearsOnce) {
    SetFieldText(m_session, Screen().ecGMHHome, "220000"); // an upgrade of 20,000 for savings worth 9,229
    Press(KeyCode::Enter, Screen().ecGMHHome);
    EXPECT_EQ(m_host.Messages.size(), 1U);
    LeaveField(m_context, Screen().ecGMHHome, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse);
    EXPECT_EQ(m_host.Messages.size(), 1U);
    SetFieldText(m_session, Screen().ecIncome, "90000");
    Press(KeyCode::Enter, Screen().ecIncome);
    EXPECT_EQ(m_host.Messages.size(), 1U);
}

using LostFocus = EntryDesk;

TEST_F(LostFocus, AfterEnterDoesNotRecalculateAgain) {
    SetFieldText(m_session, Screen().ecStdHome, "210000");
    HandleEntryKey(m_context, Screen().ecStdHome, KeyCode::Enter, FieldFormat::Dollar);
    m_log.clear();
    EXPECT_EQ(
        LeaveField(m_context, Screen().ecStdHome, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse),
        EntryOutcome::Unchanged);
    EXPECT_THAT(m_log, IsEmpty());
}

TEST_F(LostFocus, AppliesAFormatThatEnterDidNotApply) {
    Field tax;
    tax.Text = "0.5";
    HandleEntryKey(m_context, tax, KeyCode::Tab, FieldFormat::SmallPercent);
    EXPECT_EQ(LeaveField(m_context, tax, FieldFormat::WholePercent, AfterEdit::Nothing),
              EntryOutcome::Accepted);
    EXPECT_EQ(tax.Text, "0.50%");
}

TEST_F(LostFocus, ShowsTheNoticeForATextThatWasChangedBack) {
    SetFieldText(m_session, Screen().ecGMHHome, "220000"); // an upgrade of 20,000 for savings worth 9,229
    LeaveField(m_context, Screen().ecGMHHome, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse);
    ASSERT_EQ(m_host.Messages.size(), 1U);
    SetFieldText(m_session, Screen().ecGMHHome, "2");
    SetFieldText(m_session, Screen().ecGMHHome, "$220,000");
    LeaveField(m_context, Screen().ecGMHHome, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse);
    EXPECT_EQ(m_host.Messages.size(), 2U);
}

TEST_F(LostFocus, StillNamesTheHouseCustom) {
    LeaveField(m_context, Screen().ecStdHome, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse);
    Screen().lblHomeName.Text = "Maple";
    EXPECT_EQ(
        LeaveField(m_context, Screen().ecStdHome, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse),
        EntryOutcome::Accepted);
    EXPECT_EQ(Screen().lblHomeName.Text, "Custom");
}

TEST_F(LostFocus, ValidatesFormatsAndRecalculates) {
    Screen().ecIncome.Text = "80000";
    EXPECT_EQ(LeaveField(m_context, Screen().ecIncome, FieldFormat::Dollar, AfterEdit::Recalculate),
              EntryOutcome::Accepted);
    EXPECT_EQ(Screen().ecIncome.Text, "$80,000");
    EXPECT_EQ(m_session.Scenario.AnnualIncome, 80000);
    EXPECT_THAT(m_log, ElementsAre("recalculated"));
}

TEST_F(LostFocus, AnEmptyFieldShowsItsZero) {
    Screen().ecIncome.Text.clear();
    LeaveField(m_context, Screen().ecIncome, FieldFormat::Dollar, AfterEdit::Recalculate);
    EXPECT_EQ(Screen().ecIncome.Text, "$0");
}

TEST_F(LostFocus, OfARefusedTextChangesNothing) {
    Screen().ecIncome.Text = "abc";
    EXPECT_EQ(LeaveField(m_context, Screen().ecIncome, FieldFormat::Dollar, AfterEdit::Recalculate),
              EntryOutcome::Refused);
    EXPECT_EQ(Screen().ecIncome.Text, "abc");
    EXPECT_THAT(m_log, ElementsAre("focus ecIncome", "message You must enter a number here.", "select"));
}

TEST_F(LostFocus, TowardsCancelNeverComplains) {
    m_focus.Focused = "bCancel";
    Screen().ecIncome.Text = "-5";
    EXPECT_EQ(LeaveField(m_context, Screen().ecIncome, FieldFormat::Dollar, AfterEdit::Nothing),
              EntryOutcome::Accepted);
    EXPECT_THAT(m_log, IsEmpty());
}

TEST_F(LostFocus, MayHaveNoFurtherSteps) {
    Field price;
    price.Text = "5000";
    LeaveField(m_context, price, FieldFormat::Dollar, AfterEdit::Nothing);
    EXPECT_EQ(price.Text, "$5,000");
    EXPECT_THAT(m_log, IsEmpty());
}

TEST_F(LostFocus, TheHouseIsCheckedAfterTheRecalculation) {
    m_session.ChosenHouse = {"The Alder", 200000, 2400, 206000, 1700};
    Screen().lblHomeName.Text = "The Alder";
    Screen().ecStdUtil.Text = "2500";
    std::string nameWhenRecalculated;
    m_host.OnPendingEvents = [&] { nameWhenRecalculated = Screen().lblHomeName.Text; };
    LeaveField(m_context, Screen().ecStdUtil, FieldFormat::Dollar, AfterEdit::RecalculateAndCheckHouse);
    EXPECT_EQ(nameWhenRecalculated, "The Alder");
    EXPECT_EQ(Screen().lblHomeName.Text, "Custom");
}

TEST_F(LostFocus, OfOtherFieldsDoesNotCheckTheHouse) {
    m_session.ChosenHouse = {"The Alder", 1, 2, 3, 4};
    Screen().lblHomeName.Text = "The Alder";
    LeaveField(m_context, Screen().ecIncome, FieldFormat::Dollar, AfterEdit::Recalculate);
    EXPECT_EQ(Screen().lblHomeName.Text, "The Alder");
}

using FieldText = EntryDesk;

TEST_F(FieldText, OnlyAChangeOfAMarkedFieldSetsTheNoticeFlag) {
    const std::set<std::string_view> marked = {"ecStdHome", "ecGMHHome", "ecStdUtil", "ecGMHUtil",
                                               "ecGMHRate"};
    for (const auto& entry : FieldTable()) {
        m_session.Scenario.EEMNoticeFlag = false;
        SetFieldText(m_session, Screen().*entry.Member, "7");
        EXPECT_EQ(m_session.Scenario.EEMNoticeFlag, marked.contains(entry.Name)) << entry.Name;
    }
}

TEST_F(FieldText, SettingTheSameTextIsNotAChange) {
    SetFieldText(m_session, Screen().ecGMHHome, "$206,000");
    FormatField(m_session, Screen().ecGMHHome, FieldFormat::Dollar);
    EXPECT_FALSE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(FieldText, FormattingAndTheZeroOfAnEmptyFieldAreChanges) {
    Screen().ecGMHHome.Text = "206000";
    FormatField(m_session, Screen().ecGMHHome, FieldFormat::Dollar);
    EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
    m_session.Scenario.EEMNoticeFlag = false;
    Screen().ecGMHUtil.Text.clear();
    ValidateField(m_context, Screen().ecGMHUtil, FieldFormat::Dollar);
    EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
}

TEST_F(FieldText, NoChangeEverClearsTheFlag) {
    m_session.Scenario.EEMNoticeFlag = true;
    SetFieldText(m_session, Screen().ecIncome, "7");
    EXPECT_TRUE(m_session.Scenario.EEMNoticeFlag);
}

class CustomHouse : public EntryDesk {
protected:
    CustomHouse() {
        m_session.ChosenHouse = {"The Alder", 200000, 2400, 206000, 1700};
        Screen().lblHomeName.Text = "The Alder";
    }
};

TEST_F(CustomHouse, KeepsItsNameWhileAllFourAmountsAreUnchanged) {
    Screen().ecGMHUtil.Text = "1700.00";
    Screen().ecIncome.Text = "1";
    CheckCustomHouse(m_session);
    EXPECT_EQ(Screen().lblHomeName.Text, "The Alder");
}

TEST_F(CustomHouse, LosesItsNameWhenAnyAmountChanges) {
    for (Field MainScreen::*member :
         {&MainScreen::ecStdHome, &MainScreen::ecGMHHome, &MainScreen::ecStdUtil, &MainScreen::ecGMHUtil}) {
        Session session = m_session;
        (session.Screen.*member).Text = "1";
        CheckCustomHouse(session);
        EXPECT_EQ(session.Screen.lblHomeName.Text, "Custom");
    }
}

TEST_F(CustomHouse, DoesNotGetItsNameBack) {
    Screen().lblHomeName.Text = "Custom";
    CheckCustomHouse(m_session);
    EXPECT_EQ(Screen().lblHomeName.Text, "Custom");
}

} // namespace

} // namespace Ledgrove::Module1
