#include "app/batch/InputRecord.h"
#include "app/batch/EntryInputs.h"

#include <set>

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

TEST(InputTable, EveryInputHasItsOwnName) {
    std::set<std::string_view> names;
    for (const auto& [input, name] : InputTable) {
        EXPECT_EQ(NameOf(input), name);
        EXPECT_EQ(InputNamed(name), input);
        names.insert(name);
    }
    EXPECT_EQ(names.size(), std::size(InputTable));
}

TEST(InputTable, AnyOtherNameIsNotAnInput) {
    for (const std::string_view name : {"", "ecincome", "ecIncome ", "ecIncom", "ecIncomes", "lblStdQual"})
        EXPECT_EQ(InputNamed(name), std::nullopt) << name;
}

TEST(EntryInputs, EachFieldHasTheInputWithItsName) {
    ASSERT_EQ(EntryInputs().size(), MainEntryRules().size());
    for (std::size_t i = 0; i < EntryInputs().size(); ++i) {
        EXPECT_EQ(&EntryInputs()[i].Rule, &MainEntryRules()[i]);
        EXPECT_EQ(NameOf(EntryInputs()[i].Which), MainEntryRules()[i].Name);
    }
}

TEST(InputRecord, IsEmptyAtFirst) {
    const InputRecord inputs;
    for (const NamedInput& input : InputTable)
        EXPECT_FALSE(inputs[input.Which].Present) << input.Name;
}

TEST(InputRecord, KeepsEachValueSeparately) {
    InputRecord inputs;
    inputs[Input::ecIncome] = {true, InputKind::Text, "72000"};
    inputs[Input::chkDoTax0] = {true, InputKind::Boolean, "true"};
    EXPECT_EQ(inputs[Input::ecIncome].Text, "72000");
    EXPECT_EQ(inputs[Input::chkDoTax0].Text, "true");
    EXPECT_FALSE(inputs[Input::ecMonthlyDebt].Present);
}

TEST(InputRecord, RecordsWithTheSameValuesAreEqual) {
    InputRecord one;
    InputRecord other;
    EXPECT_EQ(one, other);
    one[Input::ecStdHome] = {true, InputKind::Number, "200000"};
    EXPECT_NE(one, other);
    other[Input::ecStdHome] = {true, InputKind::Text, "200000"};
    EXPECT_NE(one, other);
    other[Input::ecStdHome].Kind = InputKind::Number;
    EXPECT_EQ(one, other);
}

TEST(InputRecord, ClearRemovesEveryValue) {
    InputRecord inputs;
    inputs[Input::ecStdHome] = {true, InputKind::Number, "200000"};
    inputs.Clear();
    EXPECT_EQ(inputs, InputRecord());
}

TEST(Refusal, OfAnUnknownNameListsTheInputs) {
    const Refusal refusal = UnknownInput("ecHouse", "5");
    EXPECT_EQ(refusal.Control, "ecHouse");
    EXPECT_EQ(refusal.Value, "5");
    EXPECT_TRUE(refusal.Message.starts_with(
        "This is not the name of an input. The inputs are ecIncome, ecMonthlyDebt, "));
    EXPECT_TRUE(refusal.Message.ends_with(", chkDoTax0, PctDownConverted, lblHomeName."));
}

TEST(Refusal, TheSentenceGivesMessageLineControlAndText) {
    EXPECT_EQ(RefusalSentence({3, "ecIncome", "abc", "You must enter a number here."}),
              "You must enter a number here. (line 3, ecIncome \"abc\")");
}

} // namespace
} // namespace Ledgrove
