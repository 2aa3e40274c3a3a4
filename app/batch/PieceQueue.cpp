#include "app/batch/PieceQueue.h"

namespace Ledgrove {

PieceQueue::PieceQueue() {
    m_pieces.push_back(std::make_unique<Piece>());
    m_gathering = m_pieces.back().get();
}

void PieceQueue::Add(std::size_t pieces, std::size_t resultSize) {
    const std::lock_guard lock(m_mutex);
    for (std::size_t i = 0; i < pieces; ++i) {
        auto piece = std::make_unique<Piece>();
        piece->Result.reserve(resultSize);
        m_free.reserve(m_pieces.size() + 1);
        m_pieces.push_back(std::move(piece));
        m_free.push_back(m_pieces.back().get());
    }
}

void PieceQueue::Gather(const InputLine& line) {
    m_gathering->Lines.push_back({m_gathering->Text.size(), line.Text.size(), line.Number, line.TooLong});
    m_gathering->Text += line.Text;
}

void PieceQueue::HandOut() {
    const std::lock_guard lock(m_mutex);
    m_waiting.push_back(m_gathering);
    m_onTheirWay.push_back(m_gathering);
    m_gathering = nullptr;
    m_changed.notify_all();
}

void PieceQueue::WaitForRoom() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return !m_free.empty(); });
    m_gathering = m_free.back();
    m_free.pop_back();
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
    m_changed.wait(lock, [this] { return !m_waiting.empty() || m_closed; });
    if (m_waiting.empty())
        return nullptr;
    Piece* const piece = m_waiting.front();
    m_waiting.pop_front();
    return piece;
}

void PieceQueue::Finish(Piece& piece, OutputBuffer& output) {
    std::unique_lock lock(m_mutex);
    piece.Done = true;
    // A thread that is already writing will write this piece too.
    if (!m_isWriting)
        WriteFinished(lock, output);
}

void PieceQueue::WriteFinished(std::unique_lock<std::mutex>& lock, OutputBuffer& output) {
    m_isWriting = true;
    while (!m_onTheirWay.empty() && m_onTheirWay.front()->Done) {
        Piece& piece = *m_onTheirWay.front();
        lock.unlock();
        output.Write(piece.Result);
        piece.Text.clear();
        piece.Lines.clear();
        piece.Result.clear();
        lock.lock();
        m_total.Add(piece.Outcome);
        m_failed = !output.Failure().empty();
        piece.Outcome = {};
        piece.Done = false;
        m_onTheirWay.pop_front();
        m_free.push_back(&piece);
        m_changed.notify_all();
    }
    m_isWriting = false;
}

} // namespace Ledgrove
