#pragma once

#include <string>

namespace Ledgrove {

/// A file descriptor to read from, closed at the end; "-" is standard input, which stays open.
class InputFile {
public:
    explicit InputFile(const std::string& name);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    /// Negative when the file could not be opened; Failure then says why.
    int Descriptor() const { return m_descriptor; }
    const std::string& Failure() const { return m_failure; }

private:
    int m_descriptor;
    std::string m_failure;
};

/// The sentence for an input that cannot be read.
std::string UnreadableInput(const std::string& name, const std::string& reason);

} // namespace Ledgrove
