#pragma once

#include "reports/PrintDocument.h"
#include "ui/ChartFigures.h"
#include "ui/InsightAnswers.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The answers of Insight on paper, in the report's style.
namespace Ledgrove {

struct InsightRequest {
    std::vector<InsightQuestion> Questions;
    std::optional<std::string> Figure = {}; ///< that the explanation is about; empty for all figures
    double By = UsualBy;                    ///< the percentage of the sensitivity
    int LogoOption = 0;
    std::optional<YearSettings> Years = {}; ///< of the views over the years; empty for the session's
    int Year = 0;                           ///< whose months "Year by year" lists; 0 for all years
};

/// A question with its answer.
struct InsightSection {
    std::string Question; ///< for the banner
    Sheet Answer;
    std::shared_ptr<const ChartFigures> Picture; ///< empty if the answer has none
};

struct InsightReport {
    std::string Missing; ///< why the questions cannot be answered; empty if they can
    ReportHeader Names;
    std::filesystem::path Emblem; ///< picture at the top left; none when empty
    std::filesystem::path Logo;   ///< picture at the top right; none when empty
    std::vector<InsightSection> Sections;
};

/// Answers the questions about the session's inputs, with the session's header. Ends with the assumptions
/// that the answers use, unless a question is about all of them.
InsightReport MakeInsightReport(const Session& session, const InsightRequest& request);

} // namespace Ledgrove

namespace Ledgrove::modPrint {

/// Writes the title and the sections in their order to an open document. A section that fits on a page is not
/// torn.
void WriteInsight(PrintDocument& document, const InsightReport& report);

} // namespace Ledgrove::modPrint
