#pragma once

#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "app/batch/CompareCommand.h"
#include "app/batch/JsonCompare.h"
#include "app/batch/PieceQueue.h"

namespace Ledgrove {

/// Compares pieces of a queue, one thread's share. Each has a state of its own: a comparison shares nothing
/// with another.
class PieceWorker {
public:
    explicit PieceWorker(const Session& start)
        : m_comparison(start)
        , m_lines(m_comparison) {}
    PieceWorker(const PieceWorker&) = delete;
    PieceWorker& operator=(const PieceWorker&) = delete;

    /// Waits for the next piece, compares it and puts it back; false once no more will come.
    bool Work(PieceQueue& queue, OutputBuffer& output);

private:
    Comparison m_comparison;
    JsonLine m_lines;
};

/// JSON lines, compared by several threads. The results stand in the order of the lines, memory does not grow
/// with the input, and whoever waits for each answer gets it at once, as with one thread. Where the system
/// gives fewer threads, those that there are do the work, or the calling one alone.
class ParallelJsonReader : public ComparisonReader {
public:
    /// Every comparison starts from `start`, a session as LoadMainScreen leaves it, which must outlive this.
    /// `jobs` is the number of threads, at least 1.
    ParallelJsonReader(const Session& start, int jobs);

    bool Read(LineReader& lines, OutputBuffer& output) override;
    /// Hands out what has been gathered, so that it is answered while the reader waits.
    void BeforeWaiting(OutputBuffer& output) override;

private:
    void HandOut(OutputBuffer& output);
    void StartThread(OutputBuffer& output);

    const Session& m_start;
    std::size_t m_mostThreads;
    PieceQueue m_queue;
    std::optional<PieceWorker> m_own; ///< where there are no threads
    std::unique_ptr<char[]> m_spare;  ///< memory that is free again once a thread has been started
    std::vector<std::jthread> m_threads;
};

} // namespace Ledgrove
