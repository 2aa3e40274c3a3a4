#pragma once

#include "app/batch/CompareCommand.h"

namespace Ledgrove {

/// Reads a price list that a spreadsheet saved: a heading row of control names, then one comparison per row.
/// An input with an empty cell keeps its start-up value. Writes each row again, followed by the main results
/// and a column for the error.
class CsvReader : public ComparisonReader {
public:
    explicit CsvReader(Comparison& comparison)
        : m_comparison(comparison) {}
    bool Read(LineReader& lines, OutputBuffer& output) override;

private:
    using Cells = std::vector<std::string>;

    void TakeRow(OutputBuffer& output);
    void TakeLongRow(OutputBuffer& output);
    Refusal AtLine(Refusal refusal) const;
    std::optional<Refusal> Compare();

    Comparison& m_comparison;
    InputRecord m_inputs;
    Cells m_heading;
    std::vector<std::optional<Input>> m_columns; ///< the input of each column; empty for an unknown name
    Cells m_row;
    std::size_t m_rowLine = 0;
    bool m_headingRead = false;
    bool m_allWell = true;
};

/// Appends the heading row: the names of the inputs, then those of the results, then "error".
void AppendCsvHeading(std::string& out, const std::vector<std::string>& inputs);

/// Appends the results that follow the inputs in the row of an accepted comparison, without a line ending.
void AppendCsvResults(std::string& out, const Session& session);

/// Puts an apostrophe before a cell that a spreadsheet would run as a formula: it begins with a tab or a
/// carriage return, or after blanks with "=", "+", "-" or "@", and is not a number.
std::string DefusedCell(std::string_view cell);

/// Appends `cell` as CSV, made safe by DefusedCell, and in quotes if necessary.
void AppendCsvCell(std::string& out, std::string_view cell);

} // namespace Ledgrove
