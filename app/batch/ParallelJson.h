#pragma once

#include "app/batch/CompareCommand.h"
#include "app/batch/PieceQueue.h"

namespace Ledgrove {

/// JSON lines, compared by several threads. The results stand in the order of the lines, memory does not grow
/// with the input, and whoever waits for each answer gets it at once, as with one thread.
class ParallelJsonReader : public ComparisonReader {
public:
    /// Every comparison starts from `start`, a session as LoadMainScreen leaves it, which must outlive this.
    ParallelJsonReader(const Session& start, int jobs);

    bool Read(LineReader& lines, OutputBuffer& output) override;
    /// Hands out what has been gathered, so that it is answered while the reader waits.
    void BeforeWaiting(OutputBuffer& output) override;

private:
    const Session& m_start;
    int m_jobs;
    PieceQueue m_queue;
};

} // namespace Ledgrove
