#include "app/batch/InputFile.h"

#include <unistd.h>

#include "base/SystemError.h"
#include "base/Text.h"

namespace Ledgrove {

InputFile::InputFile(const std::string& name) {
    if (name != "-")
        m_file.emplace(name, O_RDONLY);
}

int InputFile::Number() const {
    return m_file ? m_file->Number() : STDIN_FILENO;
}

std::string InputFile::Failure() const {
    return m_file && !m_file->IsOpen() ? Describe(m_file->OpenError()) : "";
}

std::string UnreadableInput(const std::string& name, const std::string& reason) {
    return (name == "-" ? "Standard input" : Quoted(name)) + " cannot be read (" + reason +
           "). Give a readable file with the homes to compare.";
}

} // namespace Ledgrove
