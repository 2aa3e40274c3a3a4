#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include "InsightDesk.h"
#include "ui/windows/insight/SheetRange.h"

using namespace Ledgrove;

namespace {

/// What a command of the button's menu puts on the clipboard, as lines.
QStringList Copied(InsightDesk& desk, const char* button, int command) {
    QGuiApplication::clipboard()->clear();
    desk.Find<QPushButton>(button).menu()->actions()[command]->trigger();
    return QGuiApplication::clipboard()->text().split('\n');
}

constexpr int asText = 0;
constexpr int asRange = 1;

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
    void theListOfQuestionsCopiesTheAnswer();
    void wordsAreWrappedAndOnTheLeft();
    void theHousesWordsAreOnTheLeft();
    void copiesHaveTheOrderOnTheScreen();
    void aRangeHasNumbersOfOneUnit();
    void aRangeHasNoDigitsOfSinglePrecision();
    void numbersOfTextsLoseTheirSigns_data();
    void numbersOfTextsLoseTheirSigns();
    void numbersKeepTheirDigits_data();
    void numbersKeepTheirDigits();
};

void InsightCopyTest::aTextBeginsWithTheSentence() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    const QString text = Copied(desk, "bCopy", asText).join(' ');
    QVERIFY2(text.startsWith(desk.Sentence()), qPrintable(text));
}

void InsightCopyTest::theListOfQuestionsCopiesTheAnswer() {
    InsightDesk desk;
    desk.Show(InsightQuestion::InShort);
    desk.Window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.Window.get()));
    const QStringList answer = Copied(desk, "bCopy", asText);
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(&desk.Find<QListWidget>("Questions"), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text().split('\n'), answer);
    QVERIFY(answer.size() > 1);
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

void InsightCopyTest::copiesHaveTheOrderOnTheScreen() {
    InsightDesk desk;
    desk.Show(InsightQuestion::WhichLoan);
    constexpr int income = 2;
    desk.Find<SheetView>("AnswerTable").sortByColumn(income, Qt::DescendingOrder);
    const QStringList range = Copied(desk, "bCopy", asRange);
    QCOMPARE(range.size(), desk.Table().rowCount() + 2); // the heads, and the end of the last line
    for (int row = 1; row < desk.Table().rowCount(); ++row)
        QCOMPARE(range[row + 1].section('\t', 0, 0), desk.Cell(row, 0).remove("> "));
    const QStringList text = Copied(desk, "bCopy", asText);
    const qsizetype first = text.indexOf(LineWith(text, "Base / GREENMARK")) + 1;
    for (int row = 0; row < desk.Table().rowCount(); ++row)
        QVERIFY2(text[first + row].mid(2).startsWith(desk.Cell(row, 0).remove("> ") + ' '),
                 qPrintable(text[first + row]));
    ShowModels(desk);
    auto& houses = desk.Find<SheetView>("ModelsTable");
    constexpr int price = 3;
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        houses.sortByColumn(price, order);
        QCOMPARE(Copied(desk, "bCopyModels", asRange)[1].section('\t', 0, 0),
                 houses.model()->index(0, 0).data().toString());
    }
}

void InsightCopyTest::aRangeHasNumbersOfOneUnit() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    const QStringList lines = Copied(desk, "bCopy", asRange);
    QCOMPARE(lines.first(), "GREENMARK Home\tNow\tPays Up To\tChange");
    const QStringList price = lines[1].split('\t');
    QCOMPARE(price[1], "206000");
    QCOMPARE(price[2].toInt() - price[1].toInt(), price[3].toInt());
    const QStringList rate = LineWith(lines, "Interest rate").split('\t');
    QCOMPARE(rate[1], "6.5");
    // The steps of the rate are eighths, which have no rounding.
    QCOMPARE(rate[2].toDouble() - rate[1].toDouble(), rate[3].toDouble());
    QCOMPARE(LineWith(lines, "Share of the savings").section('\t', 1, 1), "100");
}

void InsightCopyTest::aRangeHasNoDigitsOfSinglePrecision() {
    InsightDesk desk;
    desk.Window->show();
    desk.Window->Explain("lblGMHPITI");
    const QStringList lines = Copied(desk, "bCopy", asRange);
    constexpr int value = 4;
    QCOMPARE(LineWith(lines, "Interest Rate, GREENMARK Home").section('\t', value, value), "6.5");
}

void InsightCopyTest::numbersOfTextsLoseTheirSigns_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("number");
    for (const auto& [text, number] :
         std::initializer_list<std::pair<const char*, const char*>>{{"$206,000", "206000"},
                                                                    {"-$12", "-12"},
                                                                    {"+$1,234.50", "1234.5"},
                                                                    {"6.500%", "6.5"},
                                                                    {"10.00%", "10"},
                                                                    {"30 years", "30"},
                                                                    {"0", "0"},
                                                                    {"6.500%, 6.500%", "6.500%, 6.500%"},
                                                                    {"none", "none"},
                                                                    {"$1,23", "$1,23"},
                                                                    {"", ""}})
        QTest::newRow(text) << text << number;
}

void InsightCopyTest::numbersOfTextsLoseTheirSigns() {
    QFETCH(QString, text);
    QFETCH(QString, number);
    Sheet sheet;
    sheet.Heads = {"What", "Now", "In Words"};
    sheet.Words = {2};
    const std::string cell = text.toStdString();
    sheet.Rows = {{TextCell(cell), TextCell(cell), TextCell(cell)}};
    const QString row = QStringList({text, number, text}).join('\t');
    QCOMPARE(SheetAsRange(sheet), "What\tNow\tIn Words\n" + row + '\n');
}

void InsightCopyTest::numbersKeepTheirDigits_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("text");
    constexpr int dollars = static_cast<int>(CellUnit::Dollars);
    constexpr int percent = static_cast<int>(CellUnit::Percent);
    // Fractions that were stored in single precision.
    QTest::newRow("6.5 %") << static_cast<double>(0.065F) * 100 << percent << "6.5";
    QTest::newRow("7 %") << static_cast<double>(0.07F) * 100 << percent << "7";
    QTest::newRow("0.46 %") << static_cast<double>(0.0046F) * 100 << percent << "0.46";
    QTest::newRow("-28 %") << static_cast<double>(-0.28F) * 100 << percent << "-28";
    QTest::newRow("amount") << static_cast<double>(1175.65F) << dollars << "1175.65";
    // A product of one with a whole number.
    QTest::newRow("insurance") << static_cast<double>(0.0065F) * 200000 << dollars << "1300";
    QTest::newRow("share") << 77.5 << percent << "77.5";
    // Single precision would hold neither the cents nor the last dollars.
    QTest::newRow("cents") << 250000.37 << dollars << "250000.37";
    QTest::newRow("large") << 123456789.0 << dollars << "123456789";
    QTest::newRow("small") << static_cast<double>(0.0000125F) << dollars << "0.0000125";
    QTest::newRow("nothing") << -0.0 << dollars << "0";
}

void InsightCopyTest::numbersKeepTheirDigits() {
    QFETCH(double, number);
    QFETCH(int, unit);
    QFETCH(QString, text);
    Sheet sheet;
    sheet.Heads = {"What", "Number"};
    sheet.Rows = {{TextCell("a"), {"shown", number, static_cast<CellUnit>(unit)}}};
    QCOMPARE(SheetAsRange(sheet), "What\tNumber\na\t" + text + '\n');
}

QTEST_MAIN(InsightCopyTest)
#include "InsightCopyTest.moc"
