#include "reports/windows/BriefFile.h"

#include "reports/windows/PagePainter.h"
#include "reports/windows/PdfOutput.h"
#include "reports/windows/ReportFile.h"

namespace Ledgrove {

namespace {

void Compose(PrintDocument& document, const Brief& brief, const ReportPaper& paper) {
    PrepareReport(document, GeometryOf(paper), brief.Date);
    document.Title = "Buyer's Brief";
    document.Start();
    modPrint::WriteBrief(document, brief);
    document.End();
}

} // namespace

QString MakeBriefPdf(const Brief& brief, const ReportPaper& paper, QByteArray& pdf) {
    const FontMeasure measure;
    PrintDocument document(measure);
    Compose(document, brief, paper);
    return MakePdf(document, pdf) == PrintOutcome::Done ? QString() : "The brief could not be made.";
}

QString WriteBriefPdf(const Brief& brief, const ReportPaper& paper, const QString& file) {
    const FontMeasure measure;
    PrintDocument document(measure);
    Compose(document, brief, paper);
    return WritePdf(document, file);
}

} // namespace Ledgrove
