#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "PrintDesk.h"
#include "reports/windows/PageView.h"
#include "reports/windows/PreviewPane.h"

using namespace Ledgrove;

namespace {

constexpr Twips letterWidth = 12240;
constexpr Twips letterHeight = 15840;

PageView& ViewOf(const OpenPreview& open) {
    return *open.Window->findChild<PageView*>();
}

/// The pick list's items, in order.
QStringList Items(const QComboBox& list) {
    QStringList items;
    for (int i = 0; i < list.count(); ++i)
        items += list.itemText(i);
    return items;
}

} // namespace

class PreviewWindowTest : public QObject {
    Q_OBJECT

private slots:
    void loadingComposesTheReportOnce();
    void documentIsPreparedForTheReport();
    void pickListsAreInTheirOrder();
    void activationZoomsToSixtyPercent();
    void zoomChangesTheSizeOfTheSheet();
    void doubleClicksAndKeysZoomAlongTheList();
    void leftButtonDragsTheSheet();
    void onePageHidesThePageButton();
    void pageButtonAlternatesBetweenTheFirstTwoPages();
    void ownNavigationReachesAllPages();
    void ownNavigationCanBeHidden();
    void recomposingKeepsTheChosenPageIfItExists();
    void orientationRecomposes();
    void orientationWhileFillingThePickListsDoesNotRecompose();
    void defaultPrinterIsChosen();
    void withoutPrintersThereIsOnlyPdf();
    void printerShowsItsDetails();
    void printersPaperIsTheSheet();
    void traceShowsEachStep();
    void loadingEndsTheTrace();
    void closeAndEscapeClose();
    void namesAreWords();
    void mnemonicsAndTabOrder();
    void screenReaderReadsThePage();
    void screenReaderReadsARowAsALine();
};

void PreviewWindowTest::loadingComposesTheReportOnce() {
    OpenPreview open(3);
    QCOMPARE(open.Compositions, 1);
    QCOMPARE(open.Window->windowTitle(), "Summary Report");
    QVERIFY(open.Window->isModal());
    QVERIFY(open.Window->Document().CurrentState() == PrintDocument::State::Ended);
    QCOMPARE(open.Window->Document().PageCount(), std::size_t(3));
    QCOMPARE(open.Place(), "Page 1 of 3");
    for (const char* control : {"cboZoom", "cboOrientation", "cmdPrint"})
        QVERIFY2(open.Find(control).isEnabled(), control);
    QVERIFY(open.Outside.Messages.empty());
}

void PreviewWindowTest::documentIsPreparedForTheReport() {
    const OpenPreview open;
    const PrintDocument& document = open.Window->Document();
    QCOMPARE(document.FontName, std::string("Arial"));
    QCOMPARE(document.FontSize, 20);
    QVERIFY(!document.FontBold && !document.FontItalic);
    for (const Twips margin : {document.Geometry.MarginLeft, document.Geometry.MarginRight,
                               document.Geometry.MarginTop, document.Geometry.MarginBottom})
        QCOMPARE(margin, 720);
    QCOMPARE(document.Footer, std::string("Printed on 11/20/2026||Page %d"));
    QCOMPARE(document.FooterFont.FontName, std::string("Arial"));
    QCOMPARE(document.FooterFont.FontSize, 8);
    QCOMPARE(document.Title, std::string("Summary Report"));
}

void PreviewWindowTest::pickListsAreInTheirOrder() {
    const OpenPreview open;
    QCOMPARE(Items(open.Find<QComboBox>("cboZoom")),
             QStringList({"25", "50", "60", "65", "75", "100", "125"}));
    QCOMPARE(Items(open.Find<QComboBox>("cboOrientation")), QStringList({"Portrait", "Landscape"}));
    QCOMPARE(open.Chosen("cboOrientation"), "Portrait");
    QCOMPARE(open.FieldText("txtCopies"), "1");
    QCOMPARE(open.LabelText("Label1").remove('&'), "Zoom");
    QCOMPARE(open.LabelText("lblCopies").remove('&'), "Copies");
}

void PreviewWindowTest::activationZoomsToSixtyPercent() {
    OpenPreview open;
    QCOMPARE(open.Chosen("cboZoom"), "60");
    open.Choose("cboZoom", 5);
    open.Window->hide();
    open.Window->show();
    QCOMPARE(open.Chosen("cboZoom"), "60");
}

