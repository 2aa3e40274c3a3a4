#include "app/files/CsvExport.h"

#include "FileDesk.h"
#include "app/batch/CsvCompare.h"

#include <gmock/gmock.h>

#include <sstream>

namespace Ledgrove {
namespace {

std::vector<std::string> Cells(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, '\t');)
        cells.push_back(cell);
    return cells;
}

/// The text with the commas outside quotes replaced by tabs, and without the quotes.
std::string Plain(const std::string& csv) {
    std::string plain;
    bool quoted = false;
    for (const char c : csv) {
        if (c == '"')
            quoted = !quoted;
        else
            plain += c == ',' && !quoted ? '\t' : c;
    }
    return plain;
}

TEST(CsvExportTest, InputsAndMainResultsHaveTheirNamesAsHeadings) {
    Session session = Testing::SampleSession();
    Testing::ScriptedHost host;
    Module1::Recalculate(session, host);
    std::istringstream lines(Plain(ComparisonCsv(session)));
    std::string heading;
    std::string row;
    std::string more;
    std::getline(lines, heading);
    std::getline(lines, row);
    EXPECT_FALSE(std::getline(lines, more));
    const auto names = Cells(heading);
    const auto values = Cells(row);
    const auto value = [&](const std::string& name) {
        const auto found = std::find(names.begin(), names.end(), name);
        return found == names.end() ? "(no column)"
                                    : values.at(static_cast<std::size_t>(found - names.begin()));
    };
    EXPECT_EQ(value("ecIncome"), "$72,000");
    EXPECT_EQ(value("ecFixedDown"), "");
    EXPECT_EQ(value("chkDoTax0"), "true");
    EXPECT_EQ(value("StdCase.LoanAmount"), "180000.00");
    EXPECT_EQ(value("StdCase.MortPayment"), "1137.72");
    EXPECT_EQ(value("lblStdQual"), "YES");
    EXPECT_EQ(names.back(), "error");
}

} // namespace
} // namespace Ledgrove
