#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include "app/batch/Comparison.h"
#include "app/batch/LineReader.h"
#include "app/batch/OutputBuffer.h"
#include "app/batch/Tally.h"
#include "base/Descriptor.h"
#include "ui/StartUp.h"

// Shared by the tests of app/batch.
namespace Ledgrove::Testing {

/// A file in memory, for code that reads and writes descriptors. Reading begins at the start.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view content = {})
        : m_number(memfd_create("batch", 0)) {
        EXPECT_EQ(WriteAll(m_number, content), 0);
        Rewind();
    }
    ~MemoryFile() { close(m_number); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    int Number() const { return m_number; }
    void Rewind() const { EXPECT_EQ(lseek(m_number, 0, SEEK_SET), 0); }
    std::string Content() const {
        Rewind();
        std::string content;
        EXPECT_EQ(ReadAll(m_number, content, std::size_t{1} << 30U), 0);
        return content;
    }

private:
    int m_number;
};

/// The session right after the start, with the shipped settings.
inline Session ShippedSession() {
    Session session;
    CollectingHost host;
    if (Module1::LoadMainScreen(session, host, LEDGROVE_SOURCE_DIR "/data"))
        ADD_FAILURE() << "the shipped settings do not load";
    return session;
}

struct ReaderResult {
    std::string Output;
    bool AllWell = false;
    Tally Total;
};

/// The output of a ComparisonReader for a whole input.
template <typename Reader>
ReaderResult ReadWith(Reader& reader, std::string_view input) {
    const MemoryFile in(input);
    const MemoryFile out;
    OutputBuffer output(out.Number());
    LineReader lines(in.Number(), [&] { reader.BeforeWaiting(output); });
    const Tally tally = reader.Read(lines, output);
    output.Flush();
    return {out.Content(), tally.AllWell(), tally};
}

} // namespace Ledgrove::Testing
