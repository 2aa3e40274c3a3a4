#pragma once

#include "engine/Session.h"
#include "insight/Range.h"
#include "reports/PrintDocument.h"

#include <filesystem>
#include <string>

// The saved houses for a buyer on paper, in the report's style.
namespace Ledgrove {

struct RangeReport {
    ReportHeader Names;
    std::filesystem::path Emblem; ///< picture at the top left; none when empty
    std::filesystem::path Logo;   ///< picture at the top right; none when empty
    std::string Buyer;            ///< what all rows have in common, as a sentence
    Sheet Houses;
};

/// Makes the report of a range that was computed for the session, with the session's header.
RangeReport MakeRangeReport(const Session& session, const Range& range, int logoOption);

} // namespace Ledgrove

namespace Ledgrove::modPrint {

/// Writes the title, the sentences and the table to an open document. The table's headings are repeated on
/// every page.
void WriteRange(PrintDocument& document, const RangeReport& report);

} // namespace Ledgrove::modPrint
