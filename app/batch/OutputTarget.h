#pragma once

#include <string>
#include <string_view>

namespace Ledgrove {

/// Where a command writes its one result, as `--output` names it: "-" and names of open descriptors such as
/// "/dev/stdout" and "/dev/fd/5" (a shell's process substitution) are written to, and so are pipes and
/// devices. Any other name is a file that the caller replaces as a whole.
class OutputTarget {
public:
    /// `input` is the name of the input, "-" for standard input.
    OutputTarget(std::string name, const std::string& input);

    /// Why nothing must be written there, as a message: it is the input itself. Empty otherwise.
    const std::string& Refusal() const { return m_refusal; }

    bool IsStream() const { return m_isStream; }

    /// Writes to a stream. Returns a message if that failed, else "".
    std::string Write(std::string_view bytes) const;

private:
    std::string m_name;
    std::string m_refusal;
    int m_descriptor = -1; ///< that the name stands for, negative for none
    bool m_isStream = false;
};

} // namespace Ledgrove
