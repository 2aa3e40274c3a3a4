#include "reports/TextWrap.h"

#include "tests/reports/FixedMeasure.h"

#include <gmock/gmock.h>

namespace Ledgrove {
namespace {

using testing::ElementsAre;

/// Ten-point characters are 100 twips wide.
std::vector<std::string> Wrap(std::string_view text, int characters) {
    TextStyle style;
    style.FontSize = 10;
    return WrapText(text, characters * 100, style, Testing::FixedMeasure());
}

TEST(WrapText, BreaksAtBlanksAndDropsThem) {
    EXPECT_THAT(Wrap("one two three", 7), ElementsAre("one two", "three"));
    EXPECT_THAT(Wrap("one two three", 8), ElementsAre("one two", "three"));
    EXPECT_THAT(Wrap("one  two", 4), ElementsAre("one ", "two"));
}

TEST(WrapText, TextThatFitsDoesNotChange) {
    EXPECT_THAT(Wrap(" Expected Savings After:   7 Years", 40),
                ElementsAre(" Expected Savings After:   7 Years"));
    EXPECT_THAT(Wrap("", 4), ElementsAre(""));
}

TEST(WrapText, AWordWiderThanTheLineIsBroken) {
    EXPECT_THAT(Wrap("abcdefgh", 3), ElementsAre("abc", "def", "gh"));
    EXPECT_THAT(Wrap("a bcdefgh", 3), ElementsAre("a", "bcd", "efg", "h"));
}

TEST(WrapText, NeverBreaksWithinACharacter) {
    EXPECT_THAT(Wrap("\xC3\xA9\xC3\xA9\xC3\xA9", 2), ElementsAre("\xC3\xA9\xC3\xA9", "\xC3\xA9"));
    EXPECT_THAT(Wrap("\xC3\xA9\xC3\xA9", 0), ElementsAre("\xC3\xA9", "\xC3\xA9"));
}

TEST(WrapText, ALineBreakEndsALine) {
    EXPECT_THAT(Wrap("a\r\nb\rc\nd", 10), ElementsAre("a", "b", "c", "d"));
}

TEST(WrapText, AMegabyteWithoutBlanksIsBrokenInReasonableTime) {
    EXPECT_EQ(Wrap(std::string(1'000'000, 'x'), 100).size(), 10000U);
}

/// Counts the characters that it measures.
class CountingMeasure : public Testing::FixedMeasure {
public:
    Twips Width(std::string_view text, const TextStyle& style) const override {
        m_measured += text.size();
        return FixedMeasure::Width(text, style);
    }
    std::size_t Measured() const { return m_measured; }

private:
    mutable std::size_t m_measured = 0;
};

TEST(WrapText, AParagraphOfMegabytesIsNotMeasuredAgainForEachLine) {
    // About 1,000 pages of 50 lines of 80 characters; each line needs a few measurements of up to two lines
    // of text.
    std::string text;
    while (text.size() < 4'000'000)
        text += "seven rooms and a deck ";
    const CountingMeasure measure;
    TextStyle style;
    style.FontSize = 10;
    const auto lines = WrapText(text, 80 * 100, style, measure);
    EXPECT_GE(lines.size(), text.size() / 81); // each line also consumes the blank at its end
    EXPECT_LE(measure.Measured(), 20 * text.size());
}

} // namespace
} // namespace Ledgrove
