#include "app/batch/CsvCompare.h"

#include <algorithm>
#include <csv.h>

#include "app/batch/CsvResults.h"
#include "app/batch/CsvText.h"
#include "base/Text.h"

namespace Ledgrove {

namespace {

void TakeCapitalsOff(std::string& text) {
    for (char& c : text)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsAmount(Input input) {
    switch (input) {
    case Input::ecIncome:
    case Input::ecMonthlyDebt:
    case Input::ecFixedDown:
    case Input::ecStdHome:
    case Input::ecGMHHome:
    case Input::ecStdUtil:
    case Input::ecGMHUtil:
        return true;
    default:
        return false;
    }
}

/// Whether a point probably separates thousands: one to three digits, the point, three digits.
bool LooksLikeThousands(std::string_view text) {
    if (text.starts_with('$'))
        text.remove_prefix(1);
    const std::size_t point = text.find('.');
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return point >= 1 && point <= 3 && text.size() == point + 4 &&
           std::all_of(text.begin(), text.end(), [&](char c) { return c == '.' || isDigit(c); }) &&
           std::count(text.begin(), text.end(), '.') == 1;
}

bool HaveSameOutput(const std::vector<CsvColumn>& a, const std::vector<CsvColumn>& b) {
    const auto written = [](const std::vector<CsvColumn>& columns) {
        std::vector<std::string_view> headings;
        for (const CsvColumn& column : columns)
            if (column.IsWritten())
                headings.push_back(column.Heading);
        return headings;
    };
    return written(a) == written(b);
}

} // namespace

void CsvReader::TakeHeading(std::string& out) {
    m_headingRead = true;
    m_tally.Empty = false;
    CsvHeading heading = ReadCsvHeading(m_row);
    for (const std::string& warning : heading.Warnings)
        m_run.Warn(warning);
    m_columns = std::move(heading.Columns);
    if (!heading.Refusal.empty()) {
        m_run.Refuse(heading.Refusal);
        m_tally.ListRefused = true;
    } else if (!m_run.Columns) {
        for (const CsvColumn& column : m_columns) {
            if (!column.IsWritten())
                continue;
            AppendCsvCell(out, column.Heading, m_run.Separator);
            out += m_run.Separator;
        }
        m_run.Results.AppendHeadings(out, m_run.Separator);
        out += '\n';
        m_run.Columns = m_columns;
    } else if (!HaveSameOutput(*m_run.Columns, m_columns)) {
        m_run.Refuse("The columns differ from those of the first list. Run this list on its own.");
        m_tally.ListRefused = true;
    }
}

void CsvReader::WarnOfRow() const {
    const auto line = [this] { return "Line " + std::to_string(m_rowLine); };
    const auto missing = std::find_if(
        m_columns.begin() + static_cast<std::ptrdiff_t>(std::min(m_row.size(), m_columns.size())),
        m_columns.end(), [](const CsvColumn& column) { return column.IsWritten(); });
    if (missing != m_columns.end())
        m_run.Warn(line() + " has no cell for the column " + Quoted(missing->Heading) +
                   " and those after it. The inputs among them keep their start-up values.");
    for (std::size_t column = 0; column < std::min(m_row.size(), m_columns.size()); ++column) {
        const CsvColumn& meaning = m_columns[column];
        const std::string& cell = m_row[column];
        if (meaning.Is == CsvColumn::Kind::Input && IsAmount(meaning.Which) && LooksLikeThousands(cell))
            m_run.Warn(line() + ", column " + Quoted(meaning.Heading) + ": " + Quoted(cell) +
                       " is read with a decimal point. Leave the point out if it separates thousands.");
        if (meaning.Is == CsvColumn::Kind::Nothing && !cell.empty())
            m_run.Warn(line() + ": " + Quoted(cell) + " stands in column " + std::to_string(column + 1) +
                       ", which has no heading, and is left out.");
    }
}

std::optional<Refusal> CsvReader::Compare() {
    m_inputs.Clear();
    const auto extra = m_row.begin() + static_cast<std::ptrdiff_t>(std::min(m_row.size(), m_columns.size()));
    if (std::any_of(extra, m_row.end(), [](const std::string& cell) { return !cell.empty(); }))
        return Refusal{m_rowLine, "", "", "The row has more cells than the heading row."};
    WarnOfRow();
    for (std::size_t column = 0; column < std::min(m_row.size(), m_columns.size()); ++column) {
        if (m_columns[column].Is != CsvColumn::Kind::Input || m_row[column].empty())
            continue;
        InputValue& value = m_inputs[m_columns[column].Which];
        value.Present = true;
        value.Kind = InputKind::Text;
        value.Text = m_row[column];
        if (m_columns[column].Which == Input::chkDoTax0)
            TakeCapitalsOff(value.Text); // spreadsheets write TRUE and FALSE
    }
    auto refusal = m_comparison.Run(m_inputs);
    return refusal ? AtLine(*std::move(refusal)) : refusal;
}

Refusal CsvReader::AtLine(Refusal refusal) const {
    refusal.Line = m_rowLine;
    return refusal;
}

void CsvReader::AppendOwnCells(std::string& out) const {
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        if (!m_columns[column].IsWritten())
            continue;
        if (column < m_row.size())
            AppendCsvCell(out, m_row[column], m_run.Separator);
        out += m_run.Separator;
    }
}

void CsvReader::AppendRefusal(std::string& out, const Refusal& refusal) const {
    const std::string control = refusal.Control.empty() ? "" : refusal.Control + ": ";
    m_run.Results.AppendError(out, "Line " + std::to_string(refusal.Line) + ": " + control + refusal.Message,
                              m_run.Separator);
}

void CsvReader::TakeRow(OutputBuffer& output) {
    std::string& out = output.Text();
    if (!m_headingRead) {
        TakeHeading(out);
    } else if (!m_tally.ListRefused) {
        const auto refusal = Compare();
        AppendOwnCells(out);
        if (refusal)
            AppendRefusal(out, *refusal);
        else
            m_run.Results.Append(out, m_comparison.State(), m_comparison.Messages(), m_run.Separator);
        m_tally.Count(refusal.has_value(), m_rowLine);
        out += '\n';
    }
    m_row.clear();
    output.Commit();
}

void CsvReader::TakeLongRow(OutputBuffer& output) {
    m_row.clear();
    AppendOwnCells(output.Text());
    AppendRefusal(output.Text(), {m_rowLine, "", "",
                                  "The row is longer than 1 MiB. Add the missing closing quote, then run the "
                                  "list again from this row."});
    output.Text() += '\n';
    m_tally.Count(true, m_rowLine);
}

Tally CsvReader::Read(LineReader& lines, OutputBuffer& output) {
    struct Parsing {
        CsvReader& Reader;
        OutputBuffer& Output;
        std::size_t Held = 0; ///< bytes of the row being read, over all its lines
    } parsing{*this, output};
    const auto takeCell = [](void* text, std::size_t size, void* data) {
        static_cast<Parsing*>(data)->Reader.m_row.emplace_back(static_cast<const char*>(text), size);
    };
    const auto takeRow = [](int, void* data) {
        auto* const parsed = static_cast<Parsing*>(data);
        parsed->Reader.TakeRow(parsed->Output);
        parsed->Held = 0;
    };

    csv_parser parser;
    csv_init(&parser, 0);
    bool separatorKnown = false;
    bool rowTooLong = false;
    while (const auto line = lines.Next()) {
        if (parsing.Held == 0) {
            m_rowLine = line->Number;
            if (line->Text.find_first_not_of(" \t") == std::string_view::npos)
                continue;
        }
        if (!separatorKnown) {
            separatorKnown = true;
            const char separator = SeparatorOf(line->Text);
            csv_set_delim(&parser, static_cast<unsigned char>(separator));
            if (!m_run.Columns)
                m_run.Separator = separator;
        }
        parsing.Held += line->Text.size() + 1;
        // A quote that is never closed would make the rest of the file one row.
        rowTooLong = line->TooLong || parsing.Held > LongestLine;
        if (rowTooLong || m_tally.ListRefused || !output.Failure().empty())
            break;
        csv_parse(&parser, line->Text.data(), line->Text.size(), takeCell, takeRow, &parsing);
        csv_parse(&parser, "\n", 1, takeCell, takeRow, &parsing);
    }
    if (rowTooLong)
        TakeLongRow(output);
    else if (!m_tally.ListRefused)
        csv_fini(&parser, takeCell, takeRow, &parsing);
    csv_free(&parser);
    return m_tally;
}

} // namespace Ledgrove
