#include "app/batch/Comparison.h"

#include <gmock/gmock.h>

#include "app/batch/JsonText.h"
#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

using testing::HasSubstr;

InputRecord Given(std::initializer_list<std::pair<Input, std::string>> values) {
    InputRecord inputs;
    for (const auto& [input, text] : values)
        inputs[input] = {true, InputKind::Text, text};
    return inputs;
}

class ComparisonTest : public testing::Test {
protected:
    Refusal RefusalOf(const InputRecord& inputs) {
        const auto refusal = m_comparison.Run(inputs);
        EXPECT_TRUE(refusal);
        return refusal.value_or(Refusal{});
    }

    std::string ResultOf(const InputRecord& inputs) {
        EXPECT_FALSE(m_comparison.Run(inputs));
        std::string json;
        ResultJson().Append(json, m_comparison);
        return json;
    }

    Comparison m_comparison{Testing::ShippedSession()};
};

TEST_F(ComparisonTest, EntersTheInputsAndRecalculates) {
    ASSERT_FALSE(m_comparison.Run(
        Given({{Input::ecStdHome, "200000"}, {Input::ecPctDown, "10"}, {Input::ecStdUtil, "2400"}})));
    const Session& state = m_comparison.State();
    EXPECT_EQ(state.Screen.ecStdHome.Text, "$200,000");
    EXPECT_EQ(state.StdCase.Cost, 200000.0F);
    EXPECT_EQ(state.StdCase.DownPayment, 20000.0F); // 10 percent
    EXPECT_EQ(state.StdCase.LoanAmount, 180000.0F);
    EXPECT_EQ(state.StdCase.UtilMonthly, 200.0F); // a twelfth of 2,400
}

TEST_F(ComparisonTest, AFixedDownPaymentIsInForceWhenItsOptionIs) {
    ASSERT_FALSE(m_comparison.Run(Given({{Input::ecStdHome, "200000"},
                                         {Input::ecPctDown, "10"},
                                         {Input::ecFixedDown, "50000"},
                                         {Input::optDownPayment, "1"}})));
    EXPECT_EQ(m_comparison.State().StdCase.LoanAmount, 150000.0F);
}

TEST_F(ComparisonTest, APercentageAbove100IsAnAmount) {
    ASSERT_FALSE(m_comparison.Run(Given({{Input::ecStdHome, "200000"}, {Input::ecPctDown, "50000"}})));
    EXPECT_EQ(m_comparison.State().Screen.ecPctDown.Text, "25.00%");
    EXPECT_EQ(m_comparison.State().StdCase.DownPayment, 50000.0F);
}

TEST_F(ComparisonTest, APresentEmptyTextIsZero) {
    ASSERT_FALSE(m_comparison.Run(Given({{Input::ecStdRate, ""}})));
    EXPECT_EQ(m_comparison.State().StdCase.IntRate, 0.0F);
}

TEST_F(ComparisonTest, EachRunStartsFromTheSameState) {
    const std::string first = ResultOf({});
    const std::string all = ResultOf(Given({{Input::ecIncome, "72000"},
                                            {Input::ecStdHome, "200000"},
                                            {Input::optDownPayment, "1"},
                                            {Input::cboMortTerm, "15 years"},
                                            {Input::cboStdMortOption, "FHA"},
                                            {Input::cboGMHMortOption, "FHA EEM"},
                                            {Input::chkDoTax0, "false"}}));
    EXPECT_NE(all, first);
    EXPECT_TRUE(m_comparison.Run(Given({{Input::ecStdHome, "100000"}, {Input::ecGMHHome, "x"}})));
    EXPECT_EQ(ResultOf({}), first);
}

// Amounts in red, a hidden tax line and a visible note on Fannie Mae must not stay from one comparison to the
// next.
TEST_F(ComparisonTest, NoLabelKeepsAnythingOfAnEarlierComparison) {
    const InputRecord costly = Given({{Input::ecIncome, "72000"},
                                      {Input::ecStdHome, "200000"},
                                      {Input::ecGMHHome, "260000"},
                                      {Input::ecStdUtil, "1000"},
                                      {Input::ecGMHUtil, "2000"},
                                      {Input::cboGMHMortOption, "Fannie Mae EEM"},
                                      {Input::chkDoTax0, "false"}});
    const InputRecord saving = Given({{Input::ecIncome, "90000"},
                                      {Input::ecStdHome, "200000"},
                                      {Input::ecGMHHome, "201000"},
                                      {Input::ecStdUtil, "3000"},
                                      {Input::ecGMHUtil, "1000"}});
    const std::string shown = ResultOf(saving);
    EXPECT_THAT(ResultOf(costly), HasSubstr("#ff0000"));
    EXPECT_EQ(ResultOf(saving), shown);
}

