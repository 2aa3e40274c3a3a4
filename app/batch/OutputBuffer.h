#pragma once

#include <string>
#include <string_view>

namespace Ledgrove {

/// Collects output and writes it to a file descriptor in large blocks. After a failed write, it drops all
/// further output.
class OutputBuffer {
public:
    explicit OutputBuffer(int descriptor);

    /// The text to append the next result to. Call Commit after each result.
    std::string& Text() { return m_text; }

    /// Writes the collected text if it is long enough.
    void Commit();

    /// Writes all collected text, so that a program that waits for results gets them now.
    void Flush();

    /// Writes the collected text, then `text`, immediately.
    void Write(std::string_view text);

    /// The system's reason if a write failed, otherwise empty.
    const std::string& Failure() const { return m_failure; }

private:
    void WriteOut(std::string_view text);

    int m_descriptor;
    std::string m_text;
    std::string m_failure;
};

/// The message for output that could not be written; `what` names the output in the plural.
std::string UnwrittenOutput(const std::string& what, const std::string& reason);

} // namespace Ledgrove
