#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "InsightDesk.h"
#include "tests/ui/windows/FitTest.h"
#include "tests/ui/windows/PaintedTexts.h"
#include "ui/windows/insight/AnswerPicture.h"

using namespace Ledgrove;

namespace {

/// The heights of texts that break are settled in several rounds.
void Settle() {
    for (int round = 0; round < 5; ++round)
        QCoreApplication::processEvents();
}

/// Whether the text of the label has the room that it needs.
bool HasRoomForText(const QLabel& label) {
    return label.height() >=
               (label.wordWrap() ? label.heightForWidth(label.width()) : label.sizeHint().height()) &&
           (label.wordWrap() || label.width() >= label.sizeHint().width());
}

/// The first control of the answer that is narrower or lower than it needs, or beyond the width of the
/// window; "" if none is.
QString Cut(const QWidget& answer, int width) {
    for (const QWidget* control : answer.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        const bool isControl =
            label || qobject_cast<const QAbstractButton*>(control) ||
            qobject_cast<const QLineEdit*>(control) || qobject_cast<const QComboBox*>(control) ||
            qobject_cast<const AnswerPicture*>(control) || qobject_cast<const SheetView*>(control);
        if (!isControl || !control->isVisible() || control->window() != answer.window())
            continue;
        const auto* list = qobject_cast<const QComboBox*>(control);
        const bool isCutList =
            list && list->objectName() == "Years" && list->width() < list->sizeHint().width();
        const int right = control->mapTo(&answer, QPoint(control->width(), 0)).x();
        if (right > width || control->width() < control->minimumSizeHint().width() ||
            control->height() < control->minimumSizeHint().height() || (label && !HasRoomForText(*label)) ||
            isCutList)
            return QString("%1 \"%2\" at %3")
                .arg(control->objectName(), label ? label->text() : "")
                .arg(right);
    }
    return {};
}

} // namespace

/// Runs once for each screen; see CMakeLists.txt.
class InsightFitTest : public QObject {
    Q_OBJECT

private slots:
    void everyAnswerFits();
    void theListOfHousesFits();
    void theButtonsStayInView();
    void aQuestionStartsAtItsTop();
    void eachBarHasALineForItsName();
    void aTableShowsAFewRows();
    void aTableWithTheFocusIsInView();
    void noWordIsCut();
    void noHeadIsCut();
    void aLaptopShowsEveryColumn();
    void rowsOfSeveralLinesStandApart();
    void aComplaintFits();
    void everyAnswerIsReachedByTab();
};

void InsightFitTest::everyAnswerFits() {
    InsightDesk desk;
    desk.Window->show();
    for (const QuestionRow& row : InsightQuestions) {
        desk.Window->Ask(row.Id);
        Settle();
        const QString question =
            QString::fromUtf8(row.Words.data(), static_cast<qsizetype>(row.Words.size()));
        QVERIFY2(IsOnScreen(*desk.Window), qPrintable(question + ": " + PlaceOf(*desk.Window)));
        const auto& answer = *desk.Window->findChild<QScrollArea*>("Scrolled");
        // It may scroll downwards only.
        QVERIFY2(answer.horizontalScrollBar()->maximum() == 0, qPrintable(question));
        const QString cut = Cut(*answer.widget(), answer.viewport()->width());
        QVERIFY2(cut.isEmpty(), qPrintable(question + ": " + cut));
    }
}

void InsightFitTest::theListOfHousesFits() {
    InsightDesk desk;
    desk.Window->show();
    auto& list = desk.Find<QListWidget>("Questions");
    list.setCurrentRow(list.count() - 1);
    QTRY_VERIFY(desk.Find<SheetView>("ModelsTable").model()->rowCount() > 0);
    Settle();
    QVERIFY2(IsOnScreen(*desk.Window), qPrintable(PlaceOf(*desk.Window)));
    const auto& models = desk.Find<QWidget>("Models");
    const QString cut = Cut(models, models.width());
    QVERIFY2(cut.isEmpty(), qPrintable(cut));
}

