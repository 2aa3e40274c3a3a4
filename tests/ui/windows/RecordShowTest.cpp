#include "ui/windows/RecordShow.h"

#include <QTest>

using namespace Ledgrove;

class RecordShowTest : public QObject {
    Q_OBJECT

private slots:
    void init() { m_shown = 0; }
    void aRuleIsFollowedByOneShow();
    void rulesThatCallEachOtherShowOnce();
    void aRuleThatChangedNothingShowsNothing();
    void aNotedChangeIsShownAfterTheNextRule();

private:
    int m_shown = 0;
    RecordShow m_shows{[this] { ++m_shown; }};
};

void RecordShowTest::aRuleIsFollowedByOneShow() {
    m_shows.Run([] {});
    QCOMPARE(m_shown, 1);
    m_shows.Run([] { return true; });
    QCOMPARE(m_shown, 2);
}

void RecordShowTest::rulesThatCallEachOtherShowOnce() {
    int shownInside = -1;
    m_shows.Run([&] {
        m_shows.Run([] { return true; });
        shownInside = m_shown;
        return false;
    });
    QCOMPARE(shownInside, 0);
    QCOMPARE(m_shown, 1); // for the inner rule's change
}

void RecordShowTest::aRuleThatChangedNothingShowsNothing() {
    m_shows.Run([] { return false; });
    QCOMPARE(m_shown, 0);
}

void RecordShowTest::aNotedChangeIsShownAfterTheNextRule() {
    m_shows.NoteChange();
    QCOMPARE(m_shown, 0);
    m_shows.Run([] { return false; });
    QCOMPARE(m_shown, 1);
    m_shows.Run([] { return false; });
    QCOMPARE(m_shown, 1);
}

QTEST_GUILESS_MAIN(RecordShowTest)
#include "RecordShowTest.moc"
