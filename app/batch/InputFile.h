#pragma once

#include <optional>
#include <string>

#include "base/Descriptor.h"

namespace Ledgrove {

/// Opens a file for reading and closes it at the end of the scope; "-" is standard input, which stays open.
class InputFile {
public:
    explicit InputFile(const std::string& name);

    /// The descriptor, negative if the file could not be opened. Failure then returns the reason.
    int Number() const;
    std::string Failure() const;

private:
    std::optional<Descriptor> m_file; ///< empty for standard input
};

/// If the descriptor is a terminal, says on standard error that the program waits for it.
void SayIfTerminal(int descriptor);

/// The message for an input without any text; "-" is standard input.
std::string EmptyInput(const std::string& name);

/// The message for an input that cannot be read.
std::string UnreadableInput(const std::string& name, const std::string& reason);

} // namespace Ledgrove
