#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenuBar>
#include <QPushButton>

#include "ChangesDesk.h"
#include "reports/windows/ChangesPrint.h"
#include "tests/reports/windows/PrintDesk.h"
#include "ui/windows/insight/AnswerPicture.h"

using namespace Ledgrove;

namespace {

/// The window with a version of a price that is $2,000 higher and an income that is $10,000 higher.
struct ChangedDesk : ChangesDesk {
    ChangedDesk() {
        Keep("First");
        Open.Enter("ecGMHHome", "204000");
        Open.Enter("ecIncome", "62000");
        Show();
    }

    void ChooseCopy(int item) { Find<QPushButton>("bCopy").menu()->actions()[item]->trigger(); }
};

QStringList CopiedLines() {
    return QGuiApplication::clipboard()->text().split('\n');
}

} // namespace

/// How the window is used: keys, screen readers, the clipboard, files and paper.
class ChangesUseTest : public QObject {
    Q_OBJECT

private slots:
    void keysCloseAndHelp();
    void noTwoControlsHaveTheSameKey();
    void everyControlHasANameInWords();
    void tabGoesFromTopToBottom();
    void tablesAreSpokenWithRowAndColumn();
    void numbersAreSortedAsNumbers();
    void theAnswerIsCopied();
    void thePictureIsSaved();
    void theAnswerIsPreviewedAndPrinted();
    void theCommandAcceptsTheEntryFirst();
    void theCommandIsOffWithoutTheWindow();
};

void ChangesUseTest::keysCloseAndHelp() {
    ChangedDesk desk;
    QTest::keyClick(desk.Window.get(), Qt::Key_F1);
    QCOMPARE(desk.Helps, 1);
    desk.Find<QPushButton>("bHelp").click();
    QCOMPARE(desk.Helps, 2);
    QTest::keyClick(desk.Window.get(), Qt::Key_Escape);
    QVERIFY(!desk.Window->isVisible());
    desk.Show();
    desk.Find<QPushButton>("bClose").click();
    QVERIFY(!desk.Window->isVisible());
}

void ChangesUseTest::noTwoControlsHaveTheSameKey() {
    ChangedDesk desk;
    // Two lists, three tables and eight buttons.
    QCOMPARE(Mnemonics(*desk.Window), "ACFGHILOPRSTW");
}

void ChangesUseTest::everyControlHasANameInWords() {
    ChangedDesk desk;
    QCOMPARE(desk.Find<QComboBox>("cboFrom").accessibleDescription(), "From, a comparison");
    QCOMPARE(desk.Find<QComboBox>("cboTo").accessibleDescription(), "To, a comparison");
    QCOMPARE(desk.Find<QPushButton>("bFromFile").accessibleName(), "Other file for From");
    QCOMPARE(desk.Find<QPushButton>("bToFile").accessibleName(), "Other file for To");
    QCOMPARE(desk.Find<SheetView>("InputTable").accessibleName(), "Inputs that differ");
    QCOMPARE(desk.Find<SheetView>("FigureTable").accessibleName(), "Figures that moved");
    QCOMPARE(SpokenCodeNames(*desk.Window), QStringList());
    const auto& picture = desk.Find<AnswerPicture>("AnswerPicture");
    QCOMPARE(picture.accessibleName(), "What Changes the Net Monthly Cash Flow with Tax Savings");
    QVERIFY(picture.accessibleDescription().contains("From First: $"));
    QVERIFY(picture.accessibleDescription().contains("To the screen: $"));
}

void ChangesUseTest::tabGoesFromTopToBottom() {
    ChangedDesk desk;
    desk.Window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.Window.get()));
    const FormDriver form{desk.Window.get()};
    QCOMPARE(
        form.TabWalk("cboFrom", 14),
        (QStringList{"cboFrom", "bFromFile", "cboTo", "bToFile", "bSwap", "InputTable", "FigureTable",
                     "AnswerPicture", "PartTable", "bPrint", "bCopy", "bSavePicture", "bHelp", "bClose"}));
}

void ChangesUseTest::tablesAreSpokenWithRowAndColumn() {
    ChangedDesk desk;
    const int row = desk.RowOf("InputTable", "Annual Income");
    QCOMPARE(desk.Table("InputTable").index(row, 2).data(Qt::AccessibleTextRole).toString(),
             "Annual Income, To: $62,000");
    QCOMPARE(desk.Table("PartTable").index(1, 0).data(Qt::AccessibleTextRole).toString(),
             "Annual Income, does not move the result");
}

