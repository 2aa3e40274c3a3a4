#include "app/batch/InputFile.h"

#include <unistd.h>

#include "app/batch/ExitStatus.h"
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

void SayIfTerminal(int descriptor) {
    if (::isatty(descriptor) == 1)
        Complain("Reading the homes to compare from this terminal. End them with Ctrl+D on a new line.",
                 AllWell);
}

std::string EmptyInput(const std::string& name) {
    return (name == "-" ? "Standard input" : Quoted(name)) +
           " is empty. Give the homes to compare, such as {\"ecStdHome\": \"200000\"}.";
}

std::string UnreadableInput(const std::string& name, const std::string& reason) {
    return (name == "-" ? "Standard input" : Quoted(name)) + " cannot be read (" + reason +
           "). Give a readable file with the homes to compare.";
}

} // namespace Ledgrove
