#include "app/batch/OutputBuffer.h"

#include "base/Descriptor.h"
#include "base/SystemError.h"

namespace Ledgrove {

namespace {

constexpr std::size_t pieceSize = std::size_t{256} * 1024;

} // namespace

OutputBuffer::OutputBuffer(int descriptor)
    : m_descriptor(descriptor) {
    m_text.reserve(pieceSize + std::size_t{16} * 1024);
}

void OutputBuffer::Commit() {
    if (m_text.size() >= pieceSize)
        Flush();
}

void OutputBuffer::Flush() {
    WriteOut(m_text);
    m_text.clear();
}

void OutputBuffer::Write(std::string_view text) {
    Flush();
    WriteOut(text);
}

void OutputBuffer::WriteOut(std::string_view text) {
    if (!m_failure.empty())
        return;
    if (const int error = WriteAll(m_descriptor, text))
        m_failure = Describe(error);
}

std::string UnwrittenOutput(const std::string& what, const std::string& reason) {
    return "the " + what + " could not be written (" + reason +
           "). Free some space or choose another place for them.";
}

} // namespace Ledgrove
