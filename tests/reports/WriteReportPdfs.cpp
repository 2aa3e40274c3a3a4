// Writes every variant of the report as a PDF into a folder, on the given paper, for report_pdfs_test.py:
// report_pdfs FOLDER WIDTH HEIGHT (in twips). Prints a line of JSON for each file.

#include "engine/Recalculate.h"
#include "reports/PreviewState.h"
#include "reports/windows/PagePainter.h"
#include "reports/windows/PdfOutput.h"
#include "reports/windows/ReportFile.h"
#include "tests/engine/TestSession.h"
#include "tests/reports/ReportVariants.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

namespace {

using namespace Ledgrove;
using namespace Ledgrove::Testing;

QJsonArray SectionNames(const ReportSections& sections) {
    QJsonArray names;
    const auto add = [&names](bool wanted, const char* name) {
        if (wanted)
            names.append(name);
    };
    add(sections.FinancialAssumptions, "Financial Assumptions");
    add(sections.CashFlow, "Cash Flow");
    add(sections.MoreHome, "More Home");
    add(sections.Affordability, "Affordability");
    add(sections.Summary, "Summary");
    return names;
}

void Describe(const QString& file, const ReportVariant& variant, std::size_t pages) {
    const QJsonObject line{{"file", file},
                           {"sections", SectionNames(variant.Sections)},
                           {"presentValue", variant.PresentValue},
                           {"builder", QString::fromStdString(variant.Builder)},
                           {"buyer", QString::fromStdString(variant.Buyer)},
                           {"pages", static_cast<int>(pages)}};
    std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 4)
        return 2;
    const Paper paper{"", QByteArray(argv[2]).toInt(), QByteArray(argv[3]).toInt()};
    Session session = SampleSession();
    ScriptedHost host;
    Module1::Recalculate(session, host);
    AssumptionsScreen assumptions;
    if (Module1::FillAssumptions(assumptions, session))
        return 1;
    const FontMeasure measure;
    PrintDocument document(measure);
    int number = 0;
    for (const ReportVariant& variant : AllReportVariants()) {
        session.Header.BuilderName = variant.Builder;
        session.Header.HomeBuyer = variant.Buyer;
        assumptions.optUsePVVars = variant.PresentValue;
        session.Screen.lblPVNote.Visible = variant.PresentValue;
        PrepareReport(document, SheetOf(paper, variant.Orientation), "11/20/2026");
        document.Start();
        modPrint::WriteReport(document, {session, assumptions, variant.Sections, {}, {}});
        document.End();
        const QString file = QString("%1/%2.pdf").arg(argv[1]).arg(++number, 3, 10, QChar('0'));
        if (const QString fault = WritePdf(document, file); !fault.isEmpty()) {
            std::fputs(qPrintable(fault), stderr);
            return 1;
        }
        Describe(file, variant, document.PageCount());
    }
}
