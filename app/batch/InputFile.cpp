#include "app/batch/InputFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace Ledgrove {

InputFile::InputFile(const std::string& name)
    : m_descriptor(name == "-" ? STDIN_FILENO : ::open(name.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (m_descriptor < 0)
        m_failure = std::strerror(errno);
}

InputFile::~InputFile() {
    if (m_descriptor > STDIN_FILENO)
        ::close(m_descriptor);
}

std::string UnreadableInput(const std::string& name, const std::string& reason) {
    return (name == "-" ? "Standard input" : "\"" + name + "\"") + " cannot be read (" + reason +
           "). Name a file with the homes to compare.";
}

} // namespace Ledgrove
