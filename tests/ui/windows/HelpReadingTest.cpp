#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>
#include <set>

#include "HelpDesk.h"

using namespace Ledgrove;

class HelpReadingTest : public QObject {
    Q_OBJECT

private slots:
    void topicIsScrolledTo();
    void caretIsAtWhatIsShown();
    void aMinimisedHelpComesBack();
    void unknownTopicIsReportedAndShowsTheStart();
    void backForwardAndContents();
    void linksWithinTheHelpAreFollowed();
    void linksOutsideTheHelpAreNotOpened();
    void otherFilesAreNotRead();
    void escapeLeavesTheSearchThenTheWindow();
    void controlWCloses();
    void zoomByKeysAndWheel();
    void zoomKeepsThePlace();
    void printsThroughTheWindowBelow();
    void withoutPrinterTheButtonIsDisabled();
    void namesAreWords();
    void mnemonicsAndNames();
    void tabOrder();
    void fitsASmallScreen();
    void darkPaletteStaysReadable();
    void shippedHelpShowsEveryTopic();
};

void HelpReadingTest::topicIsScrolledTo() {
    OpenHelp<> open("top");
    QCOMPARE(open.TopLine(), "Contents");
    open.Open("ctx504");
    QCOMPARE(open.TopLine(), "Cash topic");
    QVERIFY(open.Text().hasFocus());
    QCOMPARE(open.Status(), "");
}

