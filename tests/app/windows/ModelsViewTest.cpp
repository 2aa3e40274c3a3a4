#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>

#include "InsightDesk.h"
#include "app/windows/ModelsAnswering.h"
#include "settings/HouseListFile.h"
#include "ui/windows/insight/PairChoice.h"

using namespace Ledgrove;

class ModelsViewTest : public QObject {
    Q_OBJECT

private slots:
    void everyHouseHasARow();
    void aHouseIsTakenIntoTheMainWindow();
    void everyPairOfOptionsHasARow();
    void severalPairsAreChosen();
    void theListFollowsTheMainWindow();
    void aLongListShowsItsProgressAndStops();
    void withoutHousesASentenceSaysSo();
    void theListIsCopiedExportedAndPrinted();
    void anotherQuestionGivesUpTheList();
};

namespace {

HouseList TwoHouses() {
    return {{"Oak", 200000, 2400, 206000, 1700}, {"Elm \"large\"", 250000, 3000, 262000, 1900}};
}

struct ModelsDesk : InsightDesk {
    explicit ModelsDesk(const HouseList& houses = TwoHouses()) {
        const auto fault = Module1::WriteHomeList(SettingsFile(Open.State.Folder), houses);
        if (fault)
            qFatal("the houses cannot be saved");
    }

    void ShowModels() {
        Window->show();
        auto& list = Find<QListWidget>("Questions");
        list.setCurrentRow(list.count() - 1);
    }

    QAbstractItemModel& Rows() { return *Find<SheetView>("ModelsTable").model(); }
    QString RowCell(int row, int column) { return Rows().index(row, column).data().toString(); }
    QString ModelsSentence() { return Find<QLabel>("ModelsSentence").text(); }
};

} // namespace

void ModelsViewTest::everyHouseHasARow() {
    ModelsDesk desk;
    desk.ShowModels();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
    QCOMPARE(desk.RowCell(0, 0), "Oak");
    QCOMPARE(desk.RowCell(1, 0), "Elm \"large\"");
    QVERIFY(desk.ModelsSentence().startsWith("2 saved houses."));
    QVERIFY(desk.Find<QProgressBar>("ModelsProgress").isHidden() ||
            !desk.Find<QProgressBar>("ModelsProgress").isVisible());
}

void ModelsViewTest::aHouseIsTakenIntoTheMainWindow() {
    ModelsDesk desk;
    desk.ShowModels();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
    QVERIFY(!desk.Find<QPushButton>("bUseHouse").isEnabled());
    auto& table = desk.Find<SheetView>("ModelsTable");
    table.setCurrentIndex(desk.Rows().index(1, 0));
    QVERIFY(desk.Find<QPushButton>("bUseHouse").isEnabled());
    QTest::keyClick(&table, Qt::Key_Return);
    QCOMPARE(desk.Open.FieldText("ecStdHome"), "$250,000");
    QCOMPARE(desk.Open.FieldText("ecGMHUtil"), "$1,900");
    QCOMPARE(QString::fromStdString(desk.Open.State.Screen.lblHomeName.Text), "Elm \"large\"");
    desk.Open.Window->Undo();
    QCOMPARE(desk.Open.FieldText("ecStdHome"), "$200,000");
}

void ModelsViewTest::everyPairOfOptionsHasARow() {
    ModelsDesk desk;
    desk.ShowModels();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
    auto& options = desk.Find<PairChoice>("ModelsOptions");
    QCOMPARE(options.text(), "Those of the main window");
    options.menu()->actions()[1]->trigger();
    QCOMPARE(options.text(), "Every pair of options");
    QTRY_COMPARE(desk.Rows().rowCount(), 14);
    QCOMPARE(desk.RowCell(6, 1), "VA / VA EEM");
    options.menu()->actions()[0]->trigger();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
}

void ModelsViewTest::severalPairsAreChosen() {
    ModelsDesk desk;
    desk.ShowModels();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
    auto& options = desk.Find<PairChoice>("ModelsOptions");
    options.menu()->popup({});
    const auto boxes = options.menu()->findChildren<QCheckBox*>();
    QCOMPARE(boxes.size(), 7);
    QTest::keyClick(boxes[3], Qt::Key_Space);
    QCOMPARE(options.text(), "FHA / FHA");
    QVERIFY(options.menu()->isVisible());
    QTest::keyClick(boxes[6], Qt::Key_Space);
    QCOMPARE(options.text(), "2 pairs");
    options.menu()->close();
    QTRY_COMPARE(desk.Rows().rowCount(), 4);
    QCOMPARE(desk.RowCell(0, 1), "FHA / FHA");
    QCOMPARE(desk.RowCell(1, 1), "VA / VA EEM");
}

void ModelsViewTest::theListFollowsTheMainWindow() {
    ModelsDesk desk;
    desk.ShowModels();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
    const QString before = desk.RowCell(0, 8);
    desk.Open.Enter("ecIncome", "90000");
    QTRY_VERIFY(desk.RowCell(0, 8) != before);
}

void ModelsViewTest::aLongListShowsItsProgressAndStops() {
    HouseList houses(4000, TwoHouses()[0]);
    for (std::size_t i = 0; i < houses.size(); ++i)
        houses[i].Name = "House " + std::to_string(i);
    ModelsDesk desk(houses);
    // The real time is not what is tested, so the list never ends by itself.
    desk.ShowModels();
    QTRY_COMPARE_WITH_TIMEOUT(desk.Rows().rowCount(), 4000, 60000);
    desk.Find<PairChoice>("ModelsOptions").menu()->actions()[1]->trigger();
    desk.Find<QPushButton>("bCancelModels").click();
    QTRY_VERIFY(desk.ModelsSentence().startsWith("The list was cancelled."));
    QCOMPARE(desk.Rows().rowCount(), 0);
    QVERIFY(!desk.Find<QPushButton>("bPrintModels").isEnabled());
}

void ModelsViewTest::withoutHousesASentenceSaysSo() {
    ModelsDesk desk{HouseList()};
    desk.ShowModels();
    QTRY_VERIFY(desk.ModelsSentence().startsWith("No houses are saved."));
    QVERIFY(desk.Find<SheetView>("ModelsTable").isHidden());
}

void ModelsViewTest::theListIsCopiedExportedAndPrinted() {
    ModelsDesk desk;
    desk.ShowModels();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
    desk.Open.NameToGive = desk.Open.PathOf("houses.csv");
    desk.Find<QPushButton>("bExportModels").click();
    QVERIFY(desk.Written.contains("Oak"));
    QVERIFY(desk.Written.contains("\"Elm \"\"large\"\"\""));
    desk.Find<QPushButton>("bPrintModels").click();
    QCOMPARE(desk.PrintedHouses, std::size_t{2});
}

void ModelsViewTest::anotherQuestionGivesUpTheList() {
    ModelsDesk desk;
    desk.ShowModels();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
    desk.Window->Ask(InsightQuestion::HowFar);
    QVERIFY(desk.Find<QLabel>("Sentence").isVisible());
    QVERIFY(!desk.Find<QLabel>("ModelsSentence").isVisible());
    desk.ShowModels();
    QTRY_COMPARE(desk.Rows().rowCount(), 2);
}

QTEST_MAIN(ModelsViewTest)
#include "ModelsViewTest.moc"
