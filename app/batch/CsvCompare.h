#pragma once

#include <functional>

#include "app/batch/CompareCommand.h"
#include "app/batch/CsvColumns.h"
#include "app/batch/CsvResults.h"

namespace Ledgrove {

/// What the price lists of one run share: a second list adds its rows to the output of the first.
struct CsvRun {
    using Say = std::function<void(const std::string& sentence)>;

    Say Warn;                                      ///< about what is read, but probably meant otherwise
    Say Refuse;                                    ///< why a list is not read
    std::optional<std::vector<CsvColumn>> Columns; ///< of the first list
    CsvResults Results = CsvResults();             ///< the columns after the list's own
    char Separator = ',';                          ///< of the first list and the output
};

/// Reads a price list that a spreadsheet saved: a heading row, then one comparison per row. An input with an
/// empty cell keeps its start-up value. Writes the inputs and the list's own columns again, followed by the
/// main results, data check, messages and error.
class CsvReader : public ComparisonReader {
public:
    /// Both arguments must outlive the reader.
    CsvReader(Comparison& comparison, CsvRun& run)
        : m_comparison(comparison)
        , m_run(run) {}
    Tally Read(LineReader& lines, OutputBuffer& output) override;

private:
    using Cells = std::vector<std::string>;

    void TakeHeading(std::string& out);
    void TakeRow(OutputBuffer& output);
    void TakeLongRow(OutputBuffer& output);
    void WarnOfRow() const;
    Refusal AtLine(Refusal refusal) const;
    std::optional<Refusal> Compare();
    void AppendOwnCells(std::string& out) const;
    void AppendRefusal(std::string& out, const Refusal& refusal) const;

    Comparison& m_comparison;
    CsvRun& m_run;
    InputRecord m_inputs;
    std::vector<CsvColumn> m_columns;
    Cells m_row;
    std::size_t m_rowLine = 0;
    bool m_headingRead = false;
    Tally m_tally;
};

} // namespace Ledgrove