void PreviewWindowTest::zoomChangesTheSizeOfTheSheet() {
    OpenPreview open;
    PageView& view = ViewOf(open);
    view.setFixedSize(300, 200);
    QCoreApplication::processEvents();
    const auto deskHeight = [&view] {
        return view.verticalScrollBar()->maximum() + view.verticalScrollBar()->pageStep();
    };
    const int atSixty = deskHeight();
    open.Choose("cboZoom", 6);
    // 125 % minus 60 % of 11 inches; the margins of the desk do not grow
    QCOMPARE(deskHeight() - atSixty,
             qRound(11 * 1.25 * view.logicalDpiY()) - qRound(11 * 0.6 * view.logicalDpiY()));
}

void PreviewWindowTest::doubleClicksAndKeysZoomAlongTheList() {
    OpenPreview open;
    QWidget* sheet = ViewOf(open).viewport();
    QTest::mouseDClick(sheet, Qt::LeftButton);
    QCOMPARE(open.Chosen("cboZoom"), "65");
    QTest::mouseDClick(sheet, Qt::RightButton);
    QTest::mouseDClick(sheet, Qt::RightButton);
    QCOMPARE(open.Chosen("cboZoom"), "50");
    open.Press(Qt::Key_Plus, Qt::ControlModifier);
    open.Press(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    open.Press(Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(open.Chosen("cboZoom"), "75");
    for (int i = 0; i < 9; ++i)
        open.Press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(open.Chosen("cboZoom"), "25");
    QCOMPARE(open.Window->findChild<PreviewPane*>("vsPrinter")->toolTip(),
             "Hold down left mouse to drag report within window. Left double-click to enlarge. Right "
             "double-click to reduce.");
}

void PreviewWindowTest::leftButtonDragsTheSheet() {
    OpenPreview open;
    open.Choose("cboZoom", 6);
    PageView& view = ViewOf(open);
    view.setFixedSize(300, 200);
    QCoreApplication::processEvents();
    view.verticalScrollBar()->setValue(100);
    view.horizontalScrollBar()->setValue(50);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, {80, 80});
    QTest::mouseMove(view.viewport(), {90, 50});
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, {90, 50});
    // The mouse moved 10 to the right and 30 up, and the sheet moved with it.
    QCOMPARE(view.horizontalScrollBar()->value(), 40);
    QCOMPARE(view.verticalScrollBar()->value(), 130);
    QTest::mouseMove(view.viewport(), {20, 20});
    QCOMPARE(view.verticalScrollBar()->value(), 130);
}

void PreviewWindowTest::onePageHidesThePageButton() {
    const OpenPreview one(1);
    QVERIFY(!one.IsShown("bChgPage"));
    const OpenPreview two(2);
    QVERIFY(two.IsShown("bChgPage"));
    QCOMPARE(two.Find("bChgPage").accessibleName(), "Page 2");
}

void PreviewWindowTest::pageButtonAlternatesBetweenTheFirstTwoPages() {
    OpenPreview open(3);
    auto& button = open.Find<QPushButton>("bChgPage");
    for (int round = 0; round < 2; ++round) {
        button.click();
        QCOMPARE(open.Place(), "Page 2 of 3");
        QCOMPARE(button.text().remove('&'), "Page 1");
        button.click();
        QCOMPARE(open.Place(), "Page 1 of 3");
        QCOMPARE(button.text().remove('&'), "Page 2");
    }
    open.Press(Qt::Key_End);
    QCOMPARE(open.Place(), "Page 3 of 3");
    button.click();
    QCOMPARE(open.Place(), "Page 1 of 3");
}

void PreviewWindowTest::ownNavigationReachesAllPages() {
    OpenPreview open(3);
    const std::pair<Qt::Key, const char*> keys[] = {
        {Qt::Key_PageDown, "Page 2 of 3"}, {Qt::Key_PageDown, "Page 3 of 3"},
        {Qt::Key_PageDown, "Page 3 of 3"}, {Qt::Key_PageUp, "Page 2 of 3"},
        {Qt::Key_Home, "Page 1 of 3"},     {Qt::Key_PageUp, "Page 1 of 3"},
        {Qt::Key_End, "Page 3 of 3"}};
    for (const auto& [key, place] : keys) {
        open.Press(key);
        QCOMPARE(open.Place(), place);
    }
    QVERIFY(!open.Find("bNextPage").isEnabled());
    ClickAt(open.Find("bPreviousPage"));
    ClickAt(open.Find("bPreviousPage"));
    QCOMPARE(open.Place(), "Page 1 of 3");
    QVERIFY(!open.Find("bPreviousPage").isEnabled());
    ClickAt(open.Find("bNextPage"));
    QCOMPARE(open.Place(), "Page 2 of 3");
}

