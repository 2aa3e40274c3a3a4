#pragma once

#include "engine/Session.h"
#include "reports/PrintDocument.h"
#include "ui/AssumptionsScreen.h"

#include <filesystem>
#include <string>
#include <string_view>

// Writes the printed "Summary Report" to an open print document from the texts of the screens. It computes
// nothing except positions.
namespace Ledgrove {

/// The sections that are selected.
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

/// The top-right picture for a logo option: 1 is the generic house in the program's folder, 2 is the user's
/// file unless it has no name; any other option gives an empty path.
std::filesystem::path LogoPicture(const std::filesystem::path& folder, int logoOption,
                                  const std::string& logoFile);

/// The same for the session's header.
std::filesystem::path LogoPicture(const Session& session, int logoOption);

} // namespace Ledgrove

namespace Ledgrove::modPrint {

/// What stands at the top of the first page.
struct TitleBlock {
    std::string_view Heading;  ///< the first line
    std::string_view PdfTitle; ///< begins the title of a PDF file; the names follow
    const ReportHeader& Names;
    std::filesystem::path Emblem; ///< none when empty
    std::filesystem::path Logo;   ///< none when empty
};

/// Writes the whole report, with its sections in their fixed order.
void WriteReport(PrintDocument& document, const ReportContent& content);

// The blocks of the report; each is written to the open document.

void WriteTitleBlock(PrintDocument& document, const TitleBlock& title);

/// Writes a filled bar with the section's title, which begins with two blanks.
void WriteBanner(PrintDocument& document, std::string_view title);

/// If the next section, `inches` high, does not fit this page, starts a page with a "continued" heading. The
/// whole paper counts, not only the part above the bottom margin.
void ContinueHeader(PrintDocument& document, int inches);

void WriteHomeBuyerTable(PrintDocument& document, const ReportContent& content);
void WriteFinancialTable(PrintDocument& document, const ReportContent& content);
void WriteCashFlow(PrintDocument& document, const ReportContent& content);
void WriteSummary(PrintDocument& document, const ReportContent& content);
void WriteBuyMoreHome(PrintDocument& document, const ReportContent& content);
void WriteAffordability(PrintDocument& document, const ReportContent& content);
void WriteFinancialAssumptions(PrintDocument& document, const ReportContent& content);

/// A text that is a number, shown with the picture format; any other text unchanged. The result is safe as
/// the text of one table cell.
std::string Pictured(std::string_view text, std::string_view picture);

} // namespace Ledgrove::modPrint
