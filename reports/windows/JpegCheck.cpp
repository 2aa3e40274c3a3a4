#include "reports/windows/JpegCheck.h"

#include <QtEndian>

namespace Ledgrove {

namespace {

constexpr int mostScans = 32;

enum Marker : quint8 {
    Stuffed = 0x00, ///< no marker: a byte FF of the pixels
    Alone = 0x01,
    FirstRestart = 0xD0,
    LastRestart = 0xD7,
    Start = 0xD8,
    End = 0xD9,
    Scan = 0xDA,
    Fill = 0xFF
};

bool IsRestart(quint8 marker) {
    return marker >= FirstRestart && marker <= LastRestart;
}

/// Walks from marker to marker.
class Walk {
public:
    explicit Walk(const QByteArray& bytes)
        : m_bytes(bytes) {}

    /// The next marker, or Stuffed at the end of the file.
    quint8 Next() {
        for (m_at = m_bytes.indexOf('\xFF', m_at); m_at >= 0 && m_at < m_bytes.size(); ++m_at) {
            const auto marker = static_cast<quint8>(m_bytes[m_at]);
            if (marker != Fill) {
                ++m_at;
                return marker;
            }
        }
        m_at = m_bytes.size();
        return Stuffed;
    }

    /// Skips the segment after a marker; false if the file ends first.
    bool SkipSegment() {
        if (m_at + 2 > m_bytes.size())
            return false;
        const auto length = qFromBigEndian<quint16>(m_bytes.constData() + m_at);
        m_at += length;
        return length >= 2 && m_at <= m_bytes.size();
    }

    /// Skips the pixels of a scan.
    void SkipPixels() {
        while (true) {
            const qsizetype found = m_bytes.indexOf('\xFF', m_at);
            if (found < 0 || found + 1 >= m_bytes.size()) {
                m_at = m_bytes.size();
                return;
            }
            const auto marker = static_cast<quint8>(m_bytes[found + 1]);
            m_at = found;
            if (marker != Stuffed && !IsRestart(marker))
                return;
            m_at += 2;
        }
    }

private:
    const QByteArray& m_bytes;
    qsizetype m_at = 2;
};

} // namespace

bool IsJpeg(const QByteArray& bytes) {
    return bytes.startsWith("\xFF\xD8\xFF");
}

bool IsWholeJpeg(const QByteArray& bytes) {
    Walk walk(bytes);
    int scans = 0;
    while (true) {
        const quint8 marker = walk.Next();
        if (marker == End)
            return scans > 0;
        if (marker == Stuffed || marker == Start)
            return false;
        if (marker == Alone || IsRestart(marker))
            continue;
        if (!walk.SkipSegment())
            return false;
        if (marker != Scan)
            continue;
        if (++scans > mostScans)
            return false;
        walk.SkipPixels();
    }
}

} // namespace Ledgrove
