#include "app/batch/ParallelJson.h"

#include <new>
#include <system_error>
#include <utility>

namespace Ledgrove {

namespace {

/// Large enough to make the cost of the queue negligible, small enough to bound the memory.
constexpr std::size_t pieceSize = std::size_t{64} * 1024;
constexpr std::size_t pieceLines = 256;
/// Slightly more than the results of `pieceLines` lines need.
constexpr std::size_t resultSize = pieceLines * 8 * 1024;
/// Address space that must be available before a thread starts: the C library reserves up to 64 MB for the
/// heap of the thread, and the rest is for later allocations of all threads.
constexpr std::size_t spareSize = std::size_t{96} * 1024 * 1024;

class CompareLines : public LineWork {
public:
    CompareLines(const Session& start, const JsonOptions& options)
        : m_comparison(start)
        , m_line(m_comparison, options) {
        m_comparison.Show(LabelsFor(options.Only));
    }
    void Append(std::string& out, const InputLine& line, Tally& tally) override {
        m_line.Append(out, line, tally);
    }

private:
    Comparison m_comparison;
    JsonLine m_line;
};

} // namespace

MakeLineWork CompareWork(const Session& start, JsonOptions options) {
    return [&start, options = std::move(options)] { return std::make_unique<CompareLines>(start, options); };
}

bool WorkOnPiece(LineWork& work, PieceQueue& queue, OutputBuffer& output) {
    Piece* const piece = queue.Take();
    if (piece == nullptr)
        return false;
    for (std::size_t i = 0; i < piece->Lines.size(); ++i)
        work.Append(piece->Result, piece->LineAt(i), piece->Outcome);
    queue.Finish(*piece, output);
    return true;
}

ParallelJsonReader::ParallelJsonReader(MakeLineWork makeWork, int jobs)
    : m_makeWork(std::move(makeWork))
    , m_mostThreads(static_cast<std::size_t>(jobs)) {}

ParallelJsonReader::ParallelJsonReader(const Session& start, int jobs, JsonOptions options)
    : ParallelJsonReader(CompareWork(start, std::move(options)), jobs) {}

void ParallelJsonReader::StartThread(OutputBuffer& output) {
    try {
        // If memory is short, these allocations must fail now, while the work can continue without this
        // thread.
        m_spare = std::make_unique_for_overwrite<char[]>(spareSize);
        m_queue.Add(2, resultSize); // one in work and one waiting
        m_threads.emplace_back([this, &output, work = m_makeWork()] {
            while (WorkOnPiece(*work, m_queue, output)) {
            }
        });
    } catch (const std::system_error&) {
        m_mostThreads = m_threads.size();
    } catch (const std::bad_alloc&) {
        m_mostThreads = m_threads.size();
    }
    m_spare.reset();
}

void ParallelJsonReader::HandOut(OutputBuffer& output) {
    if (m_queue.GatheredLines() == 0)
        return;
    // Starts at most one thread per piece, because a short input is finished before further threads would
    // start.
    if (m_threads.size() < m_mostThreads)
        StartThread(output);
    m_queue.HandOut();
    if (m_threads.empty()) {
        if (!m_own)
            m_own = m_makeWork();
        WorkOnPiece(*m_own, m_queue, output);
    }
    m_queue.WaitForRoom();
}

void ParallelJsonReader::BeforeWaiting(OutputBuffer& output) {
    HandOut(output);
}

Tally ParallelJsonReader::Read(LineReader& lines, OutputBuffer& output) {
    while (const auto line = lines.Next()) {
        m_queue.Gather(*line);
        if (m_queue.GatheredBytes() >= pieceSize || m_queue.GatheredLines() >= pieceLines)
            HandOut(output);
        if (m_queue.OutputFailed())
            break;
    }
    HandOut(output);
    m_queue.Close();
    m_threads.clear();
    return m_queue.Total();
}

} // namespace Ledgrove
