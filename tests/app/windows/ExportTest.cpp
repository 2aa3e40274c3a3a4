#include <QClipboard>
#include <QGuiApplication>

#include "DesktopDesk.h"
#include "app/windows/ExportCommands.h"

using namespace Ledgrove;

namespace {

ExportContext ContextOf(OpenDesktop& open) {
    return {*open.Window, open.State, open.Outside, *open.File, open.Questions};
}

} // namespace

class ExportTest : public QObject {
    Q_OBJECT

private slots:
    void pdfHoldsTheReport();
    void csvHoldsInputsAndResults();
    void nothingIsWrittenWithoutAName();
    void unwritableFileIsReported();
    void shownTabIsCopied();
    void refusedEntryStopsTheExport();
};

void ExportTest::pdfHoldsTheReport() {
    OpenDesktop open;
    open.NameToGive = open.PathOf("out.pdf");
    ExportPdf(ContextOf(open));
    QVERIFY(BytesOf(open.NameToGive).startsWith("%PDF-"));
    QCOMPARE(open.Asked.Suffix, ".pdf");
    QVERIFY(open.Outside.TakeTexts().empty());
}

void ExportTest::csvHoldsInputsAndResults() {
    OpenDesktop open;
    open.Type("ecStdHome", "200000"); // accepted as if the focus had left the field
    open.NameToGive = open.PathOf("out.csv");
    ExportCsv(ContextOf(open));
    const QList<QByteArray> lines = BytesOf(open.NameToGive).split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines[0].startsWith("ecIncome,ecMonthlyDebt,optDownPayment,"));
    QVERIFY(lines[1].contains("\"$200,000\""));
    QVERIFY(lines[2].isEmpty());
}

void ExportTest::nothingIsWrittenWithoutAName() {
    OpenDesktop open;
    const auto before = QDir(open.FolderPath()).entryList();
    ExportPdf(ContextOf(open));
    ExportCsv(ContextOf(open));
    QCOMPARE(QDir(open.FolderPath()).entryList(), before);
    QVERIFY(open.Outside.TakeTexts().empty());
}

void ExportTest::unwritableFileIsReported() {
    OpenDesktop open;
    open.NameToGive = open.PathOf("none/out.csv");
    ExportCsv(ContextOf(open));
    QVERIFY(open.Outside.TakeTexts().front().find("none/out.csv") != std::string::npos);
    open.NameToGive = open.PathOf("none/out.pdf");
    ExportPdf(ContextOf(open));
    QVERIFY(open.Outside.TakeTexts().front().find("none/out.pdf") != std::string::npos);
}

void ExportTest::shownTabIsCopied() {
    OpenDesktop open;
    open.State.Screen.SSTab1 = 1;
    CopyTab(ContextOf(open), TabForm::Text);
    QVERIFY(QGuiApplication::clipboard()->text().contains("Mortgage Savings             $0       $0\n"));
    CopyTab(ContextOf(open), TabForm::Spreadsheet);
    QVERIFY(QGuiApplication::clipboard()->text().startsWith("\tMonthly\tYearly\nMortgage Savings\t$0\t$0\n"));
}

void ExportTest::refusedEntryStopsTheExport() {
    OpenDesktop open;
    open.Type("ecIncome", "abc");
    open.NameToGive = open.PathOf("out.csv");
    ExportCsv(ContextOf(open));
    QCOMPARE(BytesOf(open.NameToGive), "(missing)");
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"You must enter a number here."});
}

QTEST_MAIN(ExportTest)
#include "ExportTest.moc"
