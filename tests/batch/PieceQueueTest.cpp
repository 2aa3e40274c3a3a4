#include "app/batch/PieceQueue.h"

#include <atomic>
#include <thread>

#include "tests/batch/BatchDesk.h"

namespace Ledgrove {
namespace {

using Testing::MemoryFile;

void Gather(PieceQueue& queue, std::string_view text, std::size_t number) {
    queue.Gather({text, number, false});
}

/// Stores the lines of a piece as its result, each in brackets.
void Bracket(Piece& piece) {
    for (std::size_t i = 0; i < piece.Lines.size(); ++i)
        piece.Result.append("[").append(piece.LineAt(i).Text).append("]");
}

TEST(PieceQueue, StartsEmpty) {
    const PieceQueue queue;
    EXPECT_EQ(queue.GatheredLines(), 0u);
    EXPECT_EQ(queue.GatheredBytes(), 0u);
    EXPECT_FALSE(queue.OutputFailed());
    EXPECT_EQ(queue.Total().Compared, 0u);
}

TEST(PieceQueue, APieceHoldsTheGatheredLines) {
    PieceQueue queue;
    queue.Gather({"one", 1, false});
    queue.Gather({"", 2, false});
    queue.Gather({"three", 5, true});
    EXPECT_EQ(queue.GatheredLines(), 3u);
    EXPECT_EQ(queue.GatheredBytes(), 8u);
    queue.HandOut();
    const Piece* const piece = queue.Take();
    ASSERT_NE(piece, nullptr);
    ASSERT_EQ(piece->Lines.size(), 3u);
    EXPECT_EQ(piece->LineAt(0).Text, "one");
    EXPECT_EQ(piece->LineAt(1).Text, "");
    EXPECT_EQ(piece->LineAt(2).Text, "three");
    EXPECT_EQ(piece->LineAt(2).Number, 5u);
    EXPECT_TRUE(piece->LineAt(2).TooLong);
    EXPECT_FALSE(piece->LineAt(0).TooLong);
}

TEST(PieceQueue, ResultsKeepTheOrderOfTheLines) {
    const MemoryFile out;
    OutputBuffer output(out.Number());
    PieceQueue queue;
    queue.Add(2, 0);
    std::vector<Piece*> taken;
    for (const char* text : {"a", "b", "c"}) {
        Gather(queue, text, 1);
        queue.HandOut();
        taken.push_back(queue.Take());
        Bracket(*taken.back());
        if (taken.size() < 3)
            queue.WaitForRoom();
    }
    queue.Finish(*taken[2], output);
    queue.Finish(*taken[1], output);
    EXPECT_EQ(out.Content(), "");
    queue.Finish(*taken[0], output);
    EXPECT_EQ(out.Content(), "[a][b][c]");
}

TEST(PieceQueue, AFinishedPieceIsEmptyWhenItIsReused) {
    const MemoryFile out;
    OutputBuffer output(out.Number());
    PieceQueue queue;
    for (const char* text : {"a", "b"}) {
        Gather(queue, text, 1);
        queue.HandOut();
        Piece* const piece = queue.Take();
        Bracket(*piece);
        queue.Finish(*piece, output);
        queue.WaitForRoom(); // the same piece, because there is only one
        EXPECT_EQ(queue.GatheredLines(), 0u);
        EXPECT_EQ(queue.GatheredBytes(), 0u);
    }
    EXPECT_EQ(out.Content(), "[a][b]");
}

TEST(PieceQueue, AddsThePiecesInTheirOrder) {
    const MemoryFile out;
    OutputBuffer output(out.Number());
    PieceQueue queue;
    for (const std::size_t line : {1, 2, 3}) {
        Gather(queue, "x", line);
        queue.HandOut();
        Piece* const piece = queue.Take();
        piece->Outcome.Count(line >= 2, line);
        queue.Finish(*piece, output);
        queue.WaitForRoom();
    }
    EXPECT_EQ(queue.Total().Compared, 3u);
    EXPECT_EQ(queue.Total().Refused, 2u);
    EXPECT_EQ(queue.Total().FirstRefused, 2u);
}

TEST(PieceQueue, PiecesHandedOutBeforeCloseAreStillTaken) {
    PieceQueue queue;
    Gather(queue, "x", 1);
    queue.HandOut();
    queue.Close();
    EXPECT_NE(queue.Take(), nullptr);
    EXPECT_EQ(queue.Take(), nullptr);
}

TEST(PieceQueue, ReportsAFailedWriteToTheReader) {
    const Descriptor full("/dev/full", O_WRONLY);
    OutputBuffer output(full.Number());
    PieceQueue queue;
    Gather(queue, "x", 1);
    queue.HandOut();
    Piece* const piece = queue.Take();
    Bracket(*piece);
    EXPECT_FALSE(queue.OutputFailed());
    queue.Finish(*piece, output);
    EXPECT_TRUE(queue.OutputFailed());
}

TEST(PieceQueue, AddedPiecesHaveMemoryForTheirResults) {
    constexpr std::size_t resultSize = 100'000;
    PieceQueue queue;
    queue.Add(1, resultSize);
    Gather(queue, "x", 1);
    queue.HandOut();
    queue.WaitForRoom(); // gives the added piece
    Gather(queue, "y", 2);
    queue.HandOut();
    queue.Take();
    EXPECT_GE(queue.Take()->Result.capacity(), resultSize);
}

TEST(PieceQueue, AddFailsAtOnceIfMemoryIsShort) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "the sanitizers stop a program that requests this much memory";
#endif
    PieceQueue queue;
    // More memory than any machine has, but less than the longest std::string.
    EXPECT_THROW(queue.Add(1, std::size_t{1} << 60U), std::bad_alloc);
    Gather(queue, "x", 1);
    queue.HandOut();
    EXPECT_NE(queue.Take(), nullptr);
}

TEST(PieceQueue, ManyThreadsWriteEachLineOnceAndInOrder) {
    constexpr std::size_t lines = 20'000;
    constexpr std::size_t workers = 4;
    const MemoryFile out;
    OutputBuffer output(out.Number());
    PieceQueue queue;
    queue.Add(2 * workers, 0);
    std::atomic<std::size_t> compared = 0;
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < workers; ++i) {
        threads.emplace_back([&] {
            while (Piece* const piece = queue.Take()) {
                Bracket(*piece);
                compared += piece->Lines.size();
                queue.Finish(*piece, output);
            }
        });
    }
    std::string expected;
    for (std::size_t number = 1; number <= lines; ++number) {
        Gather(queue, std::to_string(number), number);
        expected += "[" + std::to_string(number) + "]";
        // Pieces of one to seven lines.
        if (queue.GatheredLines() > number % 7) {
            queue.HandOut();
            queue.WaitForRoom();
        }
    }
    if (queue.GatheredLines() > 0)
        queue.HandOut();
    queue.Close();
    threads.clear();
    EXPECT_EQ(compared, lines);
    EXPECT_EQ(out.Content(), expected);
}

} // namespace
} // namespace Ledgrove