void HelpReadingTest::caretIsAtWhatIsShown() {
    OpenHelp<> open("ctx504");
    const auto caretLine = [&open] { return open.Text().textCursor().block().text(); };
    QCOMPARE(caretLine(), "Cash topic");
    QVERIFY(open.Text().textCursor().atBlockStart());
    open.Click("#ctx501");
    QCOMPARE(caretLine(), "Welcome topic");
    QCOMPARE(open.TopLine(), "Welcome topic");
    open.Press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(caretLine(), "Cash topic");
    open.Press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(caretLine(), "Welcome topic");
    open.Press(Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(open.Text().textCursor().position(), 0);
    open.Open("ctx504");
    open.Open("ctxHouses");
    QCOMPARE(open.Text().textCursor().position(), 0);
}

void HelpReadingTest::unknownTopicIsReportedAndShowsTheStart() {
    OpenHelp<> open("ctx504");
    open.Open("ctxHouses");
    QCOMPARE(open.Text().verticalScrollBar()->value(), 0);
    QVERIFY(open.Status().contains("no topic"));
}

void HelpReadingTest::backForwardAndContents() {
    OpenHelp<> open("ctx501");
    QVERIFY(!open.Find("bBack").isEnabled());
    open.Open("ctx504");
    QVERIFY(!open.Find("bForward").isEnabled());
    open.Press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(open.Topic(), "ctx501");
    QVERIFY(open.Find("bForward").isEnabled());
    ClickAt(open.Find("bForward"));
    QCOMPARE(open.Topic(), "ctx504");
    // The pressed button is now disabled, so the focus must be on the text.
    QVERIFY(open.Text().hasFocus());
    ClickAt(open.Find("bContents"));
    QCOMPARE(open.Text().verticalScrollBar()->value(), 0);
    ClickAt(open.Find("bBack"));
    QCOMPARE(open.Topic(), "ctx504");
    open.Press(Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(open.Text().verticalScrollBar()->value(), 0);
    open.Press(Qt::Key_Left, Qt::AltModifier);
    open.Press(Qt::Key_Left, Qt::AltModifier);
    open.Press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(open.Topic(), "ctx504");
}

void HelpReadingTest::linksWithinTheHelpAreFollowed() {
    OpenHelp<> open("top");
    open.Press(Qt::Key_Tab); // the first link
    open.Press(Qt::Key_Return);
    QCOMPARE(open.Topic(), "ctx504");
    QCOMPARE(open.TopLine(), "Cash topic");
}

void HelpReadingTest::linksOutsideTheHelpAreNotOpened() {
    OpenHelp<> open("ctx501");
    for (const char* link :
         {"http://example.invalid/", "file:///etc/passwd", "other.html#ctx501", "mailto:x@y"}) {
        open.Click(link);
        QCOMPARE(open.Topic(), "ctx501");
        QVERIFY(open.Text().toPlainText().contains("Welcome topic"));
        QVERIFY2(open.Status().startsWith("Not opened, because it is outside the help: "), link);
    }
    open.Click("#ctx504");
    QCOMPARE(open.Status(), "");
}

void HelpReadingTest::otherFilesAreNotRead() {
    OpenHelp<> open;
    WriteHelpFile(open.Folder, "secret", "other.txt");
    WriteHelpFile(open.Folder,
                  "<html><head><link rel=\"stylesheet\" href=\"file:///dev/zero\"/></head><body><p>Before</p>"
                  "<img src=\"file:///dev/zero\"/><img src=\"other.txt\"/><p>Behind</p></body></html>",
                  "pictures.html");
    open.Window->ShowTopic(open.Folder.filePath("pictures.html"), "x"); // reading the device would never end
    QVERIFY(open.Text().toPlainText().contains("Behind"));
    const QUrl other = QUrl::fromLocalFile(open.Folder.filePath("other.txt"));
    QVERIFY(!open.Text().loadResource(QTextDocument::HtmlResource, other).isValid());
}

void HelpReadingTest::aMinimisedHelpComesBack() {
    OpenHelp<> open("top");
    open.Window->showMinimized();
    open.Window->ShowTopic(open.Folder.filePath("LEDGROVE.HLP"), "top");
    QVERIFY(!open.Window->isMinimized());
}

void HelpReadingTest::escapeLeavesTheSearchThenTheWindow() {
    OpenHelp<> open("top");
    open.Seek("grove");
    open.Press(Qt::Key_Escape);
    QVERIFY(open.Window->isVisible());
    QCOMPARE(open.FieldText("ecFind"), "");
    QCOMPARE(open.Found(), "");
    QVERIFY(open.Text().extraSelections().isEmpty());
    QVERIFY(open.Text().hasFocus());
    open.Press(Qt::Key_Escape);
    QVERIFY(!open.Window->isVisible());
}

void HelpReadingTest::controlWCloses() {
    OpenHelp<> open("top");
    open.Seek("grove");
    open.Press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!open.Window->isVisible());
}

void HelpReadingTest::zoomByKeysAndWheel() {
    OpenHelp<> open("top");
    const qreal usual = open.Text().font().pointSizeF();
    open.Press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(open.Text().font().pointSizeF(), usual * 1.1);
    QCOMPARE(open.Status(), "Zoom 110 %");
    open.Press(Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(open.Status(), "Zoom 125 %");
    open.Press(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(open.Text().font().pointSizeF(), usual);
    open.Press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(open.Status(), "Zoom 90 %");
    QWheelEvent wheel({9, 9}, open.Text().mapToGlobal(QPointF(9, 9)), {}, {0, 120}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(open.Text().viewport(), &wheel);
    QCOMPARE(open.Status(), "Zoom 100 %");
    for (int i = 0; i < 30; ++i)
        open.Press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(open.Status(), "Zoom 50 %");
    for (int i = 0; i < 30; ++i)
        open.Press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(open.Status(), "Zoom 300 %");
}

void HelpReadingTest::zoomKeepsThePlace() {
    OpenHelp<> open("ctx504");
    for (int i = 0; i < 3; ++i)
        open.Press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(open.TopLine(), "Cash topic");
}

void HelpReadingTest::printsThroughTheWindowBelow() {
    OpenHelp<PrintingWindow> open("top");
    QVERIFY(open.Find("bPrintHelp").isEnabled());
    ClickAt(open.Find("bPrintHelp"));
    open.Press(Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(open.Below.Printed.size(), 2);
    QVERIFY(open.Below.Printed.first().contains("Welcome topic"));
    QCOMPARE(open.Below.Above, open.Window);

    // A dialog between them prints through the window that owns it.
    QWidget dialog(&open.Below, Qt::Dialog);
    HelpWindow above(&dialog);
    above.ShowTopic(open.Folder.filePath("LEDGROVE.HLP"), "top");
    above.findChild<QPushButton*>("bPrintHelp")->click();
    QCOMPARE(open.Below.Printed.size(), 3);
    QCOMPARE(open.Below.Above, &above);
}

void HelpReadingTest::withoutPrinterTheButtonIsDisabled() {
    OpenHelp<> open("top");
    QVERIFY(!open.Find("bPrintHelp").isEnabled());
    open.Press(Qt::Key_P, Qt::ControlModifier); // and its shortcut does nothing
}

void HelpReadingTest::namesAreWords() {
    OpenHelp<> open;
    QCOMPARE(SpokenCodeNames(*open.Window), QStringList());
    open.Seek("grove");
    QCOMPARE(SpokenCodeNames(*open.Window), QStringList());
}

void HelpReadingTest::mnemonicsAndNames() {
    OpenHelp<> open("top");
    std::set<QChar> letters;
    for (const QString& text : MnemonicTexts(*open.Window)) {
        const QChar letter = MnemonicOf(text);
        QVERIFY2(letter.isNull() || letters.insert(letter).second, qPrintable(text));
    }
    QCOMPARE(letters.size(), std::size_t(7));
    for (QWidget* widget : open.Window->findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus && !widget->objectName().startsWith("qt_"))
            QVERIFY2(!SpokenName(*widget).isEmpty(), qPrintable(widget->objectName()));
    }
    open.Press(Qt::Key_I, Qt::AltModifier);
    QCOMPARE(open.Focused(), "ecFind");
}

void HelpReadingTest::tabOrder() {
    OpenHelp<PrintingWindow> open("ctx501");
    open.Open("ctx504");
    open.Open("ctx501");
    open.Press(Qt::Key_Left, Qt::AltModifier);
    open.Seek("grove");
    const QStringList expected = {"bBack",  "bForward",      "bContents", "bPrintHelp",
                                  "ecFind", "bFindPrevious", "bFindNext", "HelpText"};
    QCOMPARE(open.TabWalk("bBack", expected.size()), expected);
}

void HelpReadingTest::fitsASmallScreen() {
    OpenHelp<> open("top");
    const QSize available = open.Window->screen()->availableSize();
    QVERIFY(open.Window->width() <= available.width() && open.Window->height() <= available.height());
    // 1366x768 at 200 %
    open.Window->resize(683, 384);
    QCOMPARE(open.Window->size(), QSize(683, 384));
    QVERIFY(open.Text().viewport()->height() >= open.Text().fontMetrics().lineSpacing() * 8);
    QVERIFY(open.Window->minimumSizeHint().width() <= 683);
}

void HelpReadingTest::darkPaletteStaysReadable() {
    OpenHelp<> open("top");
    open.Open("ctx504");
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Link, QColor(0x80, 0xc0, 0xff));
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    const QTextCursor link = open.Text().document()->find("the cash topic");
    const QColor shown = link.charFormat().foreground().color();
    const QString place = open.TopLine();
    const QColor paper = open.Text().viewport()->palette().color(QPalette::Base);
    const QColor ink = open.Text().palette().color(QPalette::Text);
    QApplication::setPalette(before);
    QCOMPARE(shown, QColor(0x80, 0xc0, 0xff));
    QCOMPARE(place, "Cash topic");
    QVERIFY(ink.lightness() > paper.lightness() + 100);
}

void HelpReadingTest::shippedHelpShowsEveryTopic() {
    QWidget below;
    HelpWindow window(&below);
    const QString folder = LEDGROVE_SOURCE_DIR "/data";
    QVERIFY(!HelpComplaint(folder.toStdString(), "LEDGROVE.HLP"));
    for (const char* topic : {"ctx501", "ctx504", "ctx505", "ctx506", "ctx507", "ctxHouses", "ctxAssumptions",
                              "ctxOptions", "ctxReportSelection", "ctxPrintOptions", "ctxPrint"}) {
        window.ShowTopic(folder + "/LEDGROVE.HLP", topic);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY2(!window.findChild<QLabel*>("lblHelpStatus")->isVisible(), topic);
        auto& text = *window.findChild<QTextBrowser*>();
        const QTextBlock top = text.cursorForPosition({0, 0}).block();
        QVERIFY2(top.blockFormat().headingLevel() == 2 ||
                     text.verticalScrollBar()->value() == text.verticalScrollBar()->maximum(),
                 topic);
    }
}

QTEST_MAIN(HelpReadingTest)
#include "HelpReadingTest.moc"
