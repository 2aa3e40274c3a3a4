#include "app/batch/PieceQueue.h"

namespace Ledgrove {

void PieceQueue::Gather(const InputLine& line) {
    Piece& piece = m_pieces[m_gathering];
    piece.Lines.push_back({piece.Text.size(), line.Text.size(), line.Number, line.TooLong});
    piece.Text += line.Text;
}

void PieceQueue::HandOut() {
    if (m_pieces[m_gathering].Lines.empty())
        return;
    std::unique_lock lock(m_mutex);
    m_pieces[m_gathering].Stands = Piece::Stage::Waiting;
    m_gathering = Next(m_gathering);
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return m_pieces[m_gathering].Stands == Piece::Stage::Free; });
}

void PieceQueue::Close() {
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    m_changed.notify_all();
}

bool PieceQueue::OutputFailed() const {
    const std::lock_guard lock(m_mutex);
    return m_failed;
}

Piece* PieceQueue::Take() {
    std::unique_lock lock(m_mutex);
    const auto waits = [this] { return m_pieces[m_taking].Stands == Piece::Stage::Waiting; };
    m_changed.wait(lock, [&] { return waits() || m_closed; });
    if (!waits())
        return nullptr;
    Piece& piece = m_pieces[m_taking];
    piece.Stands = Piece::Stage::InWork;
    m_taking = Next(m_taking);
    return &piece;
}

void PieceQueue::Finish(Piece& piece, OutputBuffer& output) {
    std::unique_lock lock(m_mutex);
    piece.Stands = Piece::Stage::Done;
    // Another thread that is writing already comes to this piece, too.
    if (!m_isWriting)
        WriteFinished(lock, output);
}

void PieceQueue::WriteFinished(std::unique_lock<std::mutex>& lock, OutputBuffer& output) {
    m_isWriting = true;
    while (m_pieces[m_writing].Stands == Piece::Stage::Done) {
        Piece& piece = m_pieces[m_writing];
        lock.unlock();
        output.Write(piece.Result);
        piece.Text.clear();
        piece.Lines.clear();
        piece.Result.clear();
        lock.lock();
        m_allWell = m_allWell && piece.AllWell;
        m_failed = !output.Failure().empty();
        piece.AllWell = true;
        piece.Stands = Piece::Stage::Free;
        m_writing = Next(m_writing);
        m_changed.notify_all();
    }
    m_isWriting = false;
}

} // namespace Ledgrove
