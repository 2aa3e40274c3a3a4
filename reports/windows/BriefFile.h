#pragma once

#include "reports/Brief.h"
#include "reports/ReportChoices.h"

#include <QByteArray>
#include <QString>

// The buyer's brief as a PDF.
namespace Ledgrove {

/// Makes the PDF in memory. Returns a message if that failed, else "".
QString MakeBriefPdf(const Brief& brief, const ReportPaper& paper, QByteArray& pdf);

/// Writes the PDF to a file. Returns a message if that failed, else "".
QString WriteBriefPdf(const Brief& brief, const ReportPaper& paper, const QString& file);

} // namespace Ledgrove
