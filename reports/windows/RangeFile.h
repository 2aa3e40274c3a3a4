#pragma once

#include "reports/RangeReport.h"
#include "reports/ReportChoices.h"

#include <QByteArray>
#include <QString>

// The saved houses for a buyer as PDF. Both functions need a QGuiApplication.
namespace Ledgrove {

/// Composes the pages in `pdf`. Returns a message if that failed, else "".
QString MakeRangePdf(const RangeReport& report, const ReportPaper& paper, QByteArray& pdf);

/// Composes the pages and writes the file. Returns a message if it cannot be written, else "".
QString WriteRangePdf(const RangeReport& report, const ReportPaper& paper, const QString& file);

} // namespace Ledgrove
