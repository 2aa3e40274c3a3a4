#pragma once

#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "app/batch/CompareCommand.h"
#include "app/batch/JsonCompare.h"
#include "app/batch/PieceQueue.h"

namespace Ledgrove {

/// Compares pieces of a queue in one thread. Each worker has its own state, so comparisons share nothing.
class PieceWorker {
public:
    PieceWorker(const Session& start, const JsonOptions& options)
        : m_comparison(start)
        , m_lines(m_comparison, options) {
        m_comparison.Show(LabelsFor(options.Only));
    }
    PieceWorker(const PieceWorker&) = delete;
    PieceWorker& operator=(const PieceWorker&) = delete;

    /// Waits for the next piece, compares its lines and finishes it. Returns false when no more pieces will
    /// come.
    bool Work(PieceQueue& queue, OutputBuffer& output);

private:
    Comparison m_comparison;
    JsonLine m_lines;
};

/// Compares JSON lines in several threads. The results keep the order of the lines, memory use does not grow
/// with the input, and a program that waits for each answer gets it immediately, as with one thread. If the
/// system provides fewer threads, those do the work; if it provides none, the calling thread does.
class ParallelJsonReader : public ComparisonReader {
public:
    /// Every comparison starts from `start`, a session after LoadMainScreen, which must outlive this object.
    /// `jobs` is the number of threads, at least 1.
    ParallelJsonReader(const Session& start, int jobs, JsonOptions options = {});

    Tally Read(LineReader& lines, OutputBuffer& output) override;
    /// Hands out the gathered lines, so that they are compared while the reader waits.
    void BeforeWaiting(OutputBuffer& output) override;

private:
    void HandOut(OutputBuffer& output);
    void StartThread(OutputBuffer& output);

    const Session& m_start;
    JsonOptions m_options;
    std::size_t m_mostThreads;
    PieceQueue m_queue;
    std::optional<PieceWorker> m_own; ///< used if there are no threads
    std::unique_ptr<char[]> m_spare;  ///< released after a thread has started
    std::vector<std::jthread> m_threads;
};

} // namespace Ledgrove