void PreviewWindowTest::ownNavigationCanBeHidden() {
    OpenPreview open(2);
    auto& pane = open.Find<PreviewPane>("vsPrinter");
    pane.ShowNavigation(false);
    QVERIFY(!open.IsShown("bNextPage"));
    pane.ShowNavigation(true);
    QVERIFY(open.IsShown("bNextPage"));
}

void PreviewWindowTest::recomposingKeepsTheChosenPageIfItExists() {
    OpenPreview open(3);
    open.Press(Qt::Key_End);
    open.Window->RefreshPrintView();
    QCOMPARE(open.Place(), "Page 3 of 3");
    open.Pages = 2;
    open.Window->RefreshPrintView();
    QCOMPARE(open.Place(), "Page 2 of 2");
    open.Pages = 1;
    open.Window->RefreshPrintView();
    QCOMPARE(open.Place(), "Page 1 of 1");
    QVERIFY(!open.IsShown("bChgPage"));
}

void PreviewWindowTest::orientationRecomposes() {
    OpenPreview open;
    QCOMPARE(open.LabelText("lblSize"), "8.5x11.0");
    open.Choose("cboZoom", 3);
    open.Choose("cboOrientation", 1);
    QCOMPARE(open.Compositions, 2);
    QCOMPARE(open.LabelText("lblSize"), "11.0x8.5");
    QCOMPARE(open.Window->Document().Geometry.PageWidth, letterHeight);
    QCOMPARE(open.Window->Document().Geometry.PageHeight, letterWidth);
    QCOMPARE(open.Chosen("cboZoom"), "65");
    open.Choose("cboOrientation", 0);
    QCOMPARE(open.Compositions, 3);
    QCOMPARE(open.LabelText("lblSize"), "8.5x11.0");
}

void PreviewWindowTest::orientationWhileFillingThePickListsDoesNotRecompose() {
    OpenPreview open;
    open.Choose("cboOrientation", 1);
    const int before = open.Compositions;
    open.Window->Load(); // loading fills the list again and resets the orientation
    QCOMPARE(open.Compositions, before + 1);
    QCOMPARE(open.Chosen("cboOrientation"), "Portrait");
    QCOMPARE(open.Window->Document().Geometry.PageWidth, letterWidth);
}

void PreviewWindowTest::defaultPrinterIsChosen() {
    const OpenPreview open(1, [](OpenPreview& desk) { desk.AddPrinters(); });
    QCOMPARE(Items(open.Find<QComboBox>("cboPrinter")), QStringList({"Lab", "Office", "Print to PDF"}));
    QCOMPARE(open.Chosen("cboPrinter"), "Office");
    QCOMPARE(open.LabelText("lblStatus"), "DPI:  600\nPort: ipp://printserver/office\nDriver: Laser 600");
}

void PreviewWindowTest::withoutPrintersThereIsOnlyPdf() {
    const OpenPreview open;
    QCOMPARE(Items(open.Find<QComboBox>("cboPrinter")), QStringList{"Print to PDF"});
    QCOMPARE(open.LabelText("lblStatus"), "DPI:  1440\nPort: FILE:\nDriver: Ledgrove PDF");
}

void PreviewWindowTest::printerShowsItsDetails() {
    OpenPreview open(1, [](OpenPreview& desk) { desk.AddPrinters(); });
    open.Choose("cboPrinter", 0);
    QCOMPARE(open.LabelText("lblStatus"), "DPI: not known\nPort: socket://lab\nDriver: Generic PCL");
    QCOMPARE(open.Compositions, 1); // the paper is the same, so it does not compose again
    open.Window->LoadPrinters();
    QCOMPARE(open.Chosen("cboPrinter"), "Lab");
}