TEST_F(ComparisonTest, RefusesTheFirstInvalidInputInTheOrderOfEntry) {
    const Refusal refusal = RefusalOf(
        Given({{Input::chkDoTax0, "maybe"}, {Input::ecStdHome, "x"}, {Input::ecMonthlyDebt, "-5"}}));
    EXPECT_EQ(refusal.Control, "ecMonthlyDebt");
    EXPECT_EQ(refusal.Value, "-5");
}

TEST_F(ComparisonTest, EachKindOfControlHasItsOwnRefusal) {
    const struct {
        Input Which;
        const char* Text;
        const char* Message;
    } cases[] = {
        {Input::ecIncome, "abc", "You must enter a number here."},
        {Input::optDownPayment, "2", "This must be 0 (percent down) or 1 (fixed amount)."},
        {Input::cboStdMortOption, "va",
         R"(This is not in the list. Choose one of "Conventional", "FHA", "VA".)"},
        {Input::cboMortTerm, "31 years", R"(This is not in the list. Choose one of "10 years", )"},
        {Input::cboGMHMortOption, "VA EEM",
         R"(Choose one of "Conventional", "Fannie Mae EEM", "Freddie Mac EEM".)"},
        {Input::chkDoTax0, "TRUE", "This must be true or false."},
    };
    for (const auto& [input, text, message] : cases) {
        const Refusal refusal = RefusalOf(Given({{input, text}}));
        EXPECT_EQ(refusal.Control, NameOf(input));
        EXPECT_EQ(refusal.Value, text);
        EXPECT_THAT(refusal.Message, HasSubstr(message));
    }
}

TEST_F(ComparisonTest, ABooleanIsNotANumber) {
    InputRecord inputs;
    inputs[Input::ecIncome] = {true, InputKind::Boolean, "true"};
    EXPECT_EQ(RefusalOf(inputs).Message, "You must enter a number here.");
}

TEST_F(ComparisonTest, TheBaseOptionDeterminesTheLabelledOptions) {
    EXPECT_FALSE(
        m_comparison.Run(Given({{Input::cboStdMortOption, "VA"}, {Input::cboGMHMortOption, "VA EEM"}})));
    EXPECT_EQ(
        RefusalOf(Given({{Input::cboStdMortOption, "VA"}, {Input::cboGMHMortOption, "FHA EEM"}})).Control,
        "cboGMHMortOption");
}

TEST_F(ComparisonTest, KeepsOnlyTheMessagesOfTheLastRun) {
    ASSERT_FALSE(m_comparison.Run(Given({{Input::cboGMHMortOption, "Fannie Mae EEM"}})));
    EXPECT_FALSE(m_comparison.Messages().empty());
    ASSERT_FALSE(m_comparison.Run({}));
    EXPECT_TRUE(m_comparison.Messages().empty());
}

TEST_F(ComparisonTest, TheDataCheckReportsMissingInputs) {
    ASSERT_FALSE(m_comparison.Run(Given({{Input::ecGMHHome, "206000"}})));
    EXPECT_THAT(m_comparison.DataCheck(), HasSubstr("Cost of Standard Home is missing."));
    EXPECT_THAT(m_comparison.DataCheck(), testing::Not(HasSubstr("Cost of GREENMARK Home is missing.")));
}

TEST(CollectingHost, AnswersYesOrOk) {
    CollectingHost host;
    EXPECT_EQ(host.ShowMessage({"a", "b", MessageIcon::Question, MessageButtons::YesNo}), MessageAnswer::Yes);
    EXPECT_EQ(host.ShowMessage({"c", "d", MessageIcon::None, MessageButtons::Ok}), MessageAnswer::Ok);
    ASSERT_EQ(host.Messages().size(), 2u);
    EXPECT_EQ(host.Messages()[1].Title, "c");
    host.Clear();
    EXPECT_TRUE(host.Messages().empty());
}

} // namespace
} // namespace Ledgrove
