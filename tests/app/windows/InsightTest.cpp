#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <memory>

#include "InsightDesk.h"
#include "ui/windows/QuestionLink.h"
#include "ui/windows/insight/AnswerPicture.h"
#include "ui/windows/insight/SheetModel.h"
#include "ui/windows/insight/SheetView.h"

using namespace Ledgrove;

class InsightTest : public QObject {
    Q_OBJECT

private slots:
    void aLinkAsksTheTabsQuestion();
    void aLinkHasRoomForEachQuestionInAnyFont();
    void theCommandAsksTheTabsQuestion();
    void nothingIsComputedWhileItIsClosed();
    void itFollowsEachEntry();
    void whatChangedIsMarkedForAMoment();
    void aMissingPriceIsSaid();
    void aFoundValueIsEntered();
    void optionsAreChosen();
    void tablesAreSortedAndRestored();
    void tablesAreSpokenWithRowAndColumn();
    void cellsAreCopied();
    void theMapsCellsAreReachedByKeys();
    void aCellOfTheMapIsEntered();
    void picturesAreSaved();
    void aFigureLeadsToWhatWasTyped();
    void theChainCutsNoText();
    void aLeafLeadsToItsField();
    void figuresAreAskedFromTheTabs();
    void keysCloseAndHelp();
};

void InsightTest::aLinkAsksTheTabsQuestion() {
    InsightDesk desk;
    auto& link = desk.Open.Find<QuestionLink>("bQuestion");
    QVERIFY(!link.isEnabled());
    const std::pair<int, InsightQuestion> tabs[] = {{1, InsightQuestion::HowFar},
                                                    {2, InsightQuestion::WhichLoan},
                                                    {3, InsightQuestion::WhoQualifies},
                                                    {4, InsightQuestion::WhatMatters}};
    for (const auto& [tab, question] : tabs) {
        desk.Open.Find<QTabWidget>("SSTab1").setCurrentIndex(tab);
        link.click();
        QCOMPARE(desk.Asked.last(), question);
    }
    QCOMPARE(link.text(), "What matters most?");
}

void InsightTest::aLinkHasRoomForEachQuestionInAnyFont() {
    InsightDesk desk;
    auto& link = desk.Open.Find<QuestionLink>("bQuestion");
    for (const int points : {9, 18, 7}) {
        QFont font = link.font();
        font.setPointSize(points);
        link.setFont(font);
        const QSize room = link.sizeHint();
        for (int tab = 1; tab <= 4; ++tab) {
            desk.Open.Find<QTabWidget>("SSTab1").setCurrentIndex(tab);
            QVERIFY(room.width() >= link.fontMetrics().horizontalAdvance(link.text()));
            QCOMPARE(link.sizeHint(), room);
        }
        QVERIFY(room.height() >= link.fontMetrics().height());
    }
}

void InsightTest::theCommandAsksTheTabsQuestion() {
    InsightDesk desk;
    const std::pair<int, InsightQuestion> tabs[] = {{0, InsightQuestion::InShort},
                                                    {3, InsightQuestion::WhoQualifies}};
    for (const auto& [tab, question] : tabs) {
        desk.Open.Find<QTabWidget>("SSTab1").setCurrentIndex(tab);
        desk.Open.Window->AskInsight();
        QCOMPARE(desk.Opened.last(), question);
    }
}

void InsightTest::nothingIsComputedWhileItIsClosed() {
    InsightDesk desk;
    desk.Open.Enter("ecStdHome", "201000");
    QCOMPARE(desk.Answers, 0);
    desk.Show(InsightQuestion::HowFar);
    QVERIFY(desk.Answers > 0);
    desk.Window->close();
    const int before = desk.Answers;
    desk.Open.Enter("ecStdHome", "202000");
    QCOMPARE(desk.Answers, before);
}

