#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

#include "SettingEntry.h"
#include "app/windows/InsightOpener.h"
#include "ui/windows/Labels.h"
#include "ui/windows/insight/AnswerPicture.h"

using namespace Ledgrove;

namespace {

int ColumnOf(InsightDesk& desk, const QString& head) {
    for (int column = 0; column < desk.Table().columnCount(); ++column)
        if (desk.Table().headerData(column, Qt::Horizontal).toString() == head)
            return column;
    return -1;
}

} // namespace

/// The questions about the years in the Insight window.
class YearsWindowTest : public QObject {
    Q_OBJECT

private slots:
    void aYearIsListedByMonth();
    void theTableHasEveryFigureOfBothHomes();
    void theReasonForTheDifferenceStandsUnderTheTable();
    void theShownTableIsExported();
    void theShownYearIsPrinted();
    void aGrowthIsTriedAtOnce();
    void theSliderMovesTheYears();
    void aRefusedTextIsSaidBesideItsField();
    void keepSavesTheGrowth();
    void aClickOnKeepTakesWhatIsTyped();
    void goingBackShowsTheKeptValue();
    void aFailedSaveIsReported();
    void aFilingStatusFillsInItsDeduction();
    void theSaleUsesItsSettings();
    void anotherEditorsChangeIsShown();
    void everyAssumptionIsListed();
    void everyQuestionIsSpokenAndSaved();
    void theFieldsComeBetweenTheQuestionsAndTheAnswer();
    void theTaxLineIsPointedOut();
};

void YearsWindowTest::aYearIsListedByMonth() {
    InsightDesk desk;
    desk.Show(InsightQuestion::YearByYear);
    QCOMPARE(desk.Table().rowCount(), 30);
    auto& years = desk.Find<QComboBox>("Years");
    QVERIFY(years.isVisible());
    QCOMPARE(years.count(), 31);
    years.setFocus();
    QTest::keyClick(&years, Qt::Key_Down);
    QTest::keyClick(&years, Qt::Key_Down);
    QTest::keyClick(&years, Qt::Key_Down);
    QCOMPARE(desk.Table().rowCount(), 12);
    // The third year begins with the 25th month. Choosing another year is not a change to point out.
    QCOMPARE(desk.Cell(0, 0), "25");
    QVERIFY(!desk.Table().index(0, 1).data(Qt::BackgroundRole).isValid());
    desk.Open.Enter("ecGMHUtil", "1600");
    QCOMPARE(desk.Cell(0, 0), "25");
    QTest::keyClick(&years, Qt::Key_Home);
    QCOMPARE(desk.Table().rowCount(), 30);
    desk.Show(InsightQuestion::EnergyPrices);
    QVERIFY(!years.isVisible());
}

void YearsWindowTest::theTableHasEveryFigureOfBothHomes() {
    InsightDesk desk;
    desk.Show(InsightQuestion::YearByYear);
    for (const QString& home : {QString("Base "), QString("GREENMARK ")})
        for (const char* const figure : {"Cost", "Interest", "Principal", "Balance", "PMI", "Property Tax",
                                         "Insurance", "Utilities", "Tax Effect"})
            QVERIFY2(ColumnOf(desk, home + figure) > 0, qPrintable(home + figure));
    // The property tax of $200,000 at 0.90 %, and the bills as entered.
    QCOMPARE(desk.Cell(0, ColumnOf(desk, "Base Property Tax")), "$1,800");
    QCOMPARE(desk.Cell(0, ColumnOf(desk, "GREENMARK Utilities")), "$1,700");
}

void YearsWindowTest::theReasonForTheDifferenceStandsUnderTheTable() {
    InsightDesk desk;
    desk.Show(InsightQuestion::YearByYear);
    auto& note = desk.Find<QLabel>("Note");
    QVERIFY(note.isVisible());
    QVERIFY(note.text().startsWith("The expected savings on the Summary tab differ"));
    QVERIFY(note.mapTo(desk.Window.get(), QPoint()).y() >
            desk.Find<SheetView>("AnswerTable").mapTo(desk.Window.get(), QPoint()).y());
    desk.Show(InsightQuestion::HowFar);
    QVERIFY(!note.isVisible());
}

