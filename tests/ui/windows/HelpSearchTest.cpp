#include <QLineEdit>

#include "HelpDesk.h"

using namespace Ledgrove;

class HelpSearchTest : public QObject {
    Q_OBJECT

private slots:
    void searchCountsAndWrapsAround();
    void searchStepsBackward();
    void searchReportsNoMatch();
    void screenReaderReadsTheSearch();
    void functionKeysSearch();
};

void HelpSearchTest::searchCountsAndWrapsAround() {
    OpenHelp<> open("top");
    open.Seek("grove");
    QCOMPARE(open.Found(), "1 of 3");
    QCOMPARE(open.Selected(), "grove");
    for (const auto& [found, selected] :
         {std::pair{"2 of 3", "Grove"}, {"3 of 3", "GROVE"}, {"1 of 3", "grove"}}) {
        open.Press(Qt::Key_Return);
        QCOMPARE(open.Found(), found);
        QCOMPARE(open.Selected(), selected);
    }
    QCOMPARE(open.Text().extraSelections().size(), 3);
    QVERIFY(open.Text().viewport()->rect().contains(open.Text().cursorRect().center()));
    QCOMPARE(open.Focused(), "ecFind");
}

void HelpSearchTest::searchStepsBackward() {
    OpenHelp<> open("top");
    open.Seek("grove");
    open.Press(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(open.Found(), "3 of 3");
    ClickAt(open.Find("bFindPrevious"));
    QCOMPARE(open.Found(), "2 of 3");
    ClickAt(open.Find("bFindNext"));
    QCOMPARE(open.Found(), "3 of 3");
}

void HelpSearchTest::searchReportsNoMatch() {
    OpenHelp<> open("top");
    open.Seek("grovex");
    QCOMPARE(open.Found(), "Not found");
    QVERIFY(!open.Find("bFindNext").isEnabled());
    QVERIFY(open.Text().extraSelections().isEmpty());
    open.Press(Qt::Key_Return);
    QCOMPARE(open.Found(), "Not found");
    open.Press(Qt::Key_Backspace);
    QCOMPARE(open.Found(), "1 of 3");
    QVERIFY(open.Find("bFindNext").isEnabled());
}

void HelpSearchTest::screenReaderReadsTheSearch() {
    OpenHelp<> open("top");
    open.Seek("zz");
    QCOMPARE(SpokenName(open.Find("lblFound")), "Not found");
    QCOMPARE(open.Find("ecFind").accessibleDescription(), "Not found");
    QCOMPARE(SpokenName(open.Find("ecFind")), "Find in the help");
}

void HelpSearchTest::functionKeysSearch() {
    OpenHelp<> open("top");
    open.Press(Qt::Key_F3); // the find field is still empty
    QCOMPARE(open.Focused(), "ecFind");
    open.Seek("grove");
    open.Text().setFocus();
    open.Press(Qt::Key_F3);
    QCOMPARE(open.Found(), "2 of 3");
    open.Press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(open.Found(), "1 of 3");
    open.Press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(open.Find<QLineEdit>("ecFind").selectedText(), "grove");
}

QTEST_MAIN(HelpSearchTest)
#include "HelpSearchTest.moc"
