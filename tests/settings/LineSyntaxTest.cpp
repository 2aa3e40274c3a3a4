#include "settings/LineSyntax.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

TEST(LineSyntax, ALineBelongsToAKeyItBeginsWith) {
    EXPECT_TRUE(BelongsTo("BUILDERNAME=Acme", "BUILDERNAME"));
    EXPECT_TRUE(BelongsTo("BUILDERNAMEXAcme", "BUILDERNAME"));
    EXPECT_TRUE(BelongsTo("FEATURE10=x", "FEATURE1"));
    EXPECT_TRUE(BelongsTo("BUILDERNAME", "BUILDERNAME"));
    EXPECT_FALSE(BelongsTo("buildername=Acme", "BUILDERNAME"));
    EXPECT_FALSE(BelongsTo(" BUILDERNAME=Acme", "BUILDERNAME"));
    EXPECT_FALSE(BelongsTo("BUILDER", "BUILDERNAME"));
}

TEST(LineSyntax, AnyCharacterAfterTheKeyIsSkipped) {
    EXPECT_EQ(ValueOf("BUILDERNAME=Acme", "BUILDERNAME"), "Acme");
    EXPECT_EQ(ValueOf("BUILDERNAMEXAcme", "BUILDERNAME"), "Acme");
    EXPECT_EQ(ValueOf("FEATURE12=x", "FEATURE1"), "=x");
    EXPECT_EQ(ValueOf("BUILDERNAME=", "BUILDERNAME"), "");
    EXPECT_EQ(ValueOf("BUILDERNAME", "BUILDERNAME"), "");
}

TEST(LineSyntax, TheLastLineOfAKeyCounts) {
    const FileLines lines = SplitLines("A=1\nB=2\nA=3\nC=4\n");
    EXPECT_EQ(LastLineOf(lines, "A"), 2u);
    EXPECT_EQ(LastLineOf(lines, "D"), std::nullopt);
}

std::vector<std::string> Fields(std::string_view value, std::size_t count) {
    FieldSplitter splitter(value);
    std::vector<std::string> fields;
    for (std::size_t i = 0; i < count; ++i)
        fields.push_back(std::string(splitter.Next().value_or("(none)")));
    return fields;
}

using Texts = std::vector<std::string>;

TEST(FieldSplitter, CommasSeparateFields) {
    EXPECT_EQ(Fields("a, b,c", 3), (Texts{"a", " b", "c"}));
    EXPECT_EQ(Fields(",,c", 3), (Texts{"", "", "c"}));
}

TEST(FieldSplitter, AShortLineRepeatsItsLastField) {
    EXPECT_EQ(Fields("45200", 2), (Texts{"45200", "45200"}));
    EXPECT_EQ(Fields("a,b", 4), (Texts{"a", "b", "b", "b"}));
}

TEST(FieldSplitter, ThereIsNoFieldAfterTheLastComma) {
    EXPECT_EQ(Fields("45200,", 3), (Texts{"45200", "(none)", "(none)"}));
    EXPECT_EQ(Fields("", 2), (Texts{"(none)", "(none)"}));
}

TEST(FieldSplitter, ALongLineIsCutOff) {
    EXPECT_EQ(Fields("1,2,3", 2), (Texts{"1", "2"}));
}

TEST(LineSyntax, SinglesAreReadAsTyped) {
    EXPECT_EQ(ToSingle("1.5"), 1.5f);
    EXPECT_EQ(ToSingle(" $45,200 "), 45200.0f);
    EXPECT_EQ(ToSingle("-1"), -1.0f);
    EXPECT_EQ(ToSingle(""), std::nullopt);
    EXPECT_EQ(ToSingle("1.5%"), std::nullopt);
    EXPECT_EQ(ToSingle("TRUE"), std::nullopt);
}

TEST(LineSyntax, IntegersHaveSixteenBitsAndRoundHalvesToEven) {
    EXPECT_EQ(ToInteger("7"), 7);
    EXPECT_EQ(ToInteger("7.5"), 8);
    EXPECT_EQ(ToInteger("6.5"), 6);
    EXPECT_EQ(ToInteger("-2.5"), -2);
    EXPECT_EQ(ToInteger("7.51"), 8);
    EXPECT_EQ(ToInteger("32767.4"), 32767);
    EXPECT_EQ(ToInteger("32767.5"), std::nullopt);
    EXPECT_EQ(ToInteger("-32768"), -32768);
    EXPECT_EQ(ToInteger("-32769"), std::nullopt);
    EXPECT_EQ(ToInteger("x"), std::nullopt);
}

TEST(LineSyntax, RoundingDownGoesTowardsMinusInfinity) {
    EXPECT_EQ(ToIntegerDown("1.9"), 1);
    EXPECT_EQ(ToIntegerDown("-0.1"), -1);
    EXPECT_EQ(ToIntegerDown("32767.9"), 32767);
    EXPECT_EQ(ToIntegerDown("32768"), std::nullopt);
    EXPECT_EQ(ToIntegerDown(""), std::nullopt);
}

} // namespace
} // namespace Ledgrove
