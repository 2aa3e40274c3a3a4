#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Ledgrove {

/// The longest line that is read; longer ones are refused, so that memory stays constant whatever comes in.
inline constexpr std::size_t LongestLine = std::size_t{1024} * 1024;

struct InputLine {
    std::string_view Text;  ///< without its line end; valid until the next line is read
    std::size_t Number = 0; ///< counted from 1
    bool TooLong = false;   ///< Text is then only the beginning
};

/// Lines of a file descriptor, ended by LF or CR LF. A UTF-8 mark at the start is passed over.
class LineReader {
public:
    /// `beforeWaiting` is called each time the reader has to ask the system for more.
    LineReader(int descriptor, std::function<void()> beforeWaiting);

    /// The next line, nothing at the end of the input or after a failed read.
    std::optional<InputLine> Next();

    /// The system's reason when a read failed, else "".
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
