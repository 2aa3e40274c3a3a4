#include "reports/windows/ReportFile.h"

#include "reports/windows/PagePainter.h"
#include "reports/windows/PdfOutput.h"

namespace Ledgrove {

std::string PrintDate(const QDate& date) {
    return date.toString("MM/dd/yyyy").toStdString();
}

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

namespace {

std::optional<SettingsFault> Compose(PrintDocument& document, Session& session,
                                     const ReportFileRequest& request) {
    PrepareReport(document, GeometryOf(request.Paper), PrintDate());
    AssumptionsScreen assumptions;
    if (auto fault = Module1::FillAssumptions(assumptions, session))
        return fault;
    document.Start();
    modPrint::WriteReport(document, {session, assumptions, request.Sections, session.EmblemFile(),
                                     LogoPicture(session, request.LogoOption)});
    document.End();
    return std::nullopt;
}

} // namespace

QString MakeReport(Session& session, const ReportFileRequest& request, QByteArray& pdf) {
    const FontMeasure measure;
    PrintDocument document(measure);
    if (const auto fault = Compose(document, session, request))
        return QString::fromStdString(Sentence(*fault));
    return MakePdf(document, pdf) == PrintOutcome::Done ? QString() : "The report could not be made.";
}

QString WriteReportFile(Session& session, const ReportFileRequest& request) {
    const FontMeasure measure;
    PrintDocument document(measure);
    if (const auto fault = Compose(document, session, request))
        return QString::fromStdString(Sentence(*fault));
    return WritePdf(document, request.File);
}

} // namespace Ledgrove
