#pragma once

#include <string>
#include <string_view>

namespace Ledgrove {

/// Collects output and writes it to a file descriptor in large pieces. A failed write is remembered and
/// everything after it dropped.
class OutputBuffer {
public:
    explicit OutputBuffer(int descriptor);

    /// Where the next result is appended; the owner calls Commit after each.
    std::string& Text() { return m_text; }

    /// Writes when enough has gathered.
    void Commit();

    /// Writes all that has gathered, so that a waiting reader has every finished result.
    void Flush();

    /// Writes `text` at once, behind what has gathered.
    void Write(std::string_view text);

    /// The system's reason when a write failed, else "".
    const std::string& Failure() const { return m_failure; }

private:
    void WriteOut(std::string_view text);

    int m_descriptor;
    std::string m_text;
    std::string m_failure;
};

/// The sentence for output that could not be written; `what` names it in the plural.
std::string UnwrittenOutput(const std::string& what, const std::string& reason);

} // namespace Ledgrove
