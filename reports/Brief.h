#pragma once

#include "reports/PrintDocument.h"
#include "ui/ChartFigures.h"

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

// The buyer's brief: a comparison on one page, to take home.
namespace Ledgrove {

/// A row of a table: what it is about, and the texts for the two homes or one text.
struct BriefRow {
    std::string Caption;
    std::string Std; ///< "" where the figure is about both homes
    std::string GMH;
};

/// A value that the figures rest on.
struct BriefAssumption {
    std::string Caption;
    std::string Value;
    std::string Date;   ///< "2018-07-09", "your own", or what else is known of its age
    bool IsOld = false; ///< older than two years
};

struct Brief {
    std::string Missing; ///< why the brief cannot be made; empty if it can
    ReportHeader Names;
    std::string Date;
    std::filesystem::path Logo; ///< none when empty
    std::vector<std::string> Sentences;
    std::shared_ptr<const ChartFigures> Cost;
    std::shared_ptr<const ChartFigures> Savings;
    std::string SavingsHead; ///< what the curve counts
    std::array<BriefRow, 10> Figures;
    std::array<BriefRow, 3> Qualifying;
    std::vector<BriefAssumption> Assumptions;
    std::string Disclaimer;
};

/// The brief of the session's comparison, whose labels must be up to date, with the session's header. `date`
/// is today's as the report shows it.
Brief MakeBrief(const Session& session, int logoOption, std::string date);

} // namespace Ledgrove

namespace Ledgrove::modPrint {

/// Writes the brief on the first page of an open document. The type shrinks until the page holds everything;
/// names that are too long even for that are cut.
void WriteBrief(PrintDocument& document, const Brief& brief);

} // namespace Ledgrove::modPrint
