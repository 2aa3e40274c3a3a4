#include "app/batch/CsvResults.h"

#include <algorithm>
#include <array>
#include <iterator>

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

/// The texts after the figures.
constexpr std::array<std::string_view, 5> textColumns{"lblStdQual", "lblGMHQual", "dataCheck", "messages",
                                                      "error"};

/// A text of several lines as one: tools that read lines must not find half a row.
std::string OnOneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        const std::string_view part = Trimmed(text.substr(0, end));
        if (!part.empty())
            line.append(line.empty() ? "" : " / ").append(part);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    return line;
}

} // namespace

bool IsResultColumn(std::string_view heading) {
    const auto table = FigureTable();
    return std::find(textColumns.begin(), textColumns.end(), heading) != textColumns.end() ||
           std::any_of(table.begin(), table.end(),
                       [heading](const FigureEntry& figure) { return figure.FullName == heading; });
}

void AppendResultHeadings(std::string& out, char separator) {
    for (const Figure column : resultColumns)
        out.append(EntryOf(column).FullName).push_back(separator);
    for (const std::string_view& column : textColumns)
        out.append(&column == textColumns.data() ? "" : std::string(1, separator)).append(column);
}

void AppendCsvResults(std::string& out, const Session& session, const std::vector<Message>& messages,
                      char separator) {
    for (const Figure column : resultColumns) {
        Module1::AppendCents(EntryOf(column).Value(session), out);
        out += separator;
    }
    out.append(session.Screen.lblStdQual.Text).push_back(separator);
    out.append(session.Screen.lblGMHQual.Text).push_back(separator);
    AppendCsvCell(out, OnOneLine(Module1::DataCheckText(session.Screen)), separator);
    out += separator;
    std::string texts;
    for (const Message& message : messages)
        texts.append(message.Text).append("\n");
    AppendCsvCell(out, OnOneLine(texts), separator);
    out += separator;
}

void AppendCsvError(std::string& out, std::string_view error, char separator) {
    out.append(std::size(resultColumns) + textColumns.size() - 1, separator);
    AppendCsvCell(out, error, separator);
}

} // namespace Ledgrove