void InsightTest::itFollowsEachEntry() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    QVERIFY2(desk.Sentence().startsWith("The GREENMARK home pays for itself up to a price of"),
             qPrintable(desk.Sentence()));
    const QString before = desk.Cell(0, 2);
    const int answers = desk.Answers;
    desk.Open.Enter("ecGMHUtil", "1500");
    QVERIFY(desk.Cell(0, 2) != before);
    QCOMPARE(desk.Answers, answers + 1);
}

void InsightTest::whatChangedIsMarkedForAMoment() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    QVERIFY(!desk.Find<QLabel>("Sentence").autoFillBackground());
    desk.Open.Enter("ecGMHUtil", "1500");
    QVERIFY(desk.Find<QLabel>("Sentence").autoFillBackground());
    const QModelIndex changed = desk.Table().index(0, 2);
    QVERIFY(changed.data(Qt::BackgroundRole).isValid());
    QVERIFY(!desk.Table().index(0, 0).data(Qt::BackgroundRole).isValid());
    QTRY_VERIFY(!changed.data(Qt::BackgroundRole).isValid());
    QTRY_VERIFY(!desk.Find<QLabel>("Sentence").autoFillBackground());
}

void InsightTest::aMissingPriceIsSaid() {
    InsightDesk desk;
    desk.Open.Enter("ecGMHHome", "0");
    desk.Show(InsightQuestion::HowFar);
    QVERIFY(!desk.Sentence().isEmpty());
    QVERIFY(!desk.Find<SheetView>("AnswerTable").isVisible());
    QVERIFY(!desk.Find<QPushButton>("bCopy").isEnabled());
    QVERIFY(!desk.Find<QPushButton>("bEnter").isEnabled());
}

void InsightTest::aFoundValueIsEntered() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    auto& enter = desk.Find<QPushButton>("bEnter");
    QVERIFY(!enter.isEnabled());
    const QString price = desk.Cell(0, 2);
    desk.Find<SheetView>("AnswerTable").setCurrentIndex(desk.Table().index(0, 2));
    QVERIFY(enter.isEnabled());
    enter.click();
    QCOMPARE(desk.Open.FieldText("ecGMHHome"), price);
    // At its limit the home just pays; a dollar further it would not.
    QVERIFY(desk.Open.State.Scenario.NetMonthlyCashFlow >= 0);
    desk.Open.Enter("ecGMHHome", QString::number(QString(price).remove('$').remove(',').toInt() + 1));
    QVERIFY(desk.Open.State.Scenario.NetMonthlyCashFlow < 0);
}

void InsightTest::optionsAreChosen() {
    InsightDesk desk;
    desk.Show(InsightQuestion::WhichLoan);
    auto& enter = desk.Find<QPushButton>("bEnter");
    desk.Find<SheetView>("AnswerTable").setCurrentIndex(desk.Table().index(desk.RowOf("VA / VA EEM"), 3));
    QCOMPARE(enter.text().remove('&'), "Use These Options");
    enter.click();
    QCOMPARE(desk.Open.Find<QComboBox>("cboStdMortOption").currentText(), "VA");
    QCOMPARE(desk.Open.Find<QComboBox>("cboGMHMortOption").currentText(), "VA EEM");
    QVERIFY(desk.RowOf("> VA / VA EEM") >= 0);
}

void InsightTest::tablesAreSortedAndRestored() {
    InsightDesk desk;
    desk.Show(InsightQuestion::WhichLoan);
    const QString first = desk.Cell(0, 0);
    auto& view = desk.Find<SheetView>("AnswerTable");
    constexpr int incomeColumn = 2;
    view.sortByColumn(incomeColumn, Qt::AscendingOrder);
    // By the number: "* $53,000" comes before "$54,000".
    double before = 0;
    for (int row = 0; row < desk.Table().rowCount(); ++row) {
        const double income = desk.Table().index(row, incomeColumn).data(SheetModel::SortRole).toDouble();
        QVERIFY(income >= before);
        before = income;
    }
    view.Settle();
    QCOMPARE(desk.Cell(0, 0), first);
}