void YearsWindowTest::theShownTableIsExported() {
    InsightDesk desk;
    desk.Show(InsightQuestion::YearByYear);
    desk.Open.NameToGive = "/tmp/a.csv";
    desk.Find<QPushButton>("bExport").click();
    QCOMPARE(desk.Open.Asked.Title, "Export CSV");
    QVERIFY(desk.Open.Asked.Start.endsWith("/year-by-year.csv"));
    QList<QByteArray> lines = desk.Written.split('\n');
    QCOMPARE(lines.size(), 32); // head, 30 years, nothing after the last line end
    QCOMPARE(lines[0].split(',').size(), 22);
    QVERIFY(lines[1].contains(",1800.00,"));
    desk.Show(InsightQuestion::InShort);
    QVERIFY(!desk.Find<QPushButton>("bExport").isEnabled());
}

void YearsWindowTest::theShownYearIsPrinted() {
    InsightDesk desk;
    desk.Show(InsightQuestion::YearByYear);
    EnterSetting(desk, "GROWTH_UTILITIES", "2");
    auto& years = desk.Find<QComboBox>("Years");
    years.setFocus();
    QTest::keyClick(&years, Qt::Key_Down);
    const auto items = desk.Find<QPushButton>("bPrint").menu()->actions();
    items[0]->trigger();
    QCOMPARE(desk.Printed.Year, 1);
    QCOMPARE(desk.Printed.Years->UtilityGrowth, 0.02);
    items[1]->trigger();
    QCOMPARE(desk.Printed.Year, 0);
    QCOMPARE(desk.Printed.Questions.size(), InsightQuestions.size());
}

void YearsWindowTest::aGrowthIsTriedAtOnce() {
    InsightDesk desk;
    desk.Show(InsightQuestion::EnergyPrices);
    const QByteArray before = desk.Open.Settings();
    const auto curves = desk.Find<AnswerPicture>("AnswerPicture").Shown().Series.size();
    QCOMPARE(curves, 7U);
    EnterSetting(desk, "GROWTH_UTILITIES", "2.5");
    QCOMPARE(desk.Find<QLineEdit>("GROWTH_UTILITIES").text(), "2.50%");
    QCOMPARE(desk.Find<AnswerPicture>("AnswerPicture").Shown().Series.back().Name, std::string("2.5% now"));
    QCOMPARE(desk.Find<QSlider>("GROWTH_UTILITIESSlider").value(), 25);
    // The year view has it too; the file and the other figures do not.
    desk.Show(InsightQuestion::YearByYear);
    // $1,700 x 1.025 in the second year.
    QCOMPARE(desk.Cell(1, ColumnOf(desk, "GREENMARK Utilities")), "$1,743");
    QCOMPARE(desk.Open.Settings(), before);
    QCOMPARE(desk.Open.State.Years.UtilityGrowth, 0.0);
}

void YearsWindowTest::theSliderMovesTheYears() {
    InsightDesk desk;
    desk.Show(InsightQuestion::EnergyPrices);
    auto& slider = desk.Find<QSlider>("GROWTH_UTILITIESSlider");
    QVERIFY(!slider.accessibleName().isEmpty());
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_PageUp);
    QCOMPARE(desk.Find<QLineEdit>("GROWTH_UTILITIES").text(), "1.00%");
    QTest::keyClick(&slider, Qt::Key_Right);
    QCOMPARE(desk.Find<QLineEdit>("GROWTH_UTILITIES").text(), "1.10%");
    desk.Show(InsightQuestion::YearByYear);
    QCOMPARE(desk.Find<QLineEdit>("GROWTH_UTILITIES").text(), "1.10%");
    // A value beyond its end is still said.
    desk.Show(InsightQuestion::EnergyPrices);
    EnterSetting(desk, "GROWTH_UTILITIES", "15");
    auto& end = desk.Find<QSlider>("GROWTH_UTILITIESSlider");
    QCOMPARE(end.value(), end.maximum());
    QCOMPARE(end.toolTip(), "15.00%");
    QCOMPARE(end.accessibleDescription(), "15.00%");
}

void YearsWindowTest::aRefusedTextIsSaidBesideItsField() {
    InsightDesk desk;
    desk.Show(InsightQuestion::Sale);
    const QString sentence = desk.Sentence();
    QCOMPARE(Complaint(desk), "");
    EnterSetting(desk, "EXIT_PREMIUM_KEPT", "101");
    QCOMPARE(Complaint(desk), "\"101\" is not a percentage from 0 to 100; 100.00% stays in force.");
    QCOMPARE(desk.Find<QLineEdit>("EXIT_PREMIUM_KEPT").text(), "101");
    QCOMPARE(desk.Sentence(), sentence);
    EnterSetting(desk, "EXIT_PREMIUM_KEPT", "50");
    QCOMPARE(Complaint(desk), "");
    QVERIFY(desk.Sentence() != sentence);
}

