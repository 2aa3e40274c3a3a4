#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/batch/Comparison.h"
#include "app/batch/ExitStatus.h"
#include "app/batch/LineReader.h"
#include "app/batch/OutputBuffer.h"

namespace Ledgrove {

enum class CompareFormat { Text, Json, JsonLines, Csv };

struct CompareRequest {
    CompareFormat Format = CompareFormat::Text;
    std::string House;              ///< name of a saved house scenario to start with, "" for none
    int Jobs = 1;                   ///< threads for JSON lines, at least 1
    std::vector<std::string> Files; ///< "-" is standard input; none at all too
};

/// What reads one input and appends one result for each comparison in it. True when none was refused.
class ComparisonReader {
public:
    virtual ~ComparisonReader() = default;
    virtual bool Read(LineReader& lines, OutputBuffer& output) = 0;
    /// Called when the input has to be waited for: what is finished must not wait with it.
    virtual void BeforeWaiting(OutputBuffer& output) { output.Flush(); }
};

/// Puts the saved house scenario of this name into the four house fields that every comparison starts with.
/// Gives a sentence when the list cannot be read or has no such house, else "".
std::string StartWithHouse(Session& session, std::string_view name);

/// Runs the comparisons of every file and writes the results to standard output; a sentence on standard error
/// for a file that cannot be read. Gives the exit status.
int RunCompare(const CompareRequest& request, const Session& start);

} // namespace Ledgrove
