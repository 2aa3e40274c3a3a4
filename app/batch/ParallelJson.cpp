#include "app/batch/ParallelJson.h"

#include <thread>
#include <vector>

#include "app/batch/JsonCompare.h"

namespace Ledgrove {

namespace {

/// Large enough that handing out costs little beside comparing, small enough for memory.
constexpr std::size_t pieceSize = std::size_t{64} * 1024;

/// Each thread has a state of its own: a comparison shares nothing with another.
void ComparePieces(const Session& start, PieceQueue& queue, OutputBuffer& output) {
    Comparison comparison(start);
    JsonLine lines(comparison);
    while (Piece* piece = queue.Take()) {
        for (std::size_t i = 0; i < piece->Lines.size(); ++i)
            piece->AllWell = lines.Append(piece->Result, piece->LineAt(i)) && piece->AllWell;
        queue.Finish(*piece, output);
    }
}

} // namespace

ParallelJsonReader::ParallelJsonReader(const Session& start, int jobs)
    : m_start(start)
    , m_jobs(jobs)
    // One piece in work and one in waiting for each thread.
    , m_queue(static_cast<std::size_t>(jobs) * 2) {}

void ParallelJsonReader::BeforeWaiting(OutputBuffer&) {
    m_queue.HandOut();
}

bool ParallelJsonReader::Read(LineReader& lines, OutputBuffer& output) {
    std::vector<std::jthread> threads;
    while (const auto line = lines.Next()) {
        // A short input is done before a thread would have started.
        if (threads.empty()) {
            for (int i = 0; i < m_jobs; ++i)
                threads.emplace_back([this, &output] { ComparePieces(m_start, m_queue, output); });
        }
        m_queue.Gather(*line);
        if (m_queue.GatheredBytes() >= pieceSize)
            m_queue.HandOut();
        if (m_queue.OutputFailed())
            break;
    }
    m_queue.HandOut();
    m_queue.Close();
    threads.clear();
    return m_queue.AllWell();
}

} // namespace Ledgrove