void YearsWindowTest::keepSavesTheGrowth() {
    InsightDesk desk;
    desk.Show(InsightQuestion::EnergyPrices);
    auto& keep = desk.Find<QPushButton>("bKeep");
    QVERIFY(!keep.isEnabled());
    QByteArray expected = desk.Open.Settings();
    QCOMPARE(expected.count("GROWTH_UTILITIES=0.00\r\n"), 1);
    EnterSetting(desk, "GROWTH_UTILITIES", "3");
    QVERIFY(keep.isEnabled());
    keep.click();
    // Nothing else in the file changes.
    QCOMPARE(desk.Open.Settings(),
             expected.replace("\r\nGROWTH_UTILITIES=0.00\r\n", "\r\nGROWTH_UTILITIES=3.00\r\n"));
    QCOMPARE(desk.Open.State.Years.UtilityGrowth, 0.03);
    QVERIFY(!keep.isEnabled());
}

void YearsWindowTest::aClickOnKeepTakesWhatIsTyped() {
    InsightDesk desk;
    desk.Show(InsightQuestion::EnergyPrices);
    desk.Window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.Window.get()));
    auto& field = desk.Find<QLineEdit>("GROWTH_UTILITIES");
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, "4");
    QTest::mouseClick(&desk.Find<QPushButton>("bKeep"), Qt::LeftButton);
    QCOMPARE(desk.Open.Lines("GROWTH_UTILITIES"), QByteArrayList{"GROWTH_UTILITIES=4.00"});
}

void YearsWindowTest::goingBackShowsTheKeptValue() {
    InsightDesk desk;
    desk.Show(InsightQuestion::EnergyPrices);
    const QString sentence = desk.Sentence();
    EnterSetting(desk, "GROWTH_UTILITIES", "3");
    EnterSetting(desk, "GROWTH_UTILITIES", "x");
    desk.Find<QPushButton>("bGoBack").click();
    QCOMPARE(desk.Find<QLineEdit>("GROWTH_UTILITIES").text(), "0.00%");
    QCOMPARE(Complaint(desk), "");
    QCOMPARE(desk.Sentence(), sentence);
    QVERIFY(!desk.Find<QPushButton>("bGoBack").isEnabled());
}

void YearsWindowTest::aFailedSaveIsReported() {
    InsightDesk desk;
    desk.Show(InsightQuestion::EnergyPrices);
    EnterSetting(desk, "GROWTH_UTILITIES", "3");
    desk.Open.MakeUnwritable();
    const auto before = desk.Open.Outside.Messages.size();
    desk.Find<QPushButton>("bKeep").click();
    QCOMPARE(desk.Open.Outside.Messages.size(), before + 1);
    QCOMPARE(desk.Find<QLineEdit>("GROWTH_UTILITIES").text(), "3.00%");
    QVERIFY(desk.Find<QPushButton>("bKeep").isEnabled());
}

void YearsWindowTest::aFilingStatusFillsInItsDeduction() {
    InsightDesk desk;
    desk.Show(InsightQuestion::TaxSaving);
    const std::pair<const char*, const char*> statuses[] = {{"$16,100", "a single filer"},
                                                            {"$24,150", "a head of household"},
                                                            {"$32,200", "a couple filing jointly"}};
    for (const auto& [amount, whose] : statuses) {
        for (QPushButton* button : desk.Window->findChildren<QPushButton*>("Choice"))
            if (button->text().endsWith(amount))
                button->click();
        QCOMPARE(desk.Find<QLineEdit>("DEDUCTION_STANDARD").text(), amount);
        QVERIFY2(desk.Sentence().contains(whose), qPrintable(desk.Sentence()));
        QCOMPARE(desk.Cell(2, 1), amount);
    }
}

void YearsWindowTest::theSaleUsesItsSettings() {
    InsightDesk desk;
    desk.Show(InsightQuestion::Sale);
    EnterSetting(desk, "EXIT_SELLING_COST", "0");
    EnterSetting(desk, "EXIT_APPRECIATION", "10");
    QVERIFY(desk.Sentence().contains("home prices rise by 10% a year, that selling costs 0% of the price"));
    // $6,000 of price difference are $600 more in the first year, the larger loan's balance is less.
    const ChartFigures& chart = desk.Find<AnswerPicture>("AnswerPicture").Shown();
    QCOMPARE(chart.Curves.Marks.size(), 1U);
    QCOMPARE(desk.Table().rowCount(), 30);
}

