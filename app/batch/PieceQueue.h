#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "app/batch/LineReader.h"
#include "app/batch/OutputBuffer.h"

namespace Ledgrove {

/// Lines of the input that one thread works on, and what becomes of them.
struct Piece {
    struct Line {
        std::size_t Offset;
        std::size_t Length;
        std::size_t Number;
        bool TooLong;
    };

    std::string Text;
    std::vector<Line> Lines;
    std::string Result;
    bool AllWell = true;
    bool Done = false;

    InputLine LineAt(std::size_t index) const {
        const Line& line = Lines[index];
        return {std::string_view(Text).substr(line.Offset, line.Length), line.Number, line.TooLong};
    }
};

/// Pieces between one thread that reads and several that work. The results are written in the order in which
/// the pieces were handed out, by whichever thread finishes the next one. The reading thread waits while all
/// pieces are on their way, so that memory stays the same whatever comes in.
class PieceQueue {
public:
    /// With one piece, for gathering.
    PieceQueue();

    // For the thread that reads.
    /// So many further pieces, with memory for a result of `resultSize` bytes each: what cannot be had must
    /// be missing here (std::bad_alloc), and not in the middle of the work. Pieces that could be had stay.
    void Add(std::size_t pieces, std::size_t resultSize);
    void Gather(const InputLine& line);
    std::size_t GatheredBytes() const { return m_gathering->Text.size(); }
    std::size_t GatheredLines() const { return m_gathering->Lines.size(); }
    /// Gives the gathered lines to whoever is free. There is at least one line.
    void HandOut();
    /// Waits for room for more.
    void WaitForRoom();
    /// No more pieces will come; those handed out are finished.
    void Close();
    bool OutputFailed() const;
    /// Whether every line was well, once all is finished.
    bool AllWell() const { return m_allWell; }

    // For the threads that work.
    /// The next piece, which is the caller's until Finish; nullptr after Close.
    Piece* Take();
    void Finish(Piece& piece, OutputBuffer& output);

private:
    void WriteFinished(std::unique_lock<std::mutex>& lock, OutputBuffer& output);

    std::vector<std::unique_ptr<Piece>> m_pieces;
    Piece* m_gathering = nullptr; ///< the reading thread's; none between HandOut and WaitForRoom
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Piece*> m_free;
    std::deque<Piece*> m_waiting;    ///< to be taken
    std::deque<Piece*> m_onTheirWay; ///< to be written, in the order of the input
    bool m_isWriting = false;
    bool m_closed = false;
    bool m_failed = false;
    bool m_allWell = true;
};

} // namespace Ledgrove
