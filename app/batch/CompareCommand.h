#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/batch/Comparison.h"
#include "app/batch/ExitStatus.h"
#include "app/batch/LineReader.h"
#include "app/batch/OutputBuffer.h"
#include "app/batch/ResultNames.h"
#include "app/batch/Tally.h"

namespace Ledgrove {

enum class CompareFormat { Text, Json, JsonLines, Csv };

struct CompareRequest {
    CompareFormat Format = CompareFormat::Text;
    ChosenNames Only;               ///< what the results hold; empty for everything
    std::string House;              ///< name of the saved house scenario to start with; empty for none
    int Jobs = 1;                   ///< threads for JSON lines, at least 1
    bool ListNames = false;         ///< only list the names of the results
    bool Quiet = false;             ///< without warnings and totals on standard error
    std::vector<std::string> Files; ///< "-" is standard input, and so is an empty list
};

/// Reads one input and appends a result for each comparison in it.
class ComparisonReader {
public:
    virtual ~ComparisonReader() = default;
    virtual Tally Read(LineReader& lines, OutputBuffer& output) = 0;
    /// Called before the reader waits for input. Finished results must be written now, because the input may
    /// take long.
    virtual void BeforeWaiting(OutputBuffer& output) { output.Flush(); }
};

/// Copies the saved house scenario with this name to the four house fields that every comparison starts with.
/// Returns a message if the list cannot be read or does not have the house, otherwise an empty text.
std::string StartWithHouse(Session& session, std::string_view name);

/// Prints the names of all results with unit and meaning. Returns the exit status.
int PrintResultNames();

/// Runs the comparisons of every file and writes the results to standard output. Reports a file that cannot
/// be read on standard error. Returns the exit status.
int RunCompare(const CompareRequest& request, const Session& start);

} // namespace Ledgrove
