#include "app/batch/JsonText.h"

#include <cstdlib>
#include <span>

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

rapidjson::Document Parsed(const std::string& json) {
    rapidjson::Document document;
    // Keeps numbers as texts, so that a test can check their digits.
    document.Parse<rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag>(
        json.data(), json.size());
    EXPECT_FALSE(document.HasParseError()) << json;
    return document;
}

class JsonTextTest : public testing::Test {
protected:
    rapidjson::Document ResultOf(std::initializer_list<std::pair<Input, std::string>> values) {
        InputRecord inputs;
        for (const auto& [input, text] : values)
            inputs[input] = {true, InputKind::Text, text};
        const auto refusal = m_comparison.Run(inputs);
        EXPECT_FALSE(refusal) << refusal->Message;
        std::string json;
        ResultJson().Append(json, m_comparison);
        return Parsed(json);
    }

    Comparison m_comparison{Testing::ShippedSession()};
};

TEST_F(JsonTextTest, HasItsPartsInOrder) {
    const rapidjson::Document result = ResultOf({});
    std::vector<std::string> names;
    for (const auto& member : result.GetObject())
        names.emplace_back(member.name.GetString());
    EXPECT_EQ(names, (std::vector<std::string>{"fields", "labels", "Scenario", "StdCase", "GMHCase",
                                               "messages", "dataCheck"}));
}

TEST_F(JsonTextTest, TheFieldsAreTheTextsOfTheInputs) {
    const rapidjson::Document result = ResultOf({{Input::ecIncome, "72000"}, {Input::chkDoTax0, "false"}});
    const auto& fields = result["fields"];
    // The controls. The inputs after them say only how a saved screen was entered.
    const auto controls = std::span(InputTable).first(std::size(InputTable) - 2);
    EXPECT_EQ(fields.MemberCount(), controls.size());
    for (const NamedInput& input : controls)
        EXPECT_TRUE(fields.HasMember(input.Name.data())) << input.Name;
    EXPECT_STREQ(fields["ecIncome"].GetString(), "$72,000");
    EXPECT_STREQ(fields["cboMortTerm"].GetString(), "30 years");
    EXPECT_STREQ(fields["optDownPayment"].GetString(), "0");
    EXPECT_FALSE(fields["chkDoTax0"].GetBool());
}

TEST_F(JsonTextTest, EachResultLabelHasItsTextColourAndVisibility) {
    const rapidjson::Document result = ResultOf({{Input::ecStdHome, "200000"}, {Input::ecGMHHome, "206000"}});
    const MainScreen& screen = m_comparison.State().Screen;
    EXPECT_EQ(result["labels"].MemberCount(), ResultLabelTable().size());
    for (const auto& [name, member] : ResultLabelTable()) {
        const Label& label = screen.*member;
        const auto& shown = result["labels"][std::string(name).c_str()];
        EXPECT_EQ(shown["text"].GetString(), label.Text) << name;
        EXPECT_EQ(shown["visible"].GetBool(), label.Visible) << name;
        EXPECT_STREQ(shown["color"].GetString(), label.Colour == TextColour::Red    ? "#ff0000"
                                                 : label.Colour == TextColour::Grey ? "#808080"
                                                                                    : "#000000")
            << name;
    }
}

TEST_F(JsonTextTest, AmountsAreDecimalsThatReadBackAsTheSameSingle) {
    for (const char* price : {"200000", "1", "16777217", "123456789", "999999999999", "1234567"}) {
        const rapidjson::Document result = ResultOf({{Input::ecStdHome, price}, {Input::ecGMHHome, "1"}});
        const std::string text = result["StdCase"]["Cost"].GetString();
        EXPECT_EQ(std::strtof(text.c_str(), nullptr), std::strtof(price, nullptr)) << price;
        EXPECT_EQ(text.find_first_not_of("0123456789."), std::string::npos) << text;
    }
}