void InsightFitTest::theButtonsStayInView() {
    InsightDesk desk;
    desk.Window->show();
    for (const QuestionRow& row : InsightQuestions) {
        desk.Window->Ask(row.Id);
        Settle();
        for (const char* name : {"bPrint", "bCopy", "bExport", "bSavePicture", "bHelp"})
            QVERIFY2(IsWholeInView(desk.Find<QPushButton>(name)), name);
        // The table scrolls by itself, so the page need not.
        const QString question =
            QString::fromUtf8(row.Words.data(), static_cast<qsizetype>(row.Words.size()));
        const int rest = desk.Find<QScrollArea>("Scrolled").verticalScrollBar()->maximum();
        QVERIFY2(!HasRoom({1366, 768}) || rest == 0, qPrintable(QString("%1: %2").arg(question).arg(rest)));
    }
}

void InsightFitTest::aQuestionStartsAtItsTop() {
    InsightDesk desk;
    desk.Show(InsightQuestion::YearByYear);
    desk.Window->resize(desk.Window->width(), 200);
    Settle();
    QScrollBar& bar = *desk.Find<QScrollArea>("Scrolled").verticalScrollBar();
    bar.setValue(bar.maximum());
    QVERIFY(bar.value() > 0);
    desk.Window->Ask(InsightQuestion::Sale);
    Settle();
    QCOMPARE(bar.value(), 0);
}

void InsightFitTest::eachBarHasALineForItsName() {
    InsightDesk desk;
    desk.Show(InsightQuestion::WhatMatters);
    Settle();
    const auto& picture = desk.Find<AnswerPicture>("AnswerPicture");
    const auto texts = PaintedTexts(picture.Shown(), picture.size(), picture.font());
    QList<double> lines;
    for (const std::string& name : picture.Shown().Categories)
        for (const PaintedText& text : texts)
            if (text.Words == QString::fromStdString(name))
                lines.append(text.At.y());
    QCOMPARE(lines.size(), static_cast<qsizetype>(picture.Shown().Categories.size()));
    // A coordinate may be rounded to the next pixel.
    for (qsizetype row = 1; row < lines.size(); ++row)
        QVERIFY2(lines[row] - lines[row - 1] >= picture.fontMetrics().height() - 1,
                 qPrintable(QString::number(lines[row] - lines[row - 1])));
}

void InsightFitTest::aTableShowsAFewRows() {
    InsightDesk desk;
    constexpr int few = 5;
    for (const InsightQuestion question :
         {InsightQuestion::WhatMatters, InsightQuestion::PriceAndSavings, InsightQuestion::HowFar}) {
        desk.Show(question);
        Settle();
        const auto& table = desk.Find<SheetView>("AnswerTable");
        const int last = std::min(few, table.model()->rowCount()) - 1;
        const QRect row = table.visualRect(table.model()->index(last, 0));
        QVERIFY2(row.bottom() < table.viewport()->height(),
                 qPrintable(QString("%1 of %2").arg(row.bottom()).arg(table.viewport()->height())));
    }
}

void InsightFitTest::aTableWithTheFocusIsInView() {
    InsightDesk desk;
    desk.Show(InsightQuestion::WhatMatters);
    Settle();
    desk.Window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.Window.get()));
    auto& table = desk.Find<SheetView>("AnswerTable");
    for (int stop = 0; stop < 5 && !table.hasFocus(); ++stop)
        QTest::keyClick(desk.Window->focusWidget(), Qt::Key_Tab);
    QVERIFY(table.hasFocus());
    QCOMPARE(table.visibleRegion().boundingRect().height(), table.height());
}

void InsightFitTest::noWordIsCut() {
    InsightDesk desk;
    desk.Show(InsightQuestion::Assumed);
    Settle();
    const auto& table = desk.Find<SheetView>("AnswerTable");
    for (int row = 0; row < desk.Table().rowCount(); ++row)
        for (int column = 0; column < desk.Table().columnCount(); ++column)
            for (const QString& word : desk.Cell(row, column).split(' '))
                QVERIFY2(table.fontMetrics().horizontalAdvance(word) <= table.columnWidth(column),
                         qPrintable(word));
}

