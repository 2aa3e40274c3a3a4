#pragma once

#include <condition_variable>
#include <cstddef>
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
    enum class Stage { Free, Waiting, InWork, Done };

    std::string Text;
    std::vector<Line> Lines;
    std::string Result;
    bool AllWell = true;
    Stage Stands = Stage::Free;

    InputLine LineAt(std::size_t index) const {
        const Line& line = Lines[index];
        return {std::string_view(Text).substr(line.Offset, line.Length), line.Number, line.TooLong};
    }
};

/// A ring of pieces between one thread that reads and several that work. The results are written in the order
/// in which the pieces were handed out, by whichever thread finishes the next one. The reading thread waits
/// while all pieces are on their way, so that memory stays the same whatever comes in.
class PieceQueue {
public:
    explicit PieceQueue(std::size_t pieces)
        : m_pieces(pieces) {}

    // For the thread that reads.
    void Gather(const InputLine& line);
    std::size_t GatheredBytes() const { return m_pieces[m_gathering].Text.size(); }
    /// Gives the gathered lines to whoever is free, and waits for room for more. Without lines nothing.
    void HandOut();
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
    std::size_t Next(std::size_t index) const { return (index + 1) % m_pieces.size(); }
    void WriteFinished(std::unique_lock<std::mutex>& lock, OutputBuffer& output);

    std::vector<Piece> m_pieces;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::size_t m_gathering = 0; ///< touched by the reading thread alone, until it is handed out
    std::size_t m_taking = 0;
    std::size_t m_writing = 0;
    bool m_isWriting = false;
    bool m_closed = false;
    bool m_failed = false;
    bool m_allWell = true;
};

} // namespace Ledgrove