TEST_F(JsonTextTest, NumbersHaveNoMoreDigitsThanTheyNeed) {
    const rapidjson::Document result = ResultOf({{Input::ecStdHome, "200000"},
                                                 {Input::ecStdRate, "6.1"},
                                                 {Input::ecPctDown, "12.50"},
                                                 {Input::ecStdUtil, "1000"}});
    EXPECT_STREQ(result["StdCase"]["Cost"].GetString(), "200000");
    EXPECT_STREQ(result["StdCase"]["IntRate"].GetString(), "0.061");
    EXPECT_STREQ(result["Scenario"]["PctDown"].GetString(), "0.125");
    // A twelfth of 1,000. Singles are 2^-17 apart here, and the nearest one is 83.33333587646484375.
    EXPECT_STREQ(result["StdCase"]["UtilMonthly"].GetString(), "83.333336");
    EXPECT_STREQ(result["GMHCase"]["Cost"].GetString(), "0");
}

TEST_F(JsonTextTest, OfTwoEquallyNearDecimalsWritesTheOneFurtherFromZero) {
    // An eighth of the price is 490,771.625. Singles are 2^-5 apart here, so 490771.62 reads back as the same
    // single.
    const rapidjson::Document result = ResultOf({{Input::ecStdHome, "3926173"}, {Input::ecPctDown, "12.50"}});
    EXPECT_STREQ(result["StdCase"]["DownPayment"].GetString(), "490771.63");
}

TEST_F(JsonTextTest, ALossIsANegativeNumber) {
    // The labelled home costs 6,000 less.
    const rapidjson::Document result = ResultOf({{Input::ecStdHome, "206000"}, {Input::ecGMHHome, "200000"}});
    EXPECT_STREQ(result["Scenario"]["CostDifference"].GetString(), "-6000");
}

TEST_F(JsonTextTest, MessagesKeepTheirOrder) {
    const rapidjson::Document result =
        ResultOf({{Input::ecStdHome, "200000"}, {Input::cboGMHMortOption, "Fannie Mae EEM"}});
    const auto& messages = m_comparison.Messages();
    ASSERT_FALSE(messages.empty());
    ASSERT_EQ(result["messages"].Size(), messages.size());
    for (rapidjson::SizeType i = 0; i < messages.size(); ++i) {
        EXPECT_EQ(result["messages"][i]["title"].GetString(), messages[i].Title);
        EXPECT_EQ(result["messages"][i]["text"].GetString(), messages[i].Text);
    }
}

TEST_F(JsonTextTest, TheDataCheckIsShown) {
    const rapidjson::Document result = ResultOf({});
    EXPECT_EQ(result["dataCheck"].GetString(), m_comparison.DataCheck());
    EXPECT_NE(m_comparison.DataCheck().find("Cost of Standard Home is missing."), std::string::npos);
}

TEST(RefusalJson, NamesLineControlValueAndMessage) {
    std::string json;
    AppendRefusalJson(json, {7, "ecIncome", "abc", "No."});
    EXPECT_EQ(json, R"({"error":{"line":7,"control":"ecIncome","value":"abc","message":"No."}})");
}

TEST(RefusalJson, EveryTextReadsBack) {
    std::string every;
    for (int c = 1; c < 128; ++c)
        every += static_cast<char>(c);
    for (const std::string& text :
         {every, std::string(), std::string("\"\\\"\\"), std::string("a\"b"), std::string("\n\r\t\b\f\x7F"),
          std::string("\xE2\x82\xAC \xF0\x9F\x8F\xA0")}) {
        std::string json;
        AppendRefusalJson(json, {1, "", text, ""});
        EXPECT_EQ(Parsed(json)["error"]["value"].GetString(), text);
        EXPECT_EQ(json.find_first_of("\n\r\t\b\f"), std::string::npos) << "a result is one line";
    }
}

TEST(RefusalJson, EscapesTheCharactersThatJsonRequires) {
    std::string json;
    AppendRefusalJson(json, {1, "", "\"\\\r\n\t\x01/", ""});
    EXPECT_NE(json.find(R"("value":"\"\\\r\n\u0009\u0001/")"), std::string::npos) << json;
}

} // namespace
} // namespace Ledgrove
