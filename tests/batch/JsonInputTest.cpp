#include "app/batch/JsonInput.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

/// The inputs of an object. A refusal fails the test.
InputRecord Inputs(std::string_view json) {
    InputRecord inputs;
    const auto refusal = ReadJsonObject(json, inputs);
    EXPECT_FALSE(refusal) << json << ": " << refusal->Message;
    return inputs;
}

Refusal RefusalOf(std::string_view json) {
    InputRecord inputs;
    const auto refusal = ReadJsonObject(json, inputs);
    EXPECT_TRUE(refusal) << json;
    return refusal.value_or(Refusal{});
}

TEST(JsonInput, KeepsTextsNumbersAndBooleansAsWritten) {
    InputRecord expected;
    expected[Input::ecIncome] = {true, InputKind::Text, "$72,000"};
    expected[Input::ecStdHome] = {true, InputKind::Number, "2.50e3"};
    expected[Input::chkDoTax0] = {true, InputKind::Boolean, "false"};
    EXPECT_EQ(Inputs(R"( {"ecIncome": "$72,000", "ecStdHome": 2.50e3, "chkDoTax0": false} )"), expected);
    EXPECT_EQ(Inputs("{}"), InputRecord());
}

TEST(JsonInput, ReadsEscapesAndLineBreaks) {
    EXPECT_EQ(Inputs("{\n\"ecIncome\":\n\"\\u0037\\n\\\"\"\n}")[Input::ecIncome].Text, "7\n\"");
}

TEST(JsonInput, AnEmptyTextIsPresent) {
    const InputRecord inputs = Inputs(R"({"ecIncome": ""})");
    EXPECT_TRUE(inputs[Input::ecIncome].Present);
    EXPECT_EQ(inputs[Input::ecIncome].Text, "");
}

TEST(JsonInput, TheLastValueOfANameCounts) {
    EXPECT_EQ(Inputs(R"({"ecIncome": 1, "ecIncome": "2"})")[Input::ecIncome].Text, "2");
}

TEST(JsonInput, RemovesTheOldValuesOfTheRecord) {
    InputRecord inputs;
    inputs[Input::ecIncome] = {true, InputKind::Number, "1"};
    EXPECT_FALSE(ReadJsonObject("{}", inputs));
    EXPECT_EQ(inputs, InputRecord());
}

TEST(JsonInput, TheFieldsOfAResultAreInputs) {
    InputRecord expected;
    expected[Input::ecIncome] = {true, InputKind::Text, "$72,000"};
    expected[Input::optDownPayment] = {true, InputKind::Number, "0"};
    expected[Input::chkDoTax0] = {true, InputKind::Boolean, "true"};
    EXPECT_EQ(Inputs(R"({"fields": {"ecIncome": "$72,000", "ecStdHome": "", "optDownPayment": 0,
                         "chkDoTax0": true}, "labels": {"lblPV": {"text": "x", "visible": true}},
                         "Scenario": {"PctDown": 0.1}, "messages": [{"text": "x"}], "dataCheck": "x"})"),
              expected);
}

TEST(JsonInput, TheMembersOfAResultNeedItsFields) {
    EXPECT_EQ(RefusalOf(R"({"labels": {}})").Control, "labels");
    EXPECT_EQ(RefusalOf(R"({"error": {"line": 1}})").Control, "error");
    EXPECT_EQ(RefusalOf(R"({"fields": {"ecHouse": "5"}})").Control, "ecHouse");
    EXPECT_EQ(RefusalOf(R"({"fields": {"ecIncome": {}}})").Control, "ecIncome");
    EXPECT_EQ(RefusalOf(R"({"fields": 5})").Control, "fields");
}

TEST(JsonInput, AnUnknownNameIsRefusedWithItsValue) {
    const Refusal refusal = RefusalOf(R"({"ecIncome": 1, "ecHouse": "5", "ecOther": 6})");
    EXPECT_EQ(refusal.Line, 1u);
    EXPECT_EQ(refusal.Control, "ecHouse");
    EXPECT_EQ(refusal.Value, "5");
    EXPECT_TRUE(refusal.Message.starts_with("This is not the name of an input."));
}

TEST(JsonInput, NullListsAndObjectsAreNotValues) {
    const struct {
        const char* Json;
        const char* Value;
    } cases[] = {{R"({"ecIncome": null})", "null"},
                 {R"({"ecIncome": [1, {"a": 2}]})", "[...]"},
                 {R"({"ecIncome": {"ecStdHome": 1}})", "{...}"}};
    for (const auto& [json, value] : cases) {
        const Refusal refusal = RefusalOf(json);
        EXPECT_EQ(refusal.Control, "ecIncome") << json;
        EXPECT_EQ(refusal.Value, value) << json;
        EXPECT_EQ(refusal.Message, "The value must be a text, a number, true or false.") << json;
    }
}

TEST(JsonInput, AnythingButAnObjectIsRefused) {
    for (const std::string_view json : {"[]", "1", "\"ecIncome\"", "null", "true"}) {
        const Refusal refusal = RefusalOf(json);
        EXPECT_EQ(refusal.Control, "") << json;
        EXPECT_TRUE(refusal.Message.starts_with("Write a JSON object")) << json;
    }
}

TEST(JsonInput, MalformedJsonIsRefusedWithItsPlace) {
    // The parser notices the missing comma at the third quote: after 2 characters of the first line and 14 of
    // the second.
    const Refusal refusal = RefusalOf("{\n\"ecIncome\": 1 \"ecStdHome\": 2}");
    EXPECT_EQ(refusal.Line, 2u);
    EXPECT_EQ(refusal.Control, "");
    EXPECT_TRUE(refusal.Message.starts_with("This is not valid JSON (error at character 17)."))
        << refusal.Message;
}

TEST(JsonInput, MalformedJsonIsReportedBeforeOtherFaults) {
    for (const std::string_view json : {"{", R"({"ecIncome": 1)", R"({"ecIncome" 1})", "{} {}", "{}x",
                                        R"({"ecHouse": 1,})", R"({"ecIncome": nul})", "{'ecIncome': 1}"}) {
        const Refusal refusal = RefusalOf(json);
        EXPECT_TRUE(refusal.Message.starts_with("This is not valid JSON")) << json << refusal.Message;
    }
}

TEST(JsonInput, AnEmptyTextIsCalledEmpty) {
    for (const std::string_view json : {"", " ", "\r\n\n"})
        EXPECT_TRUE(RefusalOf(json).Message.starts_with("The input is empty.")) << json;
}

TEST(JsonInput, ANulIsMalformedAnywhere) {
    using namespace std::string_view_literals;
    for (const std::string_view json : {"\0"sv, "{}\0"sv, "{\"ecIncome\": \"\0\"}"sv})
        EXPECT_TRUE(RefusalOf(json).Message.starts_with("This is not valid JSON"));
}

TEST(JsonInput, BytesThatAreNotUtf8AreMalformed) {
    for (const std::string_view json :
         {"{\"ecIncome\": \"\xFF\"}", "{\"ecIncome\": \"\\uDFF5\"}", "{\"\\uDFF5\": \"1\"}"})
        EXPECT_TRUE(RefusalOf(json).Message.starts_with("This is not valid JSON")) << json;
}

TEST(JsonInput, DeepNestingIsRefusedLikeAnyOtherList) {
    const std::size_t depth = 100000;
    const std::string json = "{\"ecIncome\": " + std::string(depth, '[') + std::string(depth, ']') + "}";
    EXPECT_EQ(RefusalOf(json).Value, "[...]");
}

} // namespace
} // namespace Ledgrove
