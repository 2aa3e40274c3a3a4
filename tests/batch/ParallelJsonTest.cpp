#include "app/batch/ParallelJson.h"

#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

using Testing::MemoryFile;
using Testing::ReaderResult;

class ParallelJsonTest : public testing::Test {
protected:
    ReaderResult Parallel(std::string_view input, int jobs) {
        ParallelJsonReader reader(m_start, jobs);
        return Testing::ReadWith(reader, input);
    }

    ReaderResult OneAfterTheOther(std::string_view input) {
        Comparison comparison(m_start);
        JsonLinesReader reader(comparison);
        return Testing::ReadWith(reader, input);
    }

    const Session m_start = Testing::ShippedSession();
};

/// Homes of different prices. Every seventh line is something else.
std::string Lines(int count) {
    const std::string others[] = {"", "nonsense", R"({"ecIncome": "abc"})", R"({"ecHouse": 1})", "  "};
    std::string lines;
    for (int number = 1; number <= count; ++number) {
        if (number % 7 == 0)
            lines += others[static_cast<std::size_t>(number / 7) % std::size(others)] + "\n";
        else
            lines += R"({"ecStdHome": )" + std::to_string(number) + R"(, "cboStdMortOption": "VA"})" + "\n";
    }
    return lines;
}

TEST_F(ParallelJsonTest, GivesWhatOneThreadGives) {
    const std::string input = Lines(3000);
    const ReaderResult expected = OneAfterTheOther(input);
    EXPECT_FALSE(expected.AllWell);
    for (const int jobs : {1, 2, 3, 8}) {
        const ReaderResult result = Parallel(input, jobs);
        EXPECT_TRUE(result.Output == expected.Output) << jobs;
        EXPECT_FALSE(result.AllWell) << jobs;
        EXPECT_EQ(result.Total.Compared, expected.Total.Compared) << jobs;
        EXPECT_EQ(result.Total.Refused, expected.Total.Refused) << jobs;
        EXPECT_EQ(result.Total.FirstRefused, 7u) << jobs; // "nonsense"
    }
}

TEST_F(ParallelJsonTest, ComparesEmptyAndShortInputs) {
    for (const std::string_view input : {"", "\n\n", "{}", "{}\n", "nonsense"}) {
        const ReaderResult expected = OneAfterTheOther(input);
        const ReaderResult result = Parallel(input, 4);
        EXPECT_EQ(result.Output, expected.Output) << input;
        EXPECT_EQ(result.AllWell, expected.AllWell) << input;
    }
}

TEST_F(ParallelJsonTest, LongLinesKeepTheirPlace) {
    const std::string input =
        Lines(500) + R"({"x": ")" + std::string(LongestLine, 'y') + "\"}\n" + Lines(500);
    EXPECT_TRUE(Parallel(input, 3).Output == OneAfterTheOther(input).Output);
}

TEST_F(ParallelJsonTest, AnswersALineWhileTheNextIsAwaited) {
    std::array<int, 2> in{};
    std::array<int, 2> out{};
    ASSERT_EQ(pipe(in.data()), 0);
    ASSERT_EQ(pipe(out.data()), 0);
    std::jthread running([&] {
        ParallelJsonReader reader(m_start, 3);
        OutputBuffer output(out[1]);
        LineReader lines(in[0], [&] { reader.BeforeWaiting(output); });
        reader.Read(lines, output);
    });
    LineReader answers(out[0], [] {});
    for (const char* price : {"1", "2", "3", "4", "5"}) {
        ASSERT_EQ(WriteAll(in[1], std::string(R"({"ecStdHome": )") + price + "}\n"), 0);
        const auto answer = answers.Next();
        ASSERT_TRUE(answer);
        EXPECT_NE(answer->Text.find(std::string(R"("ecStdHome":"$)") + price + '"'), std::string_view::npos);
    }
    close(in[1]);
    running.join();
    close(in[0]);
    close(out[0]);
    close(out[1]);
}

TEST_F(ParallelJsonTest, AFailedWriteEndsTheRun) {
    const MemoryFile in(Lines(20000));
    const Descriptor full("/dev/full", O_WRONLY);
    OutputBuffer output(full.Number());
    ParallelJsonReader reader(m_start, 2);
    LineReader lines(in.Number(), [&] { reader.BeforeWaiting(output); });
    reader.Read(lines, output);
    EXPECT_EQ(output.Failure(), "No space left on device");
    EXPECT_TRUE(lines.Next()) << "the rest of the input is not read";
}

} // namespace
} // namespace Ledgrove
