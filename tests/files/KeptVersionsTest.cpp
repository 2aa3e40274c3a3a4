#include "app/files/KeptVersions.h"

#include "FileDesk.h"
#include "app/batch/JsonInput.h"
#include "app/files/ComparisonFile.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

class KeptVersionsTest : public FileTest {
protected:
    static InputRecord Inputs(std::string_view json) {
        InputRecord inputs;
        EXPECT_FALSE(ReadJsonObject(json, inputs));
        return inputs;
    }
};

TEST_F(KeptVersionsTest, AFileWithVersionsHasTheSameInputs) {
    const MainScreen screen = Testing::SampleSession().Screen;
    const KeptVersions versions{
        {"a \"quoted\" name; é", "2026-11-22 14:05",
         Inputs(R"({"ecIncome": "$80,000", "chkDoTax0": true, "optDownPayment": 1})")},
        {"empty", "", {}}};
    const std::string text = ComparisonText(screen, versions);
    InputRecord plain;
    InputRecord withVersions;
    // The reader of comparisons knows nothing of versions.
    ASSERT_FALSE(ReadJsonObject(ComparisonText(screen), plain));
    ASSERT_FALSE(ReadJsonObject(text, withVersions));
    EXPECT_EQ(plain, withVersions);

    const VersionsOfFile read = ReadVersions(text);
    EXPECT_EQ(read.Unreadable, 0U);
    EXPECT_EQ(read.Versions, versions);
}

TEST_F(KeptVersionsTest, AComparisonWithoutVersionsIsAPlainObjectOfInputs) {
    const MainScreen screen = Testing::SampleSession().Screen;
    EXPECT_EQ(ComparisonText(screen, {}), ComparisonText(screen));
    EXPECT_TRUE(ReadVersions(ComparisonText(screen)).Versions.empty());
}

TEST_F(KeptVersionsTest, VersionsMayAlsoStandBesidePlainInputs) {
    constexpr std::string_view text =
        R"({"ecIncome": "72000", "versions": [{"name": "A", "kept": "x", "fields": {"ecIncome": "1"}}]})";
    InputRecord inputs;
    EXPECT_FALSE(ReadJsonObject(text, inputs));
    EXPECT_EQ(inputs[Input::ecIncome].Text, "72000");
    EXPECT_EQ(ReadVersions(text).Versions.size(), 1U);
}

TEST_F(KeptVersionsTest, WhatCannotBeReadIsCounted) {
    const std::string deep(100000, '[');
    const std::string closed(100000, ']');
    const std::string nested =
        R"({"versions": [{"name": "A", "fields": {"ecIncome": )" + deep + closed + "}}]}";
    for (const std::string& text :
         {std::string(R"({"versions": 7})"), std::string(R"({"versions": [7]})"),
          std::string(R"({"versions": [{"name": "A"}]})"),
          std::string(R"({"versions": [{"name": 5, "fields": {}}]})"),
          std::string(R"({"versions": [{"name": "A", "fields": {"ecNothing": "1"}}]})"), nested}) {
        const VersionsOfFile read = ReadVersions(text);
        EXPECT_TRUE(read.Versions.empty()) << text.substr(0, 80);
        EXPECT_EQ(read.Unreadable, 1U) << text.substr(0, 80);
    }
    EXPECT_EQ(ReadVersions("no JSON").Unreadable, 0U);
}

TEST_F(KeptVersionsTest, AVersionIsComputedAsIfItWereOpened) {
    const Session sample = Testing::SampleSession();
    const InputsResult version = ComparisonOf(
        Inputs(R"({"ecIncome": "72000", "ecStdHome": "200000", "ecGMHHome": "206000"})"), sample, m_start);
    EXPECT_EQ(version.Fault, "");
    EXPECT_EQ(version.State.Screen.ecStdHome.Text, "$200,000");
    EXPECT_EQ(version.State.StdCase.Cost, 200000.0F);
    EXPECT_NE(ComparisonOf(Inputs(R"({"ecIncome": "abc"})"), sample, m_start).Fault, "");
}

} // namespace
} // namespace Ledgrove
