#include <QClipboard>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include "DialogTest.h"

using namespace Ledgrove;

namespace {

void WithoutHouses(SettingsDesk& desk) {
    QByteArray kept;
    for (const QByteArray& line : desk.Settings().split('\n'))
        kept += line.startsWith("HOMELIST") || line.isEmpty() ? QByteArray() : line + "\n";
    desk.WriteSettings(kept);
}

/// The names that the list shows.
QStringList Names(const OpenHouses& open) {
    const QAbstractItemModel* model = open.Find<QListView>("lbHomes").model();
    QStringList names;
    for (int row = 0; row < model->rowCount(); ++row)
        names += model->index(row, 0).data().toString();
    return names;
}

QString SelectedName(const OpenHouses& open) {
    const QModelIndexList selected = open.Find<QListView>("lbHomes").selectionModel()->selectedIndexes();
    return selected.size() == 1 ? selected.front().data().toString() : QString();
}

QStringList Amounts(const OpenHouses& open) {
    QStringList texts;
    for (const char* field : {"ecStdCost", "ecStdUtil", "ecGMHCost", "ecGMHUtil"})
        texts += open.FieldText(field);
    return texts;
}

enum class Answering { Ok, Cancel };

/// Presses Add and fills the box for the name with `type`.
void Add(const OpenHouses& open, const std::function<void(QInputDialog&)>& type,
         Answering answer = Answering::Ok) {
    bool asked = false;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        asked = box != nullptr;
        if (!asked)
            return;
        type(*box);
        answer == Answering::Ok ? box->accept() : box->reject();
    });
    ClickAt(open.Find("bAdd"));
    QVERIFY(asked);
}

void AddNamed(const OpenHouses& open, const QString& name) {
    Add(open, [&](QInputDialog& box) { box.setTextValue(name); });
}

} // namespace

class HomeSelectionTest : public QObject {
    Q_OBJECT

private slots:
    void opensOnTheFirstHouseInViewMode();
    void opensOnTheMainScreensHouse();
    void selectingByKeyboardShowsTheAmounts();
    void ctrlClickLeavesTheHouseSelected();
    void emptyListAllowsOnlyAdd();
    void tenThousandHousesAreListed();
    void addAsksForTheName();
    void addedHouseHasTheMainScreensAmounts();
    void refusedNameAddsNothing_data();
    void refusedNameAddsNothing();
    void pastedLineBreakIsRefused();
    void cancelledNameAddsNothing();
    void deleteAsksAndRemovesTheHouse();
    void deleteRefusedKeepsTheHouse();
    void deletingTheLastHouseEmptiesTheFields();
    void okSavesAndCopiesToTheMainScreen();
    void otherWaysToCloseSaveAndCopyNothing_data();
    void otherWaysToCloseSaveAndCopyNothing();
    void listThatCannotBeSavedIsReported_data();
    void listThatCannotBeSavedIsReported();
    void chosenHouseSurvivesMissingSettings();
    void enterInTheListChooses();
    void doubleClickChooses();
};

void HomeSelectionTest::opensOnTheFirstHouseInViewMode() {
    OpenHouses open;
    QCOMPARE(open.Window->windowTitle(), "House Scenarios");
    QVERIFY(open.Window->isModal());
    QCOMPARE(Names(open), QStringList({"The Alder", "The Birch", "The Cedar"}));
    QCOMPARE(SelectedName(open), "The Alder");
    QCOMPARE(Amounts(open), QStringList({"$285,000", "$2,400", "$293,000", "$1,550"}));
    QVERIFY(!open.Find("ecStdCost").isEnabled());
    QVERIFY(!open.Find("bDoneEdit").isVisible());
    QVERIFY(!open.Find("bCancelEdit").isVisible());
    QCOMPARE(open.Lines("HOMESELECTIONDIALOG"), QByteArrayList{"HOMESELECTIONDIALOG=OPEN"});
}

void HomeSelectionTest::opensOnTheMainScreensHouse() {
    OpenHouses open([](SettingsDesk& desk) { desk.State.Screen.lblHomeName.Text = "The Cedar"; });
    QCOMPARE(SelectedName(open), "The Cedar");
}

void HomeSelectionTest::selectingByKeyboardShowsTheAmounts() {
    OpenHouses open;
    QCOMPARE(open.Focused(), "lbHomes");
    open.Press(Qt::Key_Down);
    QCOMPARE(SelectedName(open), "The Birch");
    QCOMPARE(Amounts(open), QStringList({"$340,000", "$2,700", "$349,500", "$1,750"}));
    open.Press(Qt::Key_End);
    QCOMPARE(open.Shown.Selected, 2);
}

void HomeSelectionTest::ctrlClickLeavesTheHouseSelected() {
    OpenHouses open;
    auto& list = open.Find<QListView>("lbHomes");
    const QPoint first = list.visualRect(list.model()->index(0, 0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, first);
    QCOMPARE(SelectedName(open), "The Alder");
}

void HomeSelectionTest::emptyListAllowsOnlyAdd() {
    OpenHouses open(WithoutHouses);
    QVERIFY(Names(open).isEmpty());
    QVERIFY(open.Find("bAdd").isEnabled());
    QVERIFY(!open.Find("bEdit").isEnabled());
    QVERIFY(!open.Find("bDelete").isEnabled());
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.State.Screen.lblHomeName.Text, "Custom");
}

