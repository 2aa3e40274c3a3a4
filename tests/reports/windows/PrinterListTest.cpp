#include <QAbstractItemView>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>

#include "PrintDesk.h"
#include "reports/windows/PrinterBox.h"
#include "reports/windows/StatusLines.h"

using namespace Ledgrove;

namespace {

void WithPrinters(OpenPreview& desk) {
    desk.AddPrinters();
}

PrinterBox& ListOf(const OpenPreview& open) {
    return open.Find<PrinterBox>("cboPrinter");
}

/// Opens the list of printers and closes it.
void OpenList(const OpenPreview& open) {
    ListOf(open).showPopup();
    ListOf(open).hidePopup();
}

QStringList Names(const PrinterBox& list) {
    QStringList names;
    for (int i = 0; i < list.count(); ++i)
        names += list.itemText(i);
    return names;
}

/// A name that is too long for every screen.
QString LongName(const QString& start, const QString& middle, const QString& end) {
    return start + QString("_part").repeated(200) + middle + QString("_part").repeated(200) + end;
}

QImage Painted(PrinterBox& list, const QString& name) {
    list.SetPrinters({name}, 0);
    return list.grab().toImage();
}

QImage PaintedItems(PrinterBox& list, const QString& name) {
    list.SetPrinters({"Other", name}, 0);
    list.showPopup();
    const QImage items = list.view()->grab().toImage();
    list.hidePopup();
    return items;
}

} // namespace

class PrinterListTest : public QObject {
    Q_OBJECT

private slots:
    void openingReadsThePrintersAgain();
    void openingKeepsTheChosenPrinter();
    void openingShowsAChangedPort();
    void chosenPrinterThatIsGoneGivesWayToTheDefault();
    void longNamesAreElidedInTheMiddle();
    void longItemsAreElidedInTheMiddle();
    void longStatusIsElidedInTheMiddle();
    void toolTipsAreNotHtml();
    void namesAreOnOneLine();
};

void PrinterListTest::openingReadsThePrintersAgain() {
    OpenPreview open(1, WithPrinters);
    QCOMPARE(open.Server.Listed, 1);
    open.Server.Printers.push_back({"Attic", "socket://attic", "Generic"});
    OpenList(open);
    QCOMPARE(open.Server.Listed, 2);
    QCOMPARE(Names(ListOf(open)), QStringList({"Lab", "Office", "Attic", "Print to PDF"}));
    open.Choose("cboPrinter", 2);
    QCOMPARE(open.LabelText("lblStatus"), "DPI: not known\nPort: socket://attic\nDriver: Generic");
}

void PrinterListTest::openingKeepsTheChosenPrinter() {
    OpenPreview open(1, WithPrinters);
    open.Choose("cboPrinter", 0);
    const int asked = open.Server.Asked;
    open.Server.Printers.insert(open.Server.Printers.begin(), {"Attic", "socket://attic", "Generic"});
    OpenList(open);
    QCOMPARE(open.Chosen("cboPrinter"), "Lab");
    QCOMPARE(open.Server.Asked, asked); // the details of this printer are known
    QCOMPARE(open.Compositions, 1);
    open.Find<QPushButton>("cmdPrint").click();
    QCOMPARE(open.Server.Jobs.front().Job.Printer, std::string("Lab"));
}

void PrinterListTest::openingShowsAChangedPort() {
    OpenPreview open(1, WithPrinters);
    open.Server.Printers[1].Port = "ipp://other/office";
    OpenList(open);
    QCOMPARE(open.LabelText("lblStatus"), "DPI:  600\nPort: ipp://other/office\nDriver: Laser 600");
}

void PrinterListTest::chosenPrinterThatIsGoneGivesWayToTheDefault() {
    OpenPreview open(1, WithPrinters);
    open.Choose("cboPrinter", 0);
    const int asked = open.Server.Asked;
    open.Server.Printers.erase(open.Server.Printers.begin());
    OpenList(open);
    QCOMPARE(open.Chosen("cboPrinter"), "Office");
    QCOMPARE(open.Server.Asked, asked + 1);
    QCOMPARE(open.LabelText("lblStatus"), "DPI:  600\nPort: ipp://printserver/office\nDriver: Laser 600");
}

void PrinterListTest::longNamesAreElidedInTheMiddle() {
    const OpenPreview open;
    PrinterBox& list = ListOf(open);
    const QImage painted = Painted(list, LongName("First", "middle", "last"));
    QVERIFY(painted == Painted(list, LongName("First", "other", "last")));
    QVERIFY(painted != Painted(list, LongName("Second", "middle", "last")));
    QVERIFY(painted != Painted(list, LongName("First", "middle", "least")));
}

void PrinterListTest::longItemsAreElidedInTheMiddle() {
    PrinterBox list;
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    const QString name = LongName("First", "middle", "last");
    const QImage painted = PaintedItems(list, name);
    QCOMPARE(list.itemData(1, Qt::ToolTipRole).toString(), name);
    QVERIFY(painted.width() <= list.screen()->geometry().width());
    QVERIFY(painted == PaintedItems(list, LongName("First", "other", "last")));
    QVERIFY(painted != PaintedItems(list, LongName("First", "middle", "least")));
}

void PrinterListTest::longStatusIsElidedInTheMiddle() {
    const QString port = "ipp://" + LongName("first", "middle", "last");
    const OpenPreview open(1, [&port](OpenPreview& desk) {
        desk.AddPrinters();
        desk.Server.Printers[1].Port = port.toStdString();
    });
    const auto& status = open.Find<StatusLines>("lblStatus");
    const QStringList shown = status.ShownLines();
    QCOMPARE(shown.size(), 3);
    QCOMPARE(shown[0], "DPI:  600");
    QVERIFY2(shown[1].startsWith("Port: ipp://first_"), qPrintable(shown[1]));
    QVERIFY2(shown[1].endsWith("_partlast"), qPrintable(shown[1]));
    QVERIFY(status.fontMetrics().horizontalAdvance(shown[1]) <= status.width());
    QCOMPARE(shown[2], "Driver: Laser 600");
    QVERIFY(status.toolTip().contains(port));
    QVERIFY(open.Window->width() <= open.Window->screen()->geometry().width());
}

void PrinterListTest::toolTipsAreNotHtml() {
    const OpenPreview open(1, [](OpenPreview& desk) {
        desk.AddPrinters();
        desk.Server.Printers[1].Port = "dnssd://%3Cimg%20src=%22file:///dev/zero%22%3E";
    });
    const auto& status = open.Find<StatusLines>("lblStatus");
    QVERIFY(status.text().contains("<img src=\"file:///dev/zero\">"));
    QVERIFY2(!Qt::mightBeRichText(status.toolTip()), qPrintable(status.toolTip()));
    QCOMPARE(status.textFormat(), Qt::PlainText);
    QVERIFY(PlainToolTip("<b>Office</b>").contains("&lt;b&gt;"));
    QCOMPARE(PlainToolTip("Office"), "Office");
}

void PrinterListTest::namesAreOnOneLine() {
    const OpenPreview open(1, [](OpenPreview& desk) {
        desk.Server.Printers = {{"Of\nfice", "ipp://host/a%0Ab", "Laser\r\n600"}};
    });
    QCOMPARE(Names(ListOf(open)), QStringList({"Of fice", "Print to PDF"}));
    QCOMPARE(open.LabelText("lblStatus"), "DPI: not known\nPort: ipp://host/a b\nDriver: Laser  600");
}

QTEST_MAIN(PrinterListTest)
#include "PrinterListTest.moc"
