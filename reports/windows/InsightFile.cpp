#include "reports/windows/InsightFile.h"

#include "reports/windows/PagePainter.h"
#include "reports/windows/PdfOutput.h"
#include "reports/windows/ReportFile.h"

namespace Ledgrove {

namespace {

void Compose(PrintDocument& document, const InsightReport& report, const ReportPaper& paper) {
    PrepareReport(document, GeometryOf(paper), PrintDate());
    document.Title = "Insight";
    document.Start();
    modPrint::WriteInsight(document, report);
    document.End();
}

} // namespace

QString MakeInsightPdf(const InsightReport& report, const ReportPaper& paper, QByteArray& pdf) {
    const FontMeasure measure;
    PrintDocument document(measure);
    Compose(document, report, paper);
    return MakePdf(document, pdf) == PrintOutcome::Done ? QString() : "The report could not be made.";
}

QString WriteInsightPdf(const InsightReport& report, const ReportPaper& paper, const QString& file) {
    const FontMeasure measure;
    PrintDocument document(measure);
    Compose(document, report, paper);
    return WritePdf(document, file);
}

} // namespace Ledgrove
