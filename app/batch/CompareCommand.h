#pragma once

#include <string>
#include <vector>

#include "app/batch/Comparison.h"
#include "app/batch/LineReader.h"
#include "app/batch/OutputBuffer.h"

namespace Ledgrove {

enum class CompareFormat { Text, Json, JsonLines, Csv };

struct CompareRequest {
    CompareFormat Format = CompareFormat::Text;
    std::vector<std::string> Files; ///< "-" is standard input; none at all too
};

/// Exit statuses of ledgrove-cli.
enum ExitStatus { AllWell = 0, SomeRefused = 1, CannotRun = 2 };

/// What reads one input and appends one result for each comparison in it. True when none was refused.
class ComparisonReader {
public:
    virtual ~ComparisonReader() = default;
    virtual bool Read(LineReader& lines, OutputBuffer& output) = 0;
};

/// Runs the comparisons of every file and writes the results to standard output; a sentence on standard error
/// for a file that cannot be read. Gives the exit status.
int RunCompare(const CompareRequest& request, Session start);

} // namespace Ledgrove
