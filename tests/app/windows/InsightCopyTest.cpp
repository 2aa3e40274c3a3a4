#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include "InsightDesk.h"

using namespace Ledgrove;

namespace {

/// What a command of the button's menu puts on the clipboard, as lines.
QStringList Copied(InsightDesk& desk, const char* button, int command) {
    QGuiApplication::clipboard()->clear();
    desk.Find<QPushButton>(button).menu()->actions()[command]->trigger();
    return QGuiApplication::clipboard()->text().split('\n');
}

constexpr int asText = 0;

void ShowModels(InsightDesk& desk) {
    desk.Window->show();
    auto& list = desk.Find<QListWidget>("Questions");
    list.setCurrentRow(list.count() - 1);
    QTRY_VERIFY(desk.Find<SheetView>("ModelsTable").model()->rowCount() > 0);
}

/// The first line that contains this word, "" without one.
QString LineWith(const QStringList& lines, const QString& word) {
    for (const QString& line : lines)
        if (line.contains(word))
            return line;
    return {};
}

} // namespace

/// What the Insight window puts on the clipboard.
class InsightCopyTest : public QObject {
    Q_OBJECT

private slots:
    void aTextBeginsWithTheSentence();
    void wordsAreWrappedAndOnTheLeft();
    void theHousesWordsAreOnTheLeft();
};

void InsightCopyTest::aTextBeginsWithTheSentence() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    const QString text = Copied(desk, "bCopy", asText).join(' ');
    QVERIFY2(text.startsWith(desk.Sentence()), qPrintable(text));
}

void InsightCopyTest::wordsAreWrappedAndOnTheLeft() {
    InsightDesk desk;
    desk.Window->show();
    desk.Window->Explain("lblNetCashMoTx");
    const QStringList lines = Copied(desk, "bCopy", asText);
    const QString heads = LineWith(lines, "With Numbers");
    const QString first = LineWith(lines, "[1]");
    QVERIFY2(!heads.isEmpty() && !first.isEmpty(), qPrintable(lines.join('\n')));
    for (const char* head : {"Figure", "Formula"}) {
        const qsizetype at = heads.indexOf(head);
        QVERIFY2(first[at] != ' ' && first[at - 1] == ' ', qPrintable(first));
    }
    // Four columns of words with 36 letters each, a number of a row and a value with at most 12 each, and two
    // blanks between them.
    for (const QString& line : lines)
        QVERIFY2(line.size() <= 4 * 36 + 2 * 12 + 5 * 2, qPrintable(line));
}

void InsightCopyTest::theHousesWordsAreOnTheLeft() {
    InsightDesk desk;
    ShowModels(desk);
    const QStringList lines = Copied(desk, "bCopyModels", asText);
    const QString heads = LineWith(lines, "Qualifies For");
    const qsizetype options = heads.indexOf("Base / GREENMARK");
    const qsizetype qualifies = heads.indexOf("Qualifies For");
    const QAbstractItemModel& houses = *desk.Find<SheetView>("ModelsTable").model();
    const QString house = LineWith(lines, houses.index(0, 0).data().toString());
    QVERIFY2(house.mid(options).startsWith(houses.index(0, 1).data().toString()), qPrintable(house));
    QVERIFY2(house.mid(qualifies).startsWith(houses.index(0, 2).data().toString()), qPrintable(house));
}

QTEST_MAIN(InsightCopyTest)
#include "InsightCopyTest.moc"
