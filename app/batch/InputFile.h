#pragma once

#include <optional>
#include <string>

#include "base/Descriptor.h"

namespace Ledgrove {

/// A file descriptor to read from, closed at the end; "-" is standard input, which stays open.
class InputFile {
public:
    explicit InputFile(const std::string& name);

    /// The descriptor's number, negative when the file could not be opened; Failure then says why.
    int Number() const;
    std::string Failure() const;

private:
    std::optional<Descriptor> m_file; ///< none for standard input
};

/// The sentence for an input that cannot be read.
std::string UnreadableInput(const std::string& name, const std::string& reason);

} // namespace Ledgrove