void InsightFitTest::noHeadIsCut() {
    InsightDesk desk;
    for (const InsightQuestion question : {InsightQuestion::WhichLoan, InsightQuestion::YearByYear}) {
        desk.Show(question);
        Settle();
        const auto& table = desk.Find<SheetView>("AnswerTable");
        const QHeaderView& heads = *table.horizontalHeader();
        constexpr int margin = 2; // at each edge, on all screens
        for (int column = 0; column < heads.count(); ++column) {
            const QRect room(0, 0, heads.sectionSize(column) - 2 * margin, heads.height() - 2 * margin);
            const QString head = desk.Table().headerData(column, Qt::Horizontal).toString();
            const QRect text = heads.fontMetrics().boundingRect(room, Qt::TextWordWrap, head);
            QVERIFY2(room.size().expandedTo(text.size()) == room.size(), qPrintable(head));
        }
    }
}

void InsightFitTest::aLaptopShowsEveryColumn() {
    if (!HasRoom({1024, 600}))
        return;
    InsightDesk desk;
    for (const QuestionRow& row : InsightQuestions) {
        // Its columns are the years of the loan.
        if (row.Id == InsightQuestion::YearByYear)
            continue;
        desk.Show(row.Id);
        Settle();
        const int rest = desk.Find<SheetView>("AnswerTable").horizontalScrollBar()->maximum();
        const QString question =
            QString::fromUtf8(row.Words.data(), static_cast<qsizetype>(row.Words.size()));
        QVERIFY2(rest == 0, qPrintable(QString("%1: %2").arg(question).arg(rest)));
    }
}

void InsightFitTest::rowsOfSeveralLinesStandApart() {
    InsightDesk desk;
    desk.Show(InsightQuestion::Assumed);
    Settle();
    const auto& table = desk.Find<SheetView>("AnswerTable");
    const QFontMetrics metrics = table.fontMetrics();
    bool hasSeveral = false;
    for (int row = 0; row < desk.Table().rowCount(); ++row) {
        int lines = 0;
        for (int column = 0; column < desk.Table().columnCount(); ++column) {
            const QRect room(0, 0, table.columnWidth(column), 1000);
            lines = std::max(lines,
                             metrics.boundingRect(room, Qt::TextWordWrap, desk.Cell(row, column)).height());
        }
        hasSeveral = hasSeveral || lines > metrics.height();
        QVERIFY2(table.rowHeight(row) > lines, qPrintable(desk.Cell(row, 0)));
    }
    QVERIFY(hasSeveral);
}

void InsightFitTest::aComplaintFits() {
    InsightDesk desk;
    desk.Show(InsightQuestion::TaxSaving);
    for (const char* key : {"DEDUCTION_OTHER", "DEDUCTION_DEBT_CAP"}) {
        auto& field = desk.Find<QLineEdit>(key);
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, "ten thousand");
        QTest::keyClick(&field, Qt::Key_Return);
    }
    Settle();
    const auto& answer = *desk.Window->findChild<QScrollArea*>("Scrolled");
    QCOMPARE(answer.horizontalScrollBar()->maximum(), 0);
    const QString cut = Cut(*answer.widget(), answer.viewport()->width());
    QVERIFY2(cut.isEmpty(), qPrintable(cut));
}

void InsightFitTest::everyAnswerIsReachedByTab() {
    InsightDesk desk;
    desk.Window->show();
    for (const InsightQuestion question : {InsightQuestion::TaxSaving, InsightQuestion::YearByYear}) {
        desk.Window->Ask(question);
        Settle();
        desk.Window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(desk.Window.get()));
        const QWidget* const first = desk.Window->focusWidget();
        int stops = 0;
        do {
            QTest::keyClick(desk.Window->focusWidget(), Qt::Key_Tab);
            const QWidget* focused = desk.Window->focusWidget();
            QVERIFY2(!focused->visibleRegion().isEmpty(), qPrintable(focused->objectName()));
            ++stops;
        } while (desk.Window->focusWidget() != first && stops < 40);
        QVERIFY(stops >= 9);
        QVERIFY(stops < 40);
    }
}

QTEST_MAIN(InsightFitTest)
#include "InsightFitTest.moc"