void HomeSelectionTest::tenThousandHousesAreListed() {
    OpenHouses open([](SettingsDesk& desk) {
        QByteArray lines = desk.Settings();
        for (int i = 4; i <= 10000; ++i)
            lines += "HOMELIST=Lot " + QByteArray::number(i) + ",200000,2000,210000,1500\r\n";
        desk.WriteSettings(lines);
    });
    QCOMPARE(Names(open).size(), 10000);
    open.Press(Qt::Key_End);
    QCOMPARE(SelectedName(open), "Lot 10000");
    ClickAt(open.Find("bOK"));
    QCOMPARE(open.State.Screen.lblHomeName.Text, "Lot 10000");
    QCOMPARE(open.Lines("HOMELIST").size(), 10000);
}

void HomeSelectionTest::addAsksForTheName() {
    OpenHouses open;
    Add(open, [](QInputDialog& box) {
        QCOMPARE(box.windowTitle(), "House Scenarios");
        QCOMPARE(box.labelText(), "Enter The Name Of The New Home:");
        QCOMPARE(box.textValue(), "");
        box.setTextValue("lot 7");
    });
    QCOMPARE(Names(open).last(), "lot 7");
    QVERIFY(open.Outside.Messages.empty());
}

void HomeSelectionTest::addedHouseHasTheMainScreensAmounts() {
    OpenHouses open;
    open.State.Screen.ecStdHome.Text = "$200,000";
    open.State.Screen.ecStdUtil.Text = "$2,400";
    open.State.Screen.ecGMHHome.Text = "$206,000";
    open.State.Screen.ecGMHUtil.Text = "$1,700";
    AddNamed(open, "Lot 7");
    QCOMPARE(Names(open), QStringList({"The Alder", "The Birch", "The Cedar", "Lot 7"}));
    QCOMPARE(SelectedName(open), "Lot 7");
    QCOMPARE(Amounts(open), QStringList({"$200,000", "$2,400", "$206,000", "$1,700"}));
}

void HomeSelectionTest::refusedNameAddsNothing_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("complaint");
    QTest::addRow("empty") << ""
                           << "No Name Entered. Add Aborted";
    QTest::addRow("duplicate") << "The Birch"
                               << "This Home Name Has Already Been Entered.";
    QTest::addRow("comma") << "Lot 7, north"
                           << "A name cannot contain a comma.";
    QTest::addRow("line break") << "Lot\n7"
                                << "A name cannot contain a line break.";
}

void HomeSelectionTest::refusedNameAddsNothing() {
    QFETCH(QString, name);
    QFETCH(QString, complaint);
    OpenHouses open;
    AddNamed(open, name);
    QCOMPARE(open.Outside.TakeTexts(), std::vector{complaint.toStdString()});
    QCOMPARE(Names(open).size(), 3);
}

void HomeSelectionTest::pastedLineBreakIsRefused() {
    for (const char* pasted : {"Lot\n7", "Lot\r\n7", "Lot\r7"}) {
        OpenHouses open;
        QApplication::clipboard()->setText(pasted);
        Add(open, [](QInputDialog& box) {
            QTest::keyClick(box.findChild<QLineEdit*>(), Qt::Key_V, Qt::ControlModifier);
        });
        QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"A name cannot contain a line break."});
        QCOMPARE(Names(open).size(), 3);
    }
}

void HomeSelectionTest::cancelledNameAddsNothing() {
    OpenHouses open;
    Add(
        open, [](QInputDialog& box) { box.setTextValue("Lot 7"); }, Answering::Cancel);
    QCOMPARE(open.Outside.TakeTexts(), std::vector<std::string>{"No Name Entered. Add Aborted"});
    QCOMPARE(Names(open).size(), 3);
}

void HomeSelectionTest::deleteAsksAndRemovesTheHouse() {
    OpenHouses open;
    open.Outside.Answer = MessageAnswer::Yes;
    open.Press(Qt::Key_Down);
    ClickAt(open.Find("bDelete"));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(open.Outside.Messages.front().Title, std::string("House Package Data Delete"));
    QCOMPARE(open.Outside.Messages.front().Text, std::string("Do you really want to delete?"));
    QCOMPARE(Names(open), QStringList({"The Alder", "The Cedar"}));
    QCOMPARE(SelectedName(open), "The Alder");
    QCOMPARE(open.FieldText("ecStdCost"), "$285,000");
}

void HomeSelectionTest::deleteRefusedKeepsTheHouse() {
    OpenHouses open;
    open.Outside.Answer = MessageAnswer::No;
    ClickAt(open.Find("bDelete"));
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    QCOMPARE(Names(open).size(), 3);
}