void InsightTest::tablesAreSpokenWithRowAndColumn() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    const QModelIndex bill = desk.Table().index(desk.RowOf("Annual utility cost"), 1);
    QCOMPARE(bill.data(Qt::AccessibleTextRole).toString(), "Annual utility cost, Now: $1,700");
}

void InsightTest::cellsAreCopied() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    auto& view = desk.Find<SheetView>("AnswerTable");
    view.setCurrentIndex(desk.Table().index(0, 1));
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), "$206,000");
}

void InsightTest::theMapsCellsAreReachedByKeys() {
    InsightDesk desk;
    desk.Show(InsightQuestion::PriceAndSavings);
    auto& picture = desk.Find<AnswerPicture>("AnswerPicture");
    picture.setFocus();
    QTest::keyClick(&picture, Qt::Key_Right);
    const QString words = desk.Find<QLabel>("CellText").text();
    QVERIFY2(words.startsWith("A price difference of $"), qPrintable(words));
    QCOMPARE(picture.accessibleDescription(), words);
    for (int step = 0; step < 100; ++step)
        QTest::keyClick(&picture, Qt::Key_Left);
    QVERIFY(desk.Find<QLabel>("CellText").text().startsWith("A price difference of $0 and"));
}

void InsightTest::aCellOfTheMapIsEntered() {
    InsightDesk desk;
    desk.Show(InsightQuestion::PriceAndSavings);
    auto& picture = desk.Find<AnswerPicture>("AnswerPicture");
    const ChartGrid grid = picture.Shown().Grid;
    emit picture.CellChosen(30, 35);
    // Base price and bill are $200,000 and $2,400.
    const auto number = [&](const char* field) {
        return desk.Open.FieldText(field).remove('$').remove(',').toDouble();
    };
    QCOMPARE(number("ecGMHHome"), 200000 + grid.Columns[30]);
    QCOMPARE(number("ecGMHUtil"), 2400 - grid.Rows[35]);
    QCOMPARE(static_cast<double>(desk.Open.State.Scenario.NetMonthlyCashFlow),
             static_cast<double>(*grid.Nets[35][30]));
}

void InsightTest::picturesAreSaved() {
    InsightDesk desk;
    for (const InsightQuestion question : {InsightQuestion::WhatMatters, InsightQuestion::PriceAndSavings}) {
        desk.Show(question);
        desk.Open.NameToGive = "/tmp/a.svg";
        desk.Find<QPushButton>("bSavePicture").click();
        QVERIFY(desk.Written.contains("<svg"));
        QVERIFY(!desk.Written.contains("<image"));
        desk.Open.NameToGive = "/tmp/a.png";
        desk.Find<QPushButton>("bSavePicture").click();
        QVERIFY(desk.Written.startsWith("\x89PNG"));
    }
    desk.Show(InsightQuestion::HowFar);
    QVERIFY(!desk.Find<QPushButton>("bSavePicture").isEnabled());
}

void InsightTest::aFigureLeadsToWhatWasTyped() {
    InsightDesk desk;
    desk.Window->show();
    desk.Window->Explain("lblGMHPITI");
    auto& tree = desk.Find<QTreeWidget>("Chain");
    QTreeWidgetItem* const root = tree.topLevelItem(0);
    // The label's own text.
    QCOMPARE(root->text(1), QString::fromStdString(desk.Open.State.Screen.lblGMHPITI.Text));
    QVERIFY(root->isExpanded());
    QVERIFY(root->childCount() >= 3);
    // Every branch ends at something that was typed or assumed, and none goes around in a circle.
    QList<std::pair<QTreeWidgetItem*, int>> waiting{{root, 0}};
    int leaves = 0;
    while (!waiting.isEmpty()) {
        const auto [line, depth] = waiting.takeLast();
        QVERIFY(depth < 30);
        line->setExpanded(true);
        QVERIFY(!line->text(2).isEmpty());
        leaves += line->childCount() == 0 ? 1 : 0;
        for (int child = 0; child < line->childCount(); ++child)
            waiting.append({line->child(child), depth + 1});
    }
    QVERIFY(leaves >= 4);
    QCOMPARE(desk.Find<QComboBox>("FigureList").currentData().toString(), "GMHCase.PITI");
    // An entry keeps the branches open.
    const QString value = root->text(1);
    desk.Open.Enter("ecGMHHome", "220000");
    QVERIFY(tree.topLevelItem(0)->child(0)->isExpanded() ||
            tree.topLevelItem(0)->child(0)->childCount() == 0);
    QVERIFY(tree.topLevelItem(0)->text(1) != value);
}

