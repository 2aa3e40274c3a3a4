#include "app/batch/CsvCompare.h"

#include <algorithm>
#include <csv.h>

#include "engine/Figures.h"
#include "engine/NumberText.h"

namespace Ledgrove {

namespace {

constexpr Figure resultColumns[] = {
    Figure::StdDownPayment,
    Figure::StdLoanAmount,
    Figure::StdMortPayment,
    Figure::StdPITI,
    Figure::StdPITIU,
    Figure::StdMaxPayment,
    Figure::StdMaxLoan,
    Figure::GMHDownPayment,
    Figure::GMHLoanAmount,
    Figure::GMHMortPayment,
    Figure::GMHPITI,
    Figure::GMHPITIU,
    Figure::GMHMaxPayment,
    Figure::GMHMaxLoan,
    Figure::GMHPVSavings,
    Figure::MortgageSavings,
    Figure::UtilitySavings,
    Figure::ShownTaxSavings,
    Figure::NetMonthlyCashFlow,
    Figure::ExtraCashToday,
    Figure::PVNetCashFlow,
    Figure::SavingsAfter7Years,
    Figure::SavingsAfterYearsInHome,
    Figure::SavingsAfter30Years,
};

// Text columns after the figures.
constexpr std::string_view lblStdQualColumn = "lblStdQual";
constexpr std::string_view lblGMHQualColumn = "lblGMHQual";
constexpr std::string_view errorColumn = "error";
constexpr std::size_t columnsBehindInputs = std::size(resultColumns) + 3;

bool LooksLikeFormula(std::string_view cell) {
    if (cell.empty())
        return false;
    // Many spreadsheets ignore leading blanks.
    const std::size_t first = std::min(cell.find_first_not_of(" \t\r\n"), cell.size() - 1);
    const bool startsLikeOne = cell.front() == '\t' || cell.front() == '\r' ||
                               std::string_view("=+-@").find(cell[first]) != std::string_view::npos;
    return startsLikeOne && !Module1::ReadNumber(cell);
}

/// Without quotes, readers drop leading and trailing blanks, as our own does.
bool NeedsQuotes(std::string_view cell) {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    const auto isMark = [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; };
    return std::any_of(cell.begin(), cell.end(), isMark) ||
           (!cell.empty() && (isBlank(cell.front()) || isBlank(cell.back())));
}

/// Appends empty results, and the reason in the last column.
void AppendRefusal(std::string& out, const Refusal& refusal) {
    out.append(columnsBehindInputs - 1, ',');
    const std::string control = refusal.Control.empty() ? "" : refusal.Control + ": ";
    AppendCsvCell(out, "Line " + std::to_string(refusal.Line) + ": " + control + refusal.Message);
}

void TakeCapitalsOff(std::string& text) {
    for (char& c : text)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

void AppendCsvHeading(std::string& out, const std::vector<std::string>& heading) {
    for (const std::string& name : heading) {
        AppendCsvCell(out, name);
        out += ',';
    }
    for (const Figure column : resultColumns)
        out.append(EntryOf(column).FullName).append(",");
    out.append(lblStdQualColumn)
        .append(",")
        .append(lblGMHQualColumn)
        .append(",")
        .append(errorColumn)
        .append("\n");
}

void AppendCsvResults(std::string& out, const Session& session) {
    for (const Figure column : resultColumns) {
        Module1::AppendCents(EntryOf(column).Value(session), out);
        out += ',';
    }
    out.append(session.Screen.lblStdQual.Text).append(",").append(session.Screen.lblGMHQual.Text).append(",");
}

std::string DefusedCell(std::string_view cell) {
    return LooksLikeFormula(cell) ? "'" + std::string(cell) : std::string(cell);
}

void AppendCsvCell(std::string& out, std::string_view cell) {
    if (LooksLikeFormula(cell)) {
        // With the apostrophe the cell is not a formula, so this recurses only once.
        return AppendCsvCell(out, DefusedCell(cell));
    }
    if (!NeedsQuotes(cell)) {
        out += cell;
        return;
    }
    out += '"';
    for (const char c : cell) {
        if (c == '"')
            out += '"';
        out += c;
    }
    out += '"';
}

std::optional<Refusal> CsvReader::Compare() {
    m_inputs.Clear();
    if (m_heading.size() == 1 && m_heading.front().find(';') != std::string::npos)
        return Refusal{m_rowLine, "", "", "Separate the columns with commas, not with semicolons."};
    if (m_row.size() > m_heading.size())
        return Refusal{m_rowLine, "", "", "The row has more cells than the heading row."};
    for (std::size_t column = 0; column < m_row.size(); ++column) {
        const std::optional<Input> input = m_columns[column];
        if (!input)
            return AtLine(UnknownInput(m_heading[column], m_row[column]));
        if (m_row[column].empty())
            continue;
        InputValue& value = m_inputs[*input];
        value.Present = true;
        value.Kind = InputKind::Text;
        value.Text = m_row[column];
        if (input == Input::chkDoTax0)
            TakeCapitalsOff(value.Text); // spreadsheets write TRUE and FALSE
    }
    auto refusal = m_comparison.Run(m_inputs);
    return refusal ? AtLine(*std::move(refusal)) : refusal;
}

Refusal CsvReader::AtLine(Refusal refusal) const {
    refusal.Line = m_rowLine;
    return refusal;
}

void CsvReader::TakeRow(OutputBuffer& output) {
    std::string& out = output.Text();
    if (!m_headingRead) {
        m_headingRead = true;
        m_heading = std::move(m_row);
        for (const std::string& name : m_heading)
            m_columns.push_back(InputNamed(name));
        AppendCsvHeading(out, m_heading);
    } else {
        const auto refusal = Compare();
        m_row.resize(std::max(m_row.size(), m_heading.size()));
        for (const std::string& cell : m_row) {
            AppendCsvCell(out, cell);
            out += ',';
        }
        if (refusal)
            AppendRefusal(out, *refusal);
        else
            AppendCsvResults(out, m_comparison.State());
        m_allWell = m_allWell && !refusal;
        out += '\n';
    }
    m_row.clear();
    output.Commit();
}

void CsvReader::TakeLongRow(OutputBuffer& output) {
    output.Text().append(m_heading.size(), ',');
    AppendRefusal(output.Text(), {m_rowLine, "", "",
                                  "The row is longer than 1 MiB. Add the missing closing quote, then run the "
                                  "list again from this row."});
    output.Text() += '\n';
    m_allWell = false;
}

bool CsvReader::Read(LineReader& lines, OutputBuffer& output) {
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
    bool rowTooLong = false;
    while (const auto line = lines.Next()) {
        if (parsing.Held == 0) {
            m_rowLine = line->Number;
            if (line->Text.find_first_not_of(" \t") == std::string_view::npos)
                continue;
        }
        parsing.Held += line->Text.size() + 1;
        // A quote that is never closed would make the rest of the file one row.
        rowTooLong = line->TooLong || parsing.Held > LongestLine;
        if (rowTooLong || !output.Failure().empty())
            break;
        csv_parse(&parser, line->Text.data(), line->Text.size(), takeCell, takeRow, &parsing);
        csv_parse(&parser, "\n", 1, takeCell, takeRow, &parsing);
    }
    if (rowTooLong)
        TakeLongRow(output);
    else
        csv_fini(&parser, takeCell, takeRow, &parsing);
    csv_free(&parser);
    return m_allWell;
}

} // namespace Ledgrove
