#include "reports/windows/RangeFile.h"

#include "reports/windows/PagePainter.h"
#include "reports/windows/PdfOutput.h"
#include "reports/windows/ReportFile.h"

#include <QDate>

namespace Ledgrove {

namespace {

void Compose(PrintDocument& document, const RangeReport& report, const ReportPaper& paper) {
    PrepareReport(document, GeometryOf(paper), QDate::currentDate().toString("MM/dd/yyyy").toStdString());
    document.Title = "House range";
    document.Start();
    modPrint::WriteRange(document, report);
    document.End();
}

} // namespace

QString MakeRangePdf(const RangeReport& report, const ReportPaper& paper, QByteArray& pdf) {
    const FontMeasure measure;
    PrintDocument document(measure);
    Compose(document, report, paper);
    return MakePdf(document, pdf) == PrintOutcome::Done ? QString() : "The report could not be made.";
}

QString WriteRangePdf(const RangeReport& report, const ReportPaper& paper, const QString& file) {
    const FontMeasure measure;
    PrintDocument document(measure);
    Compose(document, report, paper);
    return WritePdf(document, file);
}

} // namespace Ledgrove
