#include "app/batch/LineReader.h"

#include <utility>

#include "base/Descriptor.h"
#include "base/SystemError.h"

namespace Ledgrove {

namespace {

constexpr std::size_t pieceSize = std::size_t{64} * 1024;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

} // namespace

LineReader::LineReader(int descriptor, std::function<void()> beforeWaiting)
    : m_descriptor(descriptor)
    , m_beforeWaiting(std::move(beforeWaiting)) {}

bool LineReader::Fill() {
    if (m_ended)
        return false;
    m_beforeWaiting();
    m_buffer.erase(0, m_start);
    m_start = 0;
    const std::size_t held = m_buffer.size();
    m_buffer.resize(held + pieceSize);
    const auto [got, error] = ReadSome(m_descriptor, m_buffer.data() + held, pieceSize);
    if (error != 0)
        m_failure = Describe(error);
    m_buffer.resize(held + got);
    m_ended = got == 0;
    return !m_ended;
}

InputLine LineReader::Take(std::size_t length, std::size_t consumed) {
    std::string_view text = std::string_view(m_buffer).substr(m_start, length);
    m_start += consumed;
    if (!text.empty() && text.back() == '\r')
        text.remove_suffix(1);
    if (++m_lineNumber == 1 && text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    return {text, m_lineNumber, text.size() > LongestLine};
}

InputLine LineReader::SkipLongLine() {
    // Keeps only the beginning and skips the rest of the line.
    const std::string beginning = m_buffer.substr(m_start, LongestLine);
    std::size_t end = std::string::npos;
    do {
        m_start = m_buffer.size();
        if (!Fill())
            break;
        end = m_buffer.find('\n', m_start);
    } while (end == std::string::npos);
    const std::string rest = end == std::string::npos ? std::string() : m_buffer.substr(end + 1);
    m_buffer = beginning + rest;
    m_start = LongestLine;
    return {std::string_view(m_buffer).substr(0, LongestLine), ++m_lineNumber, true};
}

std::optional<InputLine> LineReader::Next() {
    std::size_t searched = 0;
    for (;;) {
        const std::size_t end = m_buffer.find('\n', m_start + searched);
        if (end != std::string::npos)
            return Take(end - m_start, end - m_start + 1);
        searched = m_buffer.size() - m_start;
        if (searched > LongestLine)
            return SkipLongLine();
        if (Fill())
            continue;
        if (!m_failure.empty() || searched == 0)
            return std::nullopt;
        return Take(searched, searched);
    }
}

} // namespace Ledgrove
