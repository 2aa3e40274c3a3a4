#pragma once

#include "app/batch/CompareCommand.h"

namespace Ledgrove {

/// A price list as a spreadsheet saves it: a heading row of control names, one comparison a row. An empty
/// cell leaves its input as at start-up. Each row goes out again with the main results behind it and a last
/// column for what was wrong with it.
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
    std::vector<std::optional<Input>> m_columns; ///< the input of each column, none for an unknown name
    Cells m_row;
    std::size_t m_rowLine = 0;
    bool m_headingRead = false;
    bool m_allWell = true;
};

/// The heading row: the inputs' names, then the results' and "error".
void AppendCsvHeading(std::string& out, const std::vector<std::string>& inputs);

/// The results behind the inputs of a comparison that was not refused. No line end.
void AppendCsvResults(std::string& out, const Session& session);

/// `cell` with an apostrophe in front where a spreadsheet would take it for a formula (it begins with a tab
/// or a carriage return, or with "=", "+", "-" or "@" behind any blanks, and is no number).
std::string DefusedCell(std::string_view cell);

/// `cell` as CSV: defused, and quoted where it must be.
void AppendCsvCell(std::string& out, std::string_view cell);

} // namespace Ledgrove
