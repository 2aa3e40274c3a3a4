#pragma once

#include "reports/InsightReport.h"
#include "reports/ReportChoices.h"

#include <QByteArray>
#include <QString>

// The answers of Insight as PDF. Both functions need a QGuiApplication and a report with answers.
namespace Ledgrove {

/// Composes the pages in `pdf`. Returns a message if that failed, else "".
QString MakeInsightPdf(const InsightReport& report, const ReportPaper& paper, QByteArray& pdf);

/// Composes the pages and writes the file. Returns a message if it cannot be written, else "".
QString WriteInsightPdf(const InsightReport& report, const ReportPaper& paper, const QString& file);

} // namespace Ledgrove
