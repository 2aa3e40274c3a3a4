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
#include "app/batch/Tally.h"

namespace Ledgrove {

/// Some lines of the input, which one thread compares, and their results.
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
    Tally Outcome;
    bool Done = false;

    InputLine LineAt(std::size_t index) const {
        const Line& line = Lines[index];
        return {std::string_view(Text).substr(line.Offset, line.Length), line.Number, line.TooLong};
    }
};

/// Passes pieces from one reading thread to several working threads. The results are written in the order of
/// the pieces, by the thread that finishes the next one. The reading thread waits while all pieces are in
/// use, so that memory use does not grow with the input.
class PieceQueue {
public:
    /// Starts with one piece, for gathering.
    PieceQueue();

    // For the reading thread.
    /// Adds `pieces` pieces, each with memory for a result of `resultSize` bytes. Allocates it now, so that a
    /// shortage shows here (std::bad_alloc) and not during the work. Keeps the pieces that were allocated
    /// before the shortage.
    void Add(std::size_t pieces, std::size_t resultSize);
    void Gather(const InputLine& line);
    std::size_t GatheredBytes() const { return m_gathering->Text.size(); }
    std::size_t GatheredLines() const { return m_gathering->Lines.size(); }
    /// Hands the gathered lines to a working thread. There must be at least one line.
    void HandOut();
    /// Waits for a free piece to gather lines in.
    void WaitForRoom();
    /// Ends the input. Pieces that were already handed out are still compared.
    void Close();
    bool OutputFailed() const;
    /// Of all lines. Valid when all pieces are finished.
    const Tally& Total() const { return m_total; }

    // For the working threads.
    /// Waits for the next piece, which belongs to the caller until Finish. nullptr if none is left after
    /// Close.
    Piece* Take();
    void Finish(Piece& piece, OutputBuffer& output);

private:
    void WriteFinished(std::unique_lock<std::mutex>& lock, OutputBuffer& output);

    std::vector<std::unique_ptr<Piece>> m_pieces;
    Piece* m_gathering = nullptr; ///< belongs to the reading thread; nullptr between HandOut and WaitForRoom
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Piece*> m_free;
    std::deque<Piece*> m_waiting;    ///< not taken yet
    std::deque<Piece*> m_onTheirWay; ///< not written yet, in the order of the input
    bool m_isWriting = false;
    bool m_closed = false;
    bool m_failed = false;
    Tally m_total;
};

} // namespace Ledgrove
