#include "reports/windows/ReportFile.h"

#include "reports/windows/PagePainter.h"
#include "reports/windows/PdfOutput.h"

#include <QDate>

namespace Ledgrove {

std::string ReportFooter(std::string_view date) {
    return "Printed on " + std::string(date) + "||Page %d";
}

void PrepareReport(PrintDocument& document, const PageGeometry& paper, std::string_view date) {
    document.Geometry = paper;
    document.FontName = "Arial";
    document.FontSize = 20;
    document.FontBold = document.FontItalic = document.FontUnderline = false;
    document.FooterFont = {"Arial", 8};
    document.Footer = ReportFooter(date);
    document.Title = "Summary Report";
}

QString WriteReportFile(Session& session, const ReportFileRequest& request) {
    const FontMeasure measure;
    PrintDocument document(measure);
    PrepareReport(document, GeometryOf(request.Paper),
                  QDate::currentDate().toString("MM/dd/yyyy").toStdString());
    AssumptionsScreen assumptions;
    if (const auto fault = Module1::FillAssumptions(assumptions, session))
        return QString::fromStdString(Sentence(*fault));
    document.Start();
    modPrint::WriteReport(document, {session, assumptions, request.Sections, session.EmblemFile(),
                                     LogoPicture(session, request.LogoOption)});
    document.End();
    return WritePdf(document, request.File);
}

} // namespace Ledgrove
