#include "app/batch/OutputTarget.h"

#include <charconv>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "base/Descriptor.h"
#include "base/SystemError.h"
#include "base/Text.h"

namespace Ledgrove {

namespace {

/// The descriptor that the name stands for, negative for none. Opening such a name again would start at the
/// beginning of the file that it leads to.
int NamedDescriptor(std::string_view name) {
    if (name == "-" || name == "/dev/stdout")
        return STDOUT_FILENO;
    if (name == "/dev/stderr")
        return STDERR_FILENO;
    for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
        int number = -1;
        if (!name.starts_with(folder))
            continue;
        const std::string_view digits = name.substr(folder.size());
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        if (read.ec == std::errc() && read.ptr == digits.data() + digits.size())
            return number;
    }
    return -1;
}

std::optional<struct stat> StatusOf(const std::string& name, int descriptor) {
    struct stat status {};
    const int result = descriptor >= 0 ? fstat(descriptor, &status) : stat(name.c_str(), &status);
    return result == 0 ? std::optional(status) : std::nullopt;
}

} // namespace

OutputTarget::OutputTarget(std::string name, const std::string& input)
    : m_name(std::move(name))
    , m_descriptor(NamedDescriptor(m_name)) {
    const auto own = StatusOf(m_name, m_descriptor);
    const auto read = StatusOf(input, input == "-" ? STDIN_FILENO : -1);
    const bool isFile = !own || S_ISREG(own->st_mode);
    if (own && read && isFile && own->st_dev == read->st_dev && own->st_ino == read->st_ino)
        m_refusal = Quoted(m_name) + " is the input itself, which would be overwritten. Choose another name.";
    m_isStream = m_descriptor >= 0 || (!isFile && !S_ISDIR(own->st_mode));
}

std::string OutputTarget::Write(std::string_view bytes) const {
    const auto failed = [this](int error) {
        return (m_name == "-" ? "Standard output" : Quoted(m_name)) + " cannot be written (" +
               Describe(error) + "). Choose another place for the result.";
    };
    if (m_descriptor >= 0) {
        const int error = WriteAll(m_descriptor, bytes);
        return error == 0 ? std::string() : failed(error);
    }
    // Without O_CREAT: if the pipe has gone, no file takes its place.
    Descriptor stream(m_name, O_WRONLY | O_NOCTTY);
    if (!stream.IsOpen())
        return failed(stream.OpenError());
    if (const int error = WriteAll(stream.Number(), bytes))
        return failed(error);
    const int error = stream.Close();
    return error == 0 ? std::string() : failed(error);
}

} // namespace Ledgrove