void ChangesUseTest::numbersAreSortedAsNumbers() {
    ChangedDesk desk;
    auto& figures = desk.Find<SheetView>("FigureTable");
    figures.sortByColumn(1, Qt::AscendingOrder);
    double last = -1e9;
    bool hasWords = false;
    for (int row = 0; row < desk.Table("FigureTable").rowCount(); ++row) {
        bool isNumber = false;
        const double number = desk.Cell("FigureTable", row, 1).remove('$').remove(',').toDouble(&isNumber);
        QVERIFY2(!isNumber || (!hasWords && number >= last), qPrintable(desk.Cell("FigureTable", row, 1)));
        hasWords = hasWords || !isNumber;
        last = isNumber ? number : last;
    }
    QVERIFY(last > 100'000);
    QVERIFY(hasWords);
    // The chosen figure goes with its row.
    const int row = desk.RowOf("FigureTable", "Monthly Utility Bills, GREENMARK Home");
    QCOMPARE(row, -1);
    const int mortgage = desk.RowOf("FigureTable", "Mortgage Amount, GREENMARK Home");
    figures.setCurrentIndex(desk.Table("FigureTable").index(mortgage, 1));
    QCOMPARE(desk.Find<AnswerPicture>("AnswerPicture").Shown().Title,
             "What Changes the Mortgage Amount, GREENMARK Home");
}

void ChangesUseTest::theAnswerIsCopied() {
    ChangedDesk desk;
    desk.ChooseCopy(0);
    QStringList lines = CopiedLines();
    QCOMPARE(lines.first(), desk.Sentence());
    for (const char* title : {"Inputs that differ", "Figures that moved", "Parts of the change"})
        QVERIFY2(lines.contains(title), title);
    QVERIFY(
        QGuiApplication::clipboard()->text().contains("Sticker Price, GREENMARK Home  $206,000  $204,000"));
    desk.ChooseCopy(1);
    lines = CopiedLines();
    QVERIFY(lines.contains("Sticker Price, GREENMARK Home\t206000\t204000"));
    // 90 % of both prices, as numbers.
    QVERIFY(lines.contains("Mortgage Amount, GREENMARK Home\t185400\t183600\t-1800"));
}

void ChangesUseTest::thePictureIsSaved() {
    ChangedDesk desk;
    desk.Open.NameToGive = desk.Open.PathOf("net.svg");
    desk.Find<QPushButton>("bSavePicture").click();
    QVERIFY(desk.Open.Asked.Start.endsWith("/what-changes-the-net-monthly-cash-flow-with-tax-savings.png"));
    const QByteArray svg = Ledgrove::BytesOf(desk.Open.NameToGive);
    QVERIFY(svg.contains("From First"));
    QVERIFY(svg.contains("To the screen"));
    desk.Open.NameToGive = desk.Open.PathOf("net.png");
    desk.Find<QPushButton>("bSavePicture").click();
    QVERIFY(Ledgrove::BytesOf(desk.Open.NameToGive).startsWith("\x89PNG"));
}

void ChangesUseTest::theAnswerIsPreviewedAndPrinted() {
    ChangedDesk desk;
    desk.Find<QPushButton>("bPrint").click();
    PrintDesk paper;
    paper.AddPrinters();
    QStringList sections;
    QString title;
    const bool opened = WhileOpen(
        "frmPrint",
        [&] { PreviewChanges(paper.State, paper.Outside, paper.Machine, desk.Printed, desk.Window.get()); },
        [&](QWidget& window) {
            auto& preview = static_cast<frmPrint&>(window);
            title = preview.windowTitle();
            for (const Bookmark& bookmark : preview.Document().Bookmarks())
                sections += QString::fromStdString(bookmark.Title);
            preview.findChild<QPushButton*>("cmdPrint")->click();
            preview.reject();
        });
    QVERIFY(opened);
    QCOMPARE(title, "What changed?");
    QCOMPARE(sections, (QStringList{"Inputs that differ", "Figures that moved",
                                    "Parts of the change: Net Monthly Cash Flow with Tax Savings"}));
    QCOMPARE(paper.Server.Jobs.size(), std::size_t{1});
    const QString text = PdfText(paper.Server.Jobs.front().Pdf);
    QVERIFY2(text.contains("$204,000"), qPrintable(text));
    // The picture's words are text, so it is drawn as vectors.
    QVERIFY2(text.contains("What Changes the Net Monthly Cash Flow"), qPrintable(text));
}

void ChangesUseTest::theCommandAcceptsTheEntryFirst() {
    OpenDesktop open;
    int opened = 0;
    ExportContext context = open.Context();
    context.Compare = [&opened] { ++opened; };
    open.Window->menuBar()->clear();
    BuildMainMenu(*open.File, context);
    open.Type("ecIncome", "abc");
    open.Press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(opened, 0);
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"You must enter a number here."});
    open.Type("ecIncome", "72000");
    open.Press(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(opened, 1);
    QCOMPARE(open.State.Screen.ecIncome.Text, std::string("$72,000"));
}

void ChangesUseTest::theCommandIsOffWithoutTheWindow() {
    OpenDesktop open;
    const auto actions = open.Window->findChildren<QAction*>();
    const auto found = std::ranges::find_if(
        actions, [](const QAction* action) { return action->text() == "Compare &With…"; });
    QVERIFY(found != actions.end());
    QVERIFY(!(*found)->isEnabled());
    QCOMPARE((*found)->shortcut(), QKeySequence("Ctrl+D"));
}

QTEST_MAIN(ChangesUseTest)
#include "ChangesUseTest.moc"
