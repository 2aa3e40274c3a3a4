#include "base/Text.h"

#include <gtest/gtest.h>

namespace Ledgrove {
namespace {

TEST(Text, TrimmedRemovesTheBlanksAtBothEnds) {
    EXPECT_EQ(Trimmed("  a b  "), "a b");
    EXPECT_EQ(Trimmed("   "), "");
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed("\ta\t"), "\ta\t");
    EXPECT_EQ(Trimmed(" \ta \t", " \t"), "a");
}

TEST(Text, ATextIsBlankIfItHoldsOnlyBlanks) {
    EXPECT_TRUE(IsBlank(""));
    EXPECT_TRUE(IsBlank("  "));
    EXPECT_FALSE(IsBlank(" \t"));
    EXPECT_TRUE(IsBlank(" \t\r", " \t\r"));
    EXPECT_FALSE(IsBlank(" . "));
    // A no-break space does not count as a blank.
    EXPECT_FALSE(IsBlank("\xC2\xA0"));
}

TEST(Text, QuotedDoesNotChangeTheText) {
    EXPECT_EQ(Quoted("a b"), "\"a b\"");
    EXPECT_EQ(Quoted(""), "\"\"");
    EXPECT_EQ(Quoted("a\"b"), "\"a\"b\"");
}

TEST(Text, AnExcerptIsShortAndPrintable) {
    EXPECT_EQ(Excerpt("abc"), "\"abc\"");
    EXPECT_EQ(Excerpt(std::string(81, 'x')), '"' + std::string(80, 'x') + "...\"");
    // 79 letters and a two-byte character: a cut at 80 bytes would split the character.
    EXPECT_EQ(Excerpt(std::string(79, 'x') + "\xC3\xA9 and more"), '"' + std::string(79, 'x') + "...\"");
    EXPECT_EQ(Excerpt("a\nb\x1B"), "\"a?b?\"");
}

TEST(Text, OnlyTheFirstByteBeginsACharacter) {
    const std::string_view text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8F\xA0"; // of 1, 2, 3 and 4 bytes
    std::size_t characters = 0;
    for (const char byte : text)
        characters += BeginsCharacter(byte) ? 1 : 0;
    EXPECT_EQ(characters, 4u);
    EXPECT_FALSE(BeginsCharacter('\xA9'));
}

} // namespace
} // namespace Ledgrove
