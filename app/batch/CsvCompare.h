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
    Cells m_row;
    std::size_t m_rowLine = 0;
    bool m_headingRead = false;
    bool m_allWell = true;
};

/// `cell` as CSV: quoted where it must be, and with an apostrophe in front where a spreadsheet would take it
/// for a formula (it begins with "=", "+", "-", "@", a tab or a carriage return and is no number).
void AppendCsvCell(std::string& out, std::string_view cell);

} // namespace Ledgrove
