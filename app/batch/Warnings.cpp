#include "app/batch/Warnings.h"

#include "app/batch/ExitStatus.h"

namespace Ledgrove {

namespace {

constexpr std::size_t mostWritten = 20;

} // namespace

Warnings::Warnings(const std::string& file)
    : m_prefix(file == "-" ? "" : file + ": ") {}

Warnings::~Warnings() {
    if (m_count > mostWritten)
        Complain(m_prefix + "There are " + std::to_string(m_count - mostWritten) + " more warnings.",
                 AllWell);
}

void Warnings::Add(const std::string& sentence) {
    if (++m_count <= mostWritten)
        Complain(m_prefix + sentence, AllWell);
}

} // namespace Ledgrove
