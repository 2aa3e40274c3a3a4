#include "app/batch/LineReader.h"

#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

using testing::ElementsAre;
using Testing::MemoryFile;

std::vector<std::string> LinesOf(std::string_view content) {
    const MemoryFile file(content);
    LineReader reader(file.Number(), [] {});
    std::vector<std::string> lines;
    while (const auto line = reader.Next()) {
        EXPECT_FALSE(line->TooLong);
        EXPECT_EQ(line->Number, lines.size() + 1);
        lines.emplace_back(line->Text);
    }
    EXPECT_EQ(reader.Failure(), "");
    return lines;
}

TEST(LineReader, EndsLinesAtLfAndCrLf) {
    EXPECT_THAT(LinesOf("a\nb\r\nc\n"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(LinesOf("\n\r\n\n"), ElementsAre("", "", ""));
}

TEST(LineReader, TheLastLineNeedsNoLineEnding) {
    EXPECT_THAT(LinesOf("a\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(LinesOf("a\nb\r"), ElementsAre("a", "b"));
    EXPECT_THAT(LinesOf(""), ElementsAre());
}

TEST(LineReader, ACrInsideALineIsPartOfIt) {
    EXPECT_THAT(LinesOf("a\rb\r\r\nc"), ElementsAre("a\rb\r", "c"));
}

TEST(LineReader, SkipsAByteOrderMarkOnlyAtTheStart) {
    EXPECT_THAT(LinesOf("\xEF\xBB\xBF"
                        "a\n\xEF\xBB\xBF"
                        "b"),
                ElementsAre("a", "\xEF\xBB\xBF"
                                 "b"));
    EXPECT_THAT(LinesOf("\xEF\xBB"), ElementsAre("\xEF\xBB"));
}

TEST(LineReader, KeepsNulAndEveryOtherByte) {
    const std::string bytes("a\0\xFF\x1A", 4);
    EXPECT_THAT(LinesOf(bytes + "\nb"), ElementsAre(bytes, "b"));
}

TEST(LineReader, ReadsALineOfTheGreatestLengthCompletely) {
    const std::string longest(LongestLine, 'x');
    EXPECT_THAT(LinesOf(longest + "\nb"), ElementsAre(longest, "b"));
    EXPECT_THAT(LinesOf("a\n" + longest), ElementsAre("a", longest));
}

TEST(LineReader, KeepsTheBeginningOfALongerLineAndSkipsTheRest) {
    for (const std::size_t length : {LongestLine + 1, 3 * LongestLine}) {
        const MemoryFile file("a\n" + std::string(length, 'x') + "\nb\n");
        LineReader reader(file.Number(), [] {});
        EXPECT_EQ(reader.Next()->Text, "a");
        const auto tooLong = reader.Next();
        ASSERT_TRUE(tooLong);
        EXPECT_TRUE(tooLong->TooLong);
        EXPECT_EQ(tooLong->Number, 2u);
        EXPECT_EQ(tooLong->Text.find_first_not_of('x'), std::string_view::npos);
        const auto next = reader.Next();
        ASSERT_TRUE(next);
        EXPECT_EQ(next->Text, "b");
        EXPECT_EQ(next->Number, 3u);
        EXPECT_FALSE(next->TooLong);
        EXPECT_FALSE(reader.Next());
    }
}

TEST(LineReader, ALongLineMayBeTheLast) {
    const MemoryFile file(std::string(LongestLine + 70000, 'x'));
    LineReader reader(file.Number(), [] {});
    EXPECT_TRUE(reader.Next()->TooLong);
    EXPECT_FALSE(reader.Next());
}

TEST(LineReader, ReportsThatItWillWaitBeforeEachRead) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    int waits = 0;
    LineReader reader(ends[0], [&waits] { ++waits; });
    ASSERT_EQ(WriteAll(ends[1], "a\nb\nc"), 0);
    EXPECT_EQ(reader.Next()->Text, "a");
    EXPECT_EQ(reader.Next()->Text, "b"); // was read together with the first line
    EXPECT_EQ(waits, 1);
    close(ends[1]);
    EXPECT_EQ(reader.Next()->Text, "c");
    EXPECT_EQ(waits, 2);
    close(ends[0]);
}

TEST(LineReader, AFailedReadEndsTheLinesWithAFailure) {
    const Descriptor folder("/", O_RDONLY);
    LineReader reader(folder.Number(), [] {});
    EXPECT_FALSE(reader.Next());
    EXPECT_EQ(reader.Failure(), "Is a directory");
    EXPECT_FALSE(reader.Next());
}

} // namespace
} // namespace Ledgrove