void YearsWindowTest::anotherEditorsChangeIsShown() {
    InsightDesk desk;
    desk.Show(InsightQuestion::YearByYear);
    QByteArray settings = desk.Open.Settings();
    desk.Open.WriteSettings(settings.replace("\nGROWTH_HOME=0.00", "\nGROWTH_HOME=5.00"));
    desk.Open.Enter("ecGMHUtil", "1500");
    QCOMPARE(desk.Find<QLineEdit>("GROWTH_HOME").text(), "5.00%");
    // $1,800 x 1.05 in the second year.
    QCOMPARE(desk.Cell(1, ColumnOf(desk, "Base Property Tax")), "$1,890");
}

void YearsWindowTest::everyAssumptionIsListed() {
    InsightDesk desk;
    desk.Show(InsightQuestion::Assumed);
    QCOMPARE(desk.Table().rowCount(), 22);
    const int row = desk.RowOf("PMI a year, less than 5% down");
    QCOMPARE(desk.Cell(row, 1), "0.87% of the loan");
    QCOMPARE(desk.Cell(row, 4), "older than two years");
    // A long text breaks, and its row shows all of it.
    auto& table = desk.Find<SheetView>("AnswerTable");
    const int ratios = desk.RowOf("Qualifying ratios of the loan types");
    QTRY_VERIFY(table.rowHeight(ratios) > 2 * table.fontMetrics().height());
    QVERIFY(table.horizontalHeader()->length() <= table.viewport()->width());
    // A row may be higher than the view, whose wheel then moves within the row.
    QCOMPARE(table.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    auto& list = desk.Find<QListWidget>("Questions");
    QCOMPARE(list.currentItem()->text(), "What is assumed");
    QCOMPARE(list.item(list.currentRow() + 1)->text(), "Where does this number come from?");
    // It needs no comparison.
    desk.Open.Enter("ecGMHHome", "0");
    QCOMPARE(desk.Table().rowCount(), 22);
}

void YearsWindowTest::everyQuestionIsSpokenAndSaved() {
    InsightDesk desk;
    for (const InsightQuestion question :
         {InsightQuestion::YearByYear, InsightQuestion::EnergyPrices, InsightQuestion::Sale}) {
        desk.Show(question);
        auto& picture = desk.Find<AnswerPicture>("AnswerPicture");
        QVERIFY(picture.isVisible());
        QVERIFY(picture.accessibleName().startsWith("How "));
        QVERIFY2(picture.accessibleDescription().contains("after 5 years"),
                 qPrintable(picture.accessibleDescription()));
        desk.Open.NameToGive = "/tmp/a.svg";
        desk.Find<QPushButton>("bSavePicture").click();
        QVERIFY(desk.Written.contains("even: $0"));
        QVERIFY(!desk.Written.contains("<image"));
    }
    for (const QLineEdit* field : desk.Window->findChildren<QLineEdit*>())
        QVERIFY2(!field->accessibleName().isEmpty(), qPrintable(field->objectName()));
}

void YearsWindowTest::theFieldsComeBetweenTheQuestionsAndTheAnswer() {
    InsightDesk desk;
    desk.Show(InsightQuestion::Sale);
    desk.Show(InsightQuestion::EnergyPrices);
    desk.Window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(desk.Window.get()));
    QStringList stops;
    for (int stop = 0; stop < 5; ++stop) {
        stops += desk.Window->focusWidget()->objectName();
        QTest::keyClick(desk.Window->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(stops, (QStringList{"Questions", "Sentence", "GROWTH_UTILITIES", "GROWTH_UTILITIESSlider",
                                 "AnswerPicture"}));
}

void YearsWindowTest::theTaxLineIsPointedOut() {
    InsightDesk desk;
    frmMain& main = *desk.Open.Window;
    const auto tip = [&main](const char* label) { return main.findChild<ResultLabel*>(label)->toolTip(); };
    InsightOpener opener(desk.Open.State, desk.Open.Outside, desk.Open.Questions, {}, "");
    opener.Follow(main);
    // The tab shows tax savings of a few dollars, and neither home's interest exceeds the deduction.
    QVERIFY(desk.Open.State.Scenario.ShownTaxSavings > 0.5F);
    for (const char* label : {"lblTaxSavMo", "lblTaxSavYr", "lbltaxsavmo2"})
        QCOMPARE(tip(label), "checked: see Insight");
    QCOMPARE(tip("lblUtilSavMo"), "");
    QCOMPARE(main.findChild<QToolButton*>("bFigure")->toolTip(), "Where does this number come from? (F2)");
    main.findChild<QCheckBox*>("chkDoTax0")->click();
    QCOMPARE(tip("lblTaxSavMo"), "");
    QCOMPARE(tip("lbltaxsavmo2"), "");
}

QTEST_MAIN(YearsWindowTest)
#include "YearsWindowTest.moc"
