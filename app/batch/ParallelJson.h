#pragma once

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "app/batch/CompareCommand.h"
#include "app/batch/JsonCompare.h"
#include "app/batch/PieceQueue.h"

namespace Ledgrove {

/// Answers lines in one thread, with a state of its own.
class LineWork {
public:
    LineWork() = default;
    virtual ~LineWork() = default;
    LineWork(const LineWork&) = delete;
    LineWork& operator=(const LineWork&) = delete;

    /// Appends the answer to a line and counts it.
    virtual void Append(std::string& out, const InputLine& line, Tally& tally) = 0;
};

/// Makes the state of a further thread.
using MakeLineWork = std::function<std::unique_ptr<LineWork>()>;

/// The work of `compare`. `start` must outlive it.
MakeLineWork CompareWork(const Session& start, JsonOptions options);

/// Answers the lines of the next piece of the queue and finishes it. Returns false when no more pieces will
/// come.
bool WorkOnPiece(LineWork& work, PieceQueue& queue, OutputBuffer& output);

/// Answers JSON lines in several threads. The results keep the order of the lines, memory use does not grow
/// with the input, and a program that waits for each answer gets it immediately, as with one thread. If the
/// system provides fewer threads, those do the work; if it provides none, the calling thread does.
class ParallelJsonReader : public ComparisonReader {
public:
    /// `jobs` is the number of threads, at least 1.
    ParallelJsonReader(MakeLineWork makeWork, int jobs);
    /// For `compare`. Every comparison starts from `start`, a session after LoadMainScreen, which must
    /// outlive this object.
    ParallelJsonReader(const Session& start, int jobs, JsonOptions options = {});

    Tally Read(LineReader& lines, OutputBuffer& output) override;
    /// Hands out the gathered lines, so that they are compared while the reader waits.
    void BeforeWaiting(OutputBuffer& output) override;

private:
    void HandOut(OutputBuffer& output);
    void StartThread(OutputBuffer& output);

    MakeLineWork m_makeWork;
    std::size_t m_mostThreads;
    PieceQueue m_queue;
    std::unique_ptr<LineWork> m_own; ///< does the work if no thread could be started
    std::unique_ptr<char[]> m_spare; ///< released after a thread has started
    std::vector<std::jthread> m_threads;
};

} // namespace Ledgrove
