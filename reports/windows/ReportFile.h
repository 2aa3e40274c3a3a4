#pragma once

#include "engine/Session.h"
#include "reports/PrintDocument.h"
#include "reports/ReportChoices.h"

#include <QDate>
#include <QString>

namespace Ledgrove {

/// The options of a report without a window.
struct ReportFileRequest {
    ReportSections Sections;
    ReportPaper Paper;
    int LogoOption = 0;
    QString File; ///< of the PDF
};

/// A date as the pages show it, "11/20/2026"; today's without an argument.
std::string PrintDate(const QDate& date = QDate::currentDate());

/// The footer of every report; `date` in its printed form, such as "11/20/2026".
std::string ReportFooter(std::string_view date);

/// Sets fonts, footer and title of a document before the report is written to it.
void PrepareReport(PrintDocument& document, const PageGeometry& paper, std::string_view date);

/// Composes the report of the session's screen as PDF in `pdf`; the request's file is not used. Needs a
/// QGuiApplication. Returns a message if that failed, else "".
QString MakeReport(Session& session, const ReportFileRequest& request, QByteArray& pdf);

/// Composes the report of the session's screen and writes it as PDF. Needs a QGuiApplication. Returns a
/// message if the file cannot be written, else "".
QString WriteReportFile(Session& session, const ReportFileRequest& request);

} // namespace Ledgrove
