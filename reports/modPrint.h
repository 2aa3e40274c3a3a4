#pragma once

#include "engine/Session.h"
#include "reports/PrintDocument.h"
#include "ui/AssumptionsScreen.h"

#include <filesystem>
#include <string>
#include <string_view>

// The printed "Summary Report", written onto an open print document from what the screens show. Nothing is
// computed here but positions.
namespace Ledgrove {

/// Which sections are ticked.
struct ReportSections {
    bool CashFlow = false;
    bool MoreHome = false;
    bool Affordability = false;
    bool Summary = false;
    bool FinancialAssumptions = false;
};

struct ReportContent {
    const Session& State;
    const AssumptionsScreen& Assumptions; ///< as the dialog shows them
    ReportSections Sections;
    std::filesystem::path Emblem; ///< picture at the top left; none when empty
    std::filesystem::path Logo;   ///< picture at the top right; none when empty
};

/// The top-right picture of a logo choice: 1 the generic house in the program's folder, 2 the user's own file
/// unless it was never named, any other none (an empty path).
std::filesystem::path LogoPicture(const std::filesystem::path& folder, int logoOption,
                                  const std::string& logoFile);

/// The same for the session's own header.
std::filesystem::path LogoPicture(const Session& session, int logoOption);

} // namespace Ledgrove

namespace Ledgrove::modPrint {

/// The whole report, its sections in their fixed order.
void WriteReport(PrintDocument& document, const ReportContent& content);

// The blocks of the report, each onto the open document.

void WriteTitleBlock(PrintDocument& document, const ReportContent& content);

/// A filled bar with the section's name, which begins with two blanks.
void WriteBanner(PrintDocument& document, std::string_view title);

/// Starts a page headed as continued when the next section, so many whole inches high, does not fit this one.
/// The whole paper counts, not only what is above the bottom margin.
void ContinueHeader(PrintDocument& document, int inches);

void WriteHomeBuyerTable(PrintDocument& document, const ReportContent& content);
void WriteFinancialTable(PrintDocument& document, const ReportContent& content);
void WriteCashFlow(PrintDocument& document, const ReportContent& content);
void WriteSummary(PrintDocument& document, const ReportContent& content);
void WriteBuyMoreHome(PrintDocument& document, const ReportContent& content);
void WriteAffordability(PrintDocument& document, const ReportContent& content);
void WriteFinancialAssumptions(PrintDocument& document, const ReportContent& content);

/// A text that reads as a number through the picture, any other unchanged; safe as the text of one table
/// cell.
std::string Pictured(std::string_view text, std::string_view picture);

} // namespace Ledgrove::modPrint
