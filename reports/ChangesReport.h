#pragma once

#include "reports/PrintDocument.h"
#include "ui/ChangesAnswer.h"

#include <filesystem>

// What differs between two comparisons, on paper in the report's style.
namespace Ledgrove {

struct ChangesReport {
    ReportHeader Names;
    std::filesystem::path Emblem; ///< picture at the top left; none when empty
    std::filesystem::path Logo;   ///< picture at the top right; none when empty
    ChangesAnswer Answer;         ///< with differing inputs
};

/// The answer with the session's header.
ChangesReport MakeChangesReport(const Session& session, ChangesAnswer answer, int logoOption);

} // namespace Ledgrove

namespace Ledgrove::modPrint {

/// Writes the title, the sentence, the tables and the picture to an open document. A table that fits on a
/// page is not torn, and stays with its banner.
void WriteChanges(PrintDocument& document, const ChangesReport& report);

} // namespace Ledgrove::modPrint
