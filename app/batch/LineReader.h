#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Ledgrove {

/// The longest accepted line. Longer lines are refused, so that memory use is bounded for any input.
inline constexpr std::size_t LongestLine = std::size_t{1024} * 1024;

struct InputLine {
    std::string_view Text;  ///< without the line ending; valid until the next line is read
    std::size_t Number = 0; ///< counted from 1
    bool TooLong = false;   ///< Text then holds only the beginning of the line
};

/// Reads lines that end in LF or CR LF from a file descriptor. Skips a UTF-8 byte order mark at the start.
class LineReader {
public:
    /// Calls `beforeWaiting` before each read, which may have to wait.
    LineReader(int descriptor, std::function<void()> beforeWaiting);

    /// The next line; empty at the end of the input or after a failed read.
    std::optional<InputLine> Next();

    /// The system's reason if a read failed, otherwise empty.
    const std::string& Failure() const { return m_failure; }

private:
    bool Fill();
    InputLine Take(std::size_t length, std::size_t consumed);
    InputLine SkipLongLine();

    int m_descriptor;
    std::function<void()> m_beforeWaiting;
    std::string m_buffer;
    std::size_t m_start = 0;
    std::size_t m_lineNumber = 0;
    bool m_ended = false;
    std::string m_failure;
};

} // namespace Ledgrove
