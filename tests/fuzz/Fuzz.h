#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <sys/mman.h>
#include <unistd.h>

/// The function that a fuzzer and the replay program call with each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace Ledgrove::Fuzz {

/// Ends the program if a property does not hold, so that the fuzzer keeps the input.
inline void Require(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", property);
    std::abort();
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Takes pieces from the start of the input. When the input is used up, the pieces are empty.
class Pieces {
public:
    explicit Pieces(std::string_view input)
        : m_rest(input) {}

    bool AtEnd() const { return m_rest.empty(); }

    std::uint8_t Byte() {
        if (m_rest.empty())
            return 0;
        const auto byte = static_cast<std::uint8_t>(m_rest.front());
        m_rest.remove_prefix(1);
        return byte;
    }

    /// The text up to the next byte `end`.
    std::string_view Until(char end) {
        const std::string_view piece = m_rest.substr(0, m_rest.find(end));
        m_rest.remove_prefix(std::min(m_rest.size(), piece.size() + 1));
        return piece;
    }

    std::string_view Rest() const { return m_rest; }

private:
    std::string_view m_rest;
};

/// A file in memory, for code that reads or writes file descriptors.
class MemoryFile {
public:
    MemoryFile()
        : m_descriptor(memfd_create("fuzz", 0)) {
        Require(m_descriptor >= 0, "a file in memory can be made");
    }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    int Descriptor() const { return m_descriptor; }

    void SetContent(std::string_view content) const {
        const bool set =
            ftruncate(m_descriptor, 0) == 0 &&
            pwrite(m_descriptor, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()) &&
            lseek(m_descriptor, 0, SEEK_SET) == 0;
        Require(set, "a file in memory can be written");
    }

    std::string Content() const {
        std::string content(static_cast<std::size_t>(lseek(m_descriptor, 0, SEEK_END)), '\0');
        Require(pread(m_descriptor, content.data(), content.size(), 0) ==
                    static_cast<ssize_t>(content.size()),
                "a file in memory can be read");
        return content;
    }

private:
    int m_descriptor;
};

} // namespace Ledgrove::Fuzz
