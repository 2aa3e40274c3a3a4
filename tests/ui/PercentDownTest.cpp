#include "tests/ui/EntryDesk.h"

#include <gmock/gmock.h>

namespace Ledgrove::Module1 {

namespace {

using namespace Ledgrove::Testing;

class PercentDown : public EntryDesk {
protected:
    /// Types the text and leaves the field.
    const std::string& Enter(const char* text) {
        SetFieldText(m_session, Screen().ecPctDown, text);
        LeaveField(m_context, Screen().ecPctDown, FieldFormat::Percent, AfterEdit::Recalculate);
        return Screen().ecPctDown.Text;
    }
    const std::string& Convert(const char* text) {
        SetFieldText(m_session, Screen().ecPctDown, text);
        ConvertPercentDown(m_session);
        return Screen().ecPctDown.Text;
    }
};

TEST_F(PercentDown, UpTo100IsAPercentage) {
    EXPECT_EQ(Enter("20"), "20.00%");
    EXPECT_EQ(Enter("0.2"), "20.00%");
    EXPECT_EQ(Enter("100"), "100.00%");
    EXPECT_EQ(Convert("100.00%"), "100.00%");
}

TEST_F(PercentDown, Above100IsAnAmountOfTheBasePrice) {
    EXPECT_EQ(Enter("30000"), "15.00%"); // 30,000 / 200,000
    EXPECT_EQ(m_session.Scenario.PctDown, 0.15F);
    EXPECT_FLOAT_EQ(m_session.StdCase.DownPayment, 30000);
    EXPECT_EQ(Enter("$25,500"), "12.75%");
    EXPECT_EQ(Convert("100.01%"), "0.05%"); // 100.01 / 200,000 x 100 = 0.050005
    EXPECT_EQ(Convert("400000"), "200.00%");
}

TEST_F(PercentDown, IsConvertedOnEnterAndOnTabBeforeTheRecalculation) {
    for (const KeyCode key : {KeyCode::Enter, KeyCode::Tab}) {
        SetFieldText(m_session, Screen().ecPctDown, "30000");
        HandleEntryKey(m_context, Screen().ecPctDown, key, FieldFormat::Percent);
        EXPECT_EQ(Screen().ecPctDown.Text, "15.00%");
        EXPECT_FLOAT_EQ(m_session.StdCase.DownPayment, 30000);
    }
}

TEST_F(PercentDown, AResultAbove100IsNotConvertedAgain) {
    EXPECT_EQ(Enter("500000"), "250.00%"); // 500,000 / 200,000
    LeaveField(m_context, Screen().ecPctDown, FieldFormat::Percent, AfterEdit::Recalculate);
    EXPECT_EQ(Screen().ecPctDown.Text, "250.00%");
    HandleEntryKey(m_context, Screen().ecPctDown, KeyCode::Enter, FieldFormat::Percent);
    EXPECT_EQ(Screen().ecPctDown.Text, "250.00%");
    SetFieldText(m_session, Screen().ecStdHome, "$100,000");
    ConvertPercentDown(m_session);
    EXPECT_EQ(Screen().ecPctDown.Text, "250.00%");
}

TEST_F(PercentDown, ANewEntryAbove100IsConvertedAgain) {
    Enter("500000");
    EXPECT_EQ(Enter("600000"), "300.00%");
    Enter("20");
    EXPECT_EQ(Enter("500"), "0.25%");
}

TEST_F(PercentDown, WithoutABasePriceTheAmountStays) {
    for (const char* price : {"", "$0", "abc"}) {
        Screen().ecStdHome.Text = price;
        EXPECT_EQ(Enter("30000"), "30000.00%");
    }
    Screen().ecStdHome.Text = "$200,000";
    LeaveField(m_context, Screen().ecPctDown, FieldFormat::Percent, AfterEdit::Recalculate);
    EXPECT_EQ(Screen().ecPctDown.Text, "15.00%");
}

TEST_F(PercentDown, OtherFieldsAreNotConverted) {
    Screen().ecStdStr.Text = "30000";
    LeaveField(m_context, Screen().ecStdStr, FieldFormat::Percent, AfterEdit::Recalculate);
    EXPECT_EQ(Screen().ecStdStr.Text, "30000.00%");
    EXPECT_EQ(Screen().ecPctDown.Text, "10.00%");
}

// 99999999999999999999999999999999999999 / 10 x 100 = 1e39, above the largest single, 3.4e38.
TEST_F(PercentDown, APercentageTooLargeForANumberIsNotMade) {
    Screen().ecStdHome.Text = "$10";
    Screen().ecPctDown.Text = "99999999999999999999999999999999999999";
    ConvertPercentDown(m_session);
    EXPECT_EQ(Screen().ecPctDown.Text, "99999999999999999999999999999999999999");
    EXPECT_EQ(FieldComplaint(Screen().ecPctDown.Text, FieldFormat::Percent), "");
}

// 48 and 46 are the character codes of "0" and ".".
TEST_F(PercentDown, APointTypedIntoTheEmptyFieldGives4846) {
    Screen().ecPctDown.Text.clear();
    EXPECT_TRUE(TakePercentDownPoint(m_session, '.'));
    EXPECT_EQ(Screen().ecPctDown.Text, "4846");
}

TEST_F(PercentDown, OtherKeysAndFilledFieldsTypeNormally) {
    Screen().ecPctDown.Text.clear();
    for (const char key : {'5', '0', ',', ' '})
        EXPECT_FALSE(TakePercentDownPoint(m_session, key));
    EXPECT_EQ(Screen().ecPctDown.Text, "");
    Screen().ecPctDown.Text = "1";
    EXPECT_FALSE(TakePercentDownPoint(m_session, '.'));
    EXPECT_EQ(Screen().ecPctDown.Text, "1");
}

TEST_F(PercentDown, TheTypedPointIsReadAsAnAmount) {
    Screen().ecPctDown.Text.clear();
    TakePercentDownPoint(m_session, '.');
    LeaveField(m_context, Screen().ecPctDown, FieldFormat::Percent, AfterEdit::Recalculate);
    EXPECT_EQ(Screen().ecPctDown.Text, "2.42%"); // 4,846 / 200,000 x 100 = 2.423
}

} // namespace

} // namespace Ledgrove::Module1