void PreviewWindowTest::printersPaperIsTheSheet() {
    OpenPreview open(1, [](OpenPreview& desk) {
        desk.AddPrinters();
        desk.Server.Known["Lab"].DefaultPaper = Paper{"iso_a4_210x297mm", 11906, 16838};
    });
    open.Choose("cboPrinter", 0);
    QCOMPARE(open.Compositions, 2);
    QCOMPARE(open.LabelText("lblSize"), "8.3x11.7"); // 210 mm x 297 mm
    QCOMPARE(open.Window->Document().Geometry.PageHeight, 16838);
    open.Choose("cboPrinter", 2);
    QCOMPARE(open.LabelText("lblSize"), "8.5x11.0");
}

void PreviewWindowTest::traceShowsEachStep() {
    OpenPreview open;
    open.Window->SetTrace(true);
    open.Window->InitPicklists();
    // Filling the orientation list also composes, except while the window loads.
    const std::vector<std::string> filling = open.Outside.TakeTexts();
    QCOMPARE(filling.front(), std::string("In InitPicklists Load"));
    open.Window->LoadPrinters();
    QCOMPARE(open.Outside.TakeTexts(),
             (std::vector<std::string>{"In LoadPrinters", "In LoadPrinters - after with vsprinter"}));
    open.Window->InitvsPrinter();
    QCOMPARE(open.Outside.TakeTexts(),
             (std::vector<std::string>{"In InitvsPrinter", "Just did With vsPrinter ..",
                                       " Just did .FontItalic ..", "Just did PenStyle.."}));
    open.Window->RefreshPrintView();
    QCOMPARE(open.Outside.Messages.front().Title, std::string("Ledgrove"));
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"In RefreshPrintView"});
}

void PreviewWindowTest::loadingEndsTheTrace() {
    OpenPreview open;
    open.Window->SetTrace(true);
    open.Window->Load();
    open.Choose("cboOrientation", 1);
    QVERIFY(open.Outside.Messages.empty());
}

void PreviewWindowTest::closeAndEscapeClose() {
    OpenPreview open;
    ClickAt(open.Find("cmdClose"));
    QVERIFY(!open.Window->isVisible());
    open.Window->show();
    QVERIFY(QTest::qWaitForWindowActive(open.Window.get()));
    open.Press(Qt::Key_Escape);
    QVERIFY(!open.Window->isVisible());
    QVERIFY(open.Server.Jobs.empty());
}

void PreviewWindowTest::namesAreWords() {
    OpenPreview open(3);
    QCOMPARE(SpokenCodeNames(*open.Window), QStringList());
}

void PreviewWindowTest::mnemonicsAndTabOrder() {
    OpenPreview open(3);
    QCOMPARE(Mnemonics(*open.Window), "CGIMOPRZ");
    open.Press(Qt::Key_PageDown); // on page 2, both page buttons are enabled
    const QStringList expected = {"cboPrinter", "cboOrientation", "",         "bPreviousPage",
                                  "bNextPage",  "cboZoom",        "bChgPage", "bMaxMin",
                                  "txtCopies",  "cmdPrint",       "cmdClose", "cboPrinter"};
    QCOMPARE(open.TabWalk("cboPrinter", expected.size()), expected);
    open.Press(Qt::Key_I, Qt::AltModifier);
    QCOMPARE(open.Focused(), "txtCopies");
    QVERIFY(open.Find<QLineEdit>("txtCopies").hasSelectedText());
}

void PreviewWindowTest::screenReaderReadsThePage() {
    OpenPreview open(2);
    open.Press(Qt::Key_PageDown);
    QCOMPARE(ViewOf(open).accessibleName(), "Report Preview, page 2 of 2");
    QVERIFY(ViewOf(open).accessibleDescription().contains("Sheet 2"));
    QVERIFY(!ViewOf(open).accessibleDescription().contains("Sheet 1"));
    QCOMPARE(SpokenName(open.Find("txtCopies")), "Copies");
}

void PreviewWindowTest::screenReaderReadsARowAsALine() {
    const FontMeasure measure;
    PrintDocument document(measure);
    document.FontSize = 9;
    document.Start();
    document.BeginTable();
    const Twips line = document.CurrentY;
    document.AddTable("2000|2000|2000|2000;", "", "Income||Down Payment|;Debt");
    document.CurrentY = line;
    document.AddTable("2000|2000|2000|2000;", "", "|$72,000||10%;|$350");
    document.EndTable();
    document.End();
    PageView view(document);
    view.ShowPage(1);
    QCOMPARE(view.accessibleDescription(), "Income $72,000 Down Payment 10%\nDebt $350");
}

QTEST_MAIN(PreviewWindowTest)
#include "PreviewWindowTest.moc"
