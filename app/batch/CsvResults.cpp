#include "app/batch/CsvResults.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "app/batch/CsvText.h"
#include "base/Text.h"
#include "engine/Figures.h"
#include "engine/NumberText.h"
#include "ui/DataCheck.h"

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

constexpr std::array<std::string_view, 4> textColumns{"lblStdQual", "lblGMHQual", "dataCheck", "messages"};
constexpr std::string_view errorColumn = "error";

bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

/// A text of several lines as one: tools that read lines must not find half a row.
std::string OnOneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (auto begin = text.begin(); begin != text.end();) {
        const auto end = std::find_if(begin, text.end(), IsLineEnd);
        const std::string_view part = Trimmed({begin, end});
        if (!part.empty())
            line.append(line.empty() ? "" : " / ").append(part);
        begin = end == text.end() ? end : std::next(end);
    }
    return line;
}

/// Appends the cell of any kind of result.
class CellWriter {
public:
    CellWriter(std::string& out, const Session& session, const std::vector<Message>& messages, char separator)
        : m_out(out)
        , m_session(session)
        , m_messages(messages)
        , m_separator(separator) {}

    void operator()(Field MainScreen::*field) const { Text((m_session.Screen.*field).Text); }
    void operator()(PickList MainScreen::*list) const { Text((m_session.Screen.*list).Text()); }
    void operator()(Label MainScreen::*label) const { Text((m_session.Screen.*label).Text); }
    void operator()(const FigureEntry* figure) const {
        const float value = figure->Value(m_session);
        const bool isFraction =
            figure->Unit == FigureUnit::Fraction || figure->Unit == FigureUnit::FractionPerYear;
        if (isFraction)
            m_out += Module1::ShortestText(value);
        else
            Module1::AppendCents(value, m_out);
    }
    void operator()(ResultPart part) const {
        switch (part) {
        case ResultPart::DownOption:
            m_out += m_session.Screen.optDownPayment == 0 ? '0' : '1';
            return;
        case ResultPart::TaxBox:
            return Flag(m_session.Screen.chkDoTax0);
        case ResultPart::DownAsPercent:
            return Flag(m_session.Scenario.DownAsPercent);
        case ResultPart::YearsInHome:
            m_out += std::to_string(m_session.Scenario.YearsInHome);
            return;
        case ResultPart::EEMNoticeFlag:
            return Flag(m_session.Scenario.EEMNoticeFlag);
        case ResultPart::Messages:
            return Text(AllMessages());
        case ResultPart::DataCheck:
            return Text(Module1::DataCheckText(m_session.Screen));
        }
    }

private:
    void Text(std::string_view text) const { AppendCsvCell(m_out, OnOneLine(text), m_separator); }
    void Flag(bool value) const { m_out += value ? "true" : "false"; }
    std::string AllMessages() const {
        std::string texts;
        for (const Message& message : m_messages)
            texts.append(message.Text).append("\n");
        return texts;
    }

    std::string& m_out;
    const Session& m_session;
    const std::vector<Message>& m_messages;
    char m_separator;
};

} // namespace

ChosenNames MainResults() {
    ChosenNames names;
    for (const Figure column : resultColumns)
        names.push_back(FindResultName(EntryOf(column).FullName));
    for (const std::string_view column : textColumns)
        names.push_back(FindResultName(column));
    return names;
}

bool IsResultColumn(std::string_view heading) {
    if (heading == errorColumn)
        return true;
    // The names of the fields are inputs.
    const ResultName* const name = FindResultName(heading);
    return name && name->Heading() == heading;
}

CsvResults::CsvResults(ChosenNames columns)
    : m_columns(columns.empty() ? MainResults() : std::move(columns)) {}

void CsvResults::AppendHeadings(std::string& out, char separator) const {
    for (const ResultName* const column : m_columns)
        out.append(column->Heading()).push_back(separator);
    out += errorColumn;
}

void CsvResults::Append(std::string& out, const Session& session, const std::vector<Message>& messages,
                        char separator) const {
    const CellWriter write(out, session, messages, separator);
    for (const ResultName* const column : m_columns) {
        std::visit(write, column->Value);
        out += separator;
    }
}

void CsvResults::AppendError(std::string& out, std::string_view error, char separator) const {
    out.append(m_columns.size(), separator);
    AppendCsvCell(out, error, separator);
}

} // namespace Ledgrove
