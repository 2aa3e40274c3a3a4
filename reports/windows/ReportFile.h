#pragma once

#include "engine/Session.h"
#include "reports/PrintDocument.h"
#include "reports/modPrint.h"

#include <QString>

namespace Ledgrove {

/// What a report without a window is made of.
struct ReportFileRequest {
    ReportSections Sections;
    PageOrientation Orientation = PageOrientation::Portrait;
    int LogoOption = 0;
    QString File; ///< of the PDF
};

/// The footer of every report; `date` as it is printed, "11/20/2026".
std::string ReportFooter(std::string_view date);

/// Fonts, footer and title of a document that the report is about to be written on.
void PrepareReport(PrintDocument& document, const PageGeometry& paper, std::string_view date);

/// Composes the report of the session's screen and writes it as PDF. Needs a QGuiApplication. Gives a
/// sentence when the file cannot be written, else "".
QString WriteReportFile(Session& session, const ReportFileRequest& request);

} // namespace Ledgrove