void InsightTest::theChainCutsNoText() {
    InsightDesk desk;
    desk.Window->show();
    desk.Window->Explain("lblGMHPITI");
    auto& tree = desk.Find<QTreeWidget>("Chain");
    const auto cut = [&tree] {
        for (QTreeWidgetItemIterator line(&tree); *line; ++line)
            for (int column = 1; column < tree.columnCount(); ++column)
                if (tree.fontMetrics().horizontalAdvance((*line)->text(column)) > tree.columnWidth(column))
                    return (*line)->text(column);
        return QString();
    };
    QCOMPARE(cut(), "");
    for (QTreeWidgetItemIterator line(&tree); *line; ++line)
        (*line)->setExpanded(true);
    // The texts say why a rule holds only where one decides.
    int reasons = 0;
    for (QTreeWidgetItemIterator line(&tree); *line; ++line)
        reasons += (*line)->text(4).isEmpty() ? 0 : 1;
    QVERIFY(reasons > 0);
    QCOMPARE(cut(), "");
    desk.Window->resize(desk.Window->minimumSizeHint());
    QCOMPARE(cut(), "");
    // In a wide window the last column reaches the edge.
    desk.Window->resize(4000, 600);
    QCOMPARE(cut(), "");
    QCOMPARE(tree.header()->length(), tree.viewport()->width());
}

void InsightTest::aLeafLeadsToItsField() {
    InsightDesk desk;
    desk.Window->show();
    desk.Window->Explain("StdCase.Cost");
    auto& tree = desk.Find<QTreeWidget>("Chain");
    QTreeWidgetItem* leaf = tree.topLevelItem(0);
    while (leaf->childCount() > 0) {
        leaf = leaf->child(0);
        leaf->setExpanded(true);
    }
    emit tree.itemActivated(leaf, 0);
    QCOMPARE(desk.WentTo, "ecStdHome/");
    desk.Open.Window->GoToSource("ecStdHome", "");
    QCOMPARE(desk.Open.Focused(), "ecStdHome");
}

void InsightTest::figuresAreAskedFromTheTabs() {
    InsightDesk desk;
    desk.Open.Find<QTabWidget>("SSTab1").setCurrentIndex(4);
    QWidget& figure = desk.Open.Find("lblGMHPITI");
    QEnterEvent enters(QPointF(2, 2), QPointF(2, 2), figure.mapToGlobal(QPointF(2, 2)));
    QApplication::sendEvent(&figure, &enters);
    auto& mark = desk.Open.Find<QToolButton>("bFigure");
    QVERIFY(mark.isVisible());
    figure.setAttribute(Qt::WA_UnderMouse);
    mark.click();
    QCOMPARE(desk.Explained.last(), std::string("lblGMHPITI"));
    desk.Open.Press(Qt::Key_F2);
    QCOMPARE(desk.Explained.size(), 2);
}

void InsightTest::keysCloseAndHelp() {
    InsightDesk desk;
    desk.Show(InsightQuestion::HowFar);
    QTest::keyClick(desk.Window.get(), Qt::Key_F1);
    QCOMPARE(desk.Helps, 1);
    QTest::keyClick(desk.Window.get(), Qt::Key_Escape);
    QVERIFY(!desk.Window->isVisible());
}

QTEST_MAIN(InsightTest)
#include "InsightTest.moc"