void HomeSelectionTest::deletingTheLastHouseEmptiesTheFields() {
    OpenHouses open;
    open.Outside.Answer = MessageAnswer::Yes;
    for (int i = 0; i < 3; ++i)
        ClickAt(open.Find("bDelete"));
    QVERIFY(Names(open).isEmpty());
    QCOMPARE(Amounts(open), QStringList({"", "", "", ""}));
    QVERIFY(!open.Find("bEdit").isEnabled());
    QVERIFY(!open.Find("bDelete").isEnabled());
    AddNamed(open, "Lot 7");
    QCOMPARE(SelectedName(open), "Lot 7");
    QVERIFY(open.Find("bEdit").isEnabled());
}

void HomeSelectionTest::okSavesAndCopiesToTheMainScreen() {
    OpenHouses open;
    open.Press(Qt::Key_Down);
    AddNamed(open, "Lot 7");
    open.Find("lbHomes").setFocus();
    open.Press(Qt::Key_Up);
    open.Press(Qt::Key_Up);
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.Lines("HOMELIST").size(), 4);
    QCOMPARE(open.Lines("HOMESELECTIONDIALOG"), QByteArrayList{"HOMESELECTIONDIALOG=CLOSED"});
    const MainScreen& screen = open.State.Screen;
    QCOMPARE(screen.lblHomeName.Text, "The Birch");
    QCOMPARE(screen.ecStdHome.Text, "$340,000");
    QCOMPARE(screen.ecGMHUtil.Text, "$1,750");
    QCOMPARE(open.State.ChosenHouse.Name, "The Birch");
}

void HomeSelectionTest::otherWaysToCloseSaveAndCopyNothing_data() {
    QTest::addColumn<QString>("way");
    for (const char* way : {"bCancel", "Escape", "close button"})
        QTest::addRow("%s", way) << way;
}

void HomeSelectionTest::otherWaysToCloseSaveAndCopyNothing() {
    QFETCH(QString, way);
    OpenHouses open;
    AddNamed(open, "Lot 7");
    if (way == "bCancel")
        ClickAt(open.Find("bCancel"));
    else if (way == "Escape")
        open.Press(Qt::Key_Escape);
    else
        open.Window->close();
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.Window->result(), int(QDialog::Rejected));
    QCOMPARE(open.Lines("HOMELIST").last(), "HOMELIST=Lot 7,0,0,0,0");
    QCOMPARE(open.Lines("HOMESELECTIONDIALOG"), QByteArrayList{"HOMESELECTIONDIALOG=CLOSED"});
    QCOMPARE(open.State.Screen.lblHomeName.Text, "Custom");
    QCOMPARE(open.State.Screen.ecStdHome.Text, "");
}

void HomeSelectionTest::listThatCannotBeSavedIsReported_data() {
    QTest::addColumn<QString>("way");
    for (const char* way : {"bOK", "bCancel", "Escape", "close button"})
        QTest::addRow("%s", way) << way;
}

void HomeSelectionTest::listThatCannotBeSavedIsReported() {
    QFETCH(QString, way);
    OpenHouses open;
    const QByteArray before = open.Settings();
    open.MakeUnwritable();
    if (way == "Escape")
        open.Press(Qt::Key_Escape);
    else if (way == "close button")
        open.Window->close();
    else
        ClickAt(open.Find(way));
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.Outside.Messages.size(), std::size_t(1));
    const Message& message = open.Outside.Messages.front();
    QCOMPARE(message.Icon, MessageIcon::Exclamation);
    QCOMPARE(message.Buttons, MessageButtons::Ok);
    QVERIFY(message.Text.starts_with("The list of houses could not be saved. The settings were not saved: "));
    QVERIFY(message.Text.find(open.Folder.path().toStdString()) != std::string::npos);
    QCOMPARE(open.Settings(), before);
    QCOMPARE(open.State.Screen.lblHomeName.Text, way == "bOK" ? "The Alder" : "Custom");
}

void HomeSelectionTest::chosenHouseSurvivesMissingSettings() {
    OpenHouses open;
    QVERIFY(QFile::remove(open.Folder.filePath("Ledgrove.ini")));
    ClickAt(open.Find("bOK"));
    QVERIFY(!open.IsOpen());
    QVERIFY(open.Outside.TakeTexts().front().starts_with(
        "The list of houses could not be saved. The settings file "));
    QCOMPARE(open.State.Screen.ecStdHome.Text, "$285,000");
}

void HomeSelectionTest::enterInTheListChooses() {
    OpenHouses open;
    open.Press(Qt::Key_Down);
    open.Press(Qt::Key_Return);
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.State.Screen.lblHomeName.Text, "The Birch");
}

void HomeSelectionTest::doubleClickChooses() {
    OpenHouses open;
    auto& list = open.Find<QListView>("lbHomes");
    const QPoint place = list.visualRect(list.model()->index(2, 0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY(open.IsOpen());
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY(!open.IsOpen());
    QCOMPARE(open.State.Screen.lblHomeName.Text, "The Cedar");
    OpenHouses empty;
    QTest::mouseDClick(empty.Find<QListView>("lbHomes").viewport(), Qt::LeftButton, Qt::NoModifier,
                       {20, 200});
    QVERIFY(empty.IsOpen());
}

QTEST_MAIN(HomeSelectionTest)
#include "HomeSelectionTest.moc"
