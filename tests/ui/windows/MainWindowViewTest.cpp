#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "WindowTest.h"
#include "ui/MainScreenRules.h"
#include "ui/windows/Binding.h"
#include "ui/windows/Labels.h"
#include "ui/windows/ResultPanels.h"

using namespace Ledgrove;

namespace {

QString Name(std::string_view name) {
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

bool ShowsWhole(const QLabel& figure) {
    return figure.width() >= figure.fontMetrics().horizontalAdvance(figure.text());
}

} // namespace

class MainWindowViewTest : public QObject {
    Q_OBJECT

private slots:
    void everyLabelOfTheRecordIsShownOnce();
    void everyInputOfTheRecordIsShownOnce();
    void refreshShowsTheRecord();
    void refreshKeepsTheCursorOfAnUnchangedField();
    void refreshDoesNotCountAsTyping();
    void redIsReadableOnLightAndDark();
    void hiddenTaxLabelsKeepTheLayout();
    void panelsKeepTheirPlaceWhenFiguresGrow();
    void aLongFigureTakesTheRoomBesideIt();
    void aLongFigureNarrowsTheChart();
    void tooLongFigureIsElided();
    void longHouseNameDoesNotWidenTheWindow();
    void longFeatureDoesNotNarrowTheOthers();
    void enterPressesTheFocusedButton();
    void captionsOfTabsAndButtons();
    void footnoteShowsOneAmpersand();
    void welcomeShowsTheSteps();
    void buttonsOfMissingDialogsAreDisabled();
    void aWindowWithoutTheControlsEndsTheProgram();
    void actionsEnableTheirButtons();
    void printRunsTheDataCheckFirst();
    void toolTipsDistinguishThePayments();
    void windowFitsASmallScreen();
    void closingNotifiesTheProgram();
};

void MainWindowViewTest::everyLabelOfTheRecordIsShownOnce() {
    OpenWindow open;
    for (const auto& entry : LabelTable())
        QVERIFY2(open.Window->findChildren<QLabel*>(Name(entry.Name)).size() == 1, entry.Name.data());
}

void MainWindowViewTest::everyInputOfTheRecordIsShownOnce() {
    OpenWindow open;
    for (const EntryRule& rule : MainEntryRules())
        QVERIFY2(open.Window->findChildren<QLineEdit*>(Name(rule.Name)).size() == 1, rule.Name.data());
    for (const auto& entry : PickListTable())
        QVERIFY2(open.Window->findChildren<QWidget*>(Name(entry.Name)).size() == 1, entry.Name.data());
    QVERIFY(open.Find<QLineEdit>("ecGMHTerm").isReadOnly());
    QVERIFY(!open.Window->findChild<QWidget*>("ecRate"));
    QVERIFY(!open.Window->findChild<QWidget*>("ecSaveRate"));
}

void MainWindowViewTest::refreshShowsTheRecord() {
    OpenWindow open;
    MainScreen& screen = open.State.Screen;
    for (const auto& entry : LabelTable())
        (screen.*entry.Member).Text = "text of " + std::string(entry.Name);
    for (const EntryRule& rule : MainEntryRules())
        (screen.*rule.Member).Text = "field " + std::string(rule.Name);
    screen.chkDoTax0 = false;
    screen.optDownPayment = 1;
    screen.lblPVNote.Visible = true;
    open.Window->Refresh();
    for (const auto& entry : LabelTable())
        QCOMPARE(open.LabelText(entry.Name.data()), "text of " + Name(entry.Name));
    for (const EntryRule& rule : MainEntryRules())
        QCOMPARE(open.FieldText(rule.Name.data()), "field " + Name(rule.Name));
    QVERIFY(!open.Find<QCheckBox>("chkDoTax0").isChecked());
    QVERIFY(!open.Find("lblPVNote").isHidden());
    screen.lblPVNote.Visible = false;
    open.Window->Refresh();
    QVERIFY(open.Find("lblPVNote").isHidden());
}

void MainWindowViewTest::refreshKeepsTheCursorOfAnUnchangedField() {
    OpenWindow open;
    open.Type("ecIncome", "72000");
    auto& field = open.Find<QLineEdit>("ecIncome");
    field.setCursorPosition(2);
    open.Window->Refresh();
    QCOMPARE(field.cursorPosition(), 2);
}

void MainWindowViewTest::refreshDoesNotCountAsTyping() {
    OpenWindow open;
    open.State.Scenario.EEMNoticeFlag = false;
    open.State.Screen.ecStdHome.Text = "5";
    open.Window->Refresh();
    QCOMPARE(open.FieldText("ecStdHome"), "5");
    QVERIFY(!open.State.Scenario.EEMNoticeFlag);
}

void MainWindowViewTest::redIsReadableOnLightAndDark() {
    OpenWindow open;
    open.State.Screen.lblNetCashMo.Colour = TextColour::Red;
    const auto colourOn = [&](const QColor& background) {
        QPalette palette = open.Window->palette();
        palette.setColor(QPalette::Window, background);
        open.Window->setPalette(palette);
        return open.Find("lblNetCashMo").palette().color(QPalette::WindowText);
    };
    const QColor onLight = colourOn(Qt::white);
    const QColor onDark = colourOn(QColor(40, 40, 40));
    QVERIFY(onLight.red() > 2 * onLight.green());
    QVERIFY(onDark.red() > onDark.green());
    QVERIFY(onLight.lightness() < 128);
    QVERIFY(onDark.lightness() > 150);
}

void MainWindowViewTest::hiddenTaxLabelsKeepTheLayout() {
    OpenWindow open;
    open.Find<ResultPanels>("SSTab1").setCurrentIndex(4);
    QCoreApplication::processEvents();
    auto& below = open.Find("lblStdPITIU");
    const QPoint before = below.mapTo(open.Window.get(), QPoint());
    ClickAt(open.Find("chkDoTax0"));
    QCoreApplication::processEvents();
    QVERIFY(open.Find("lbltaxsavmo2").isHidden());
    QVERIFY(open.Find("lblTaxSavmo2Text").isHidden());
    QVERIFY(!open.Find("lblTaxSavMo").isHidden());
    QCOMPARE(below.mapTo(open.Window.get(), QPoint()), before);
}

void MainWindowViewTest::panelsKeepTheirPlaceWhenFiguresGrow() {
    OpenWindow open;
    open.Find<ResultPanels>("SSTab1").setCurrentIndex(4);
    QCoreApplication::processEvents();
    const QRect before = open.Find("lblGMHHome").geometry();
    const QSize window = open.Window->size();
    open.State.Screen.lblStdHome.Text = "$123,456,789";
    open.State.Screen.lblGMHHome.Text = std::string(60, '9');
    open.Window->Refresh();
    QCoreApplication::processEvents();
    QCOMPARE(open.Find("lblGMHHome").geometry(), before);
    QCOMPARE(open.Window->size(), window);
}

void MainWindowViewTest::aLongFigureTakesTheRoomBesideIt() {
    OpenWindow open;
    open.Find<ResultPanels>("SSTab1").setCurrentIndex(2);
    const QSize window = open.Window->size();
    MainScreen& screen = open.State.Screen;
    for (Label* label : {&screen.lblNetCashMoTx, &screen.lblExtrasTx, &screen.lblHouseValueStd})
        label->Text = "$888,888,888,888,888,888";
    open.Window->Refresh();
    QCoreApplication::processEvents();
    for (const char* name : {"lblNetCashMoTx", "lblExtrasTx", "lblHouseValueStd"})
        QVERIFY2(ShowsWhole(open.Find<QLabel>(name)), name);
    QCOMPARE(open.Window->size(), window);
}

void MainWindowViewTest::aLongFigureNarrowsTheChart() {
    OpenWindow open;
    open.Window->resize(1041, 654);
    open.Find<ResultPanels>("SSTab1").setCurrentIndex(1);
    const auto& figure = open.Find<QLabel>("lblNetCashYr");
    open.State.Screen.lblNetCashYr.Text = "-$8,888,888,888,888";
    open.Window->Refresh();
    QCoreApplication::processEvents();
    QVERIFY(ShowsWhole(figure));
    // A chart keeps its smallest width.
    open.State.Screen.lblNetCashYr.Text = std::string(200, '8');
    open.Window->Refresh();
    QCoreApplication::processEvents();
    QVERIFY(!ShowsWhole(figure));
    const auto* chart = open.Find("DetlFrame1").findChild<ChartPlace*>();
    QCOMPARE(chart->width(), chart->minimumSizeHint().width());
    QCOMPARE(open.Window->size(), QSize(1041, 654));
}

void MainWindowViewTest::tooLongFigureIsElided() {
    // A figure that does not fit shows its first digits and dots, so two figures that differ only after those
    // digits look the same.
    QLabel caption("Sticker Price");
    ResultLabel shorter("lblStdHome", caption, "Base Home");
    ResultLabel longer("lblStdHome", caption, "Base Home");
    const QSize size = shorter.sizeHint();
    shorter.resize(size);
    longer.resize(size);
    shorter.setText("$" + QString(60, '9'));
    longer.setText("$" + QString(80, '9'));
    QCOMPARE(shorter.grab().toImage(), longer.grab().toImage());
    QCOMPARE(longer.text(), "$" + QString(80, '9'));
}

void MainWindowViewTest::longHouseNameDoesNotWidenTheWindow() {
    OpenWindow open;
    const QSize smallest = open.Window->minimumSizeHint();
    const QSize size = open.Window->size();
    const std::string name(200, 'W');
    open.State.Screen.lblHomeName.Text = name;
    open.Window->Refresh();
    QCoreApplication::processEvents();
    QCOMPARE(open.Window->minimumSizeHint(), smallest);
    QCOMPARE(open.Window->size(), size);
    QCOMPARE(open.LabelText("lblHomeName"), QString::fromStdString(name));
}

void MainWindowViewTest::longFeatureDoesNotNarrowTheOthers() {
    OpenWindow open;
    open.Find<ResultPanels>("SSTab1").setCurrentIndex(2);
    const QSize size = open.Window->size();
    auto& figure = open.Find<QLabel>("lblHouseValueStd");
    QCoreApplication::processEvents();
    const QRect place = figure.geometry();
    QVERIFY(place.x() > 0);
    QString words;
    for (int i = 0; i < 60; ++i)
        words += "Sun room ";
    for (const QString& feature : {words, QString(300, 'W')}) {
        open.State.Screen.lblfeature1.Text = feature.toStdString();
        open.State.Screen.lblfeature2.Text = feature.toStdString();
        open.Window->Refresh();
        const auto& label = open.Find<QLabel>("lblfeature1");
        QCoreApplication::processEvents();
        QTRY_VERIFY(label.height() >= label.heightForWidth(label.width()));
        QCOMPARE(figure.geometry(), place);
        QCOMPARE(open.Window->size(), size);
    }
}

void MainWindowViewTest::enterPressesTheFocusedButton() {
    OpenWindow open;
    auto& button = open.Find<QPushButton>("bDisclaimer");
    QSignalSpy pressed(&button, &QPushButton::clicked);
    button.setFocus();
    open.Press(Qt::Key_Return);
    open.Press(Qt::Key_Enter);
    QCOMPARE(pressed.count(), 2);
}

void MainWindowViewTest::captionsOfTabsAndButtons() {
    OpenWindow open;
    const QTabBar* bar = open.Find<ResultPanels>("SSTab1").tabBar();
    QCOMPARE(bar->count(), TabCount);
    for (int i = 0; i < TabCount; ++i)
        QCOMPARE(bar->tabText(i).remove('&'), TabPages[static_cast<std::size_t>(i)].Caption);
    const std::pair<const char*, const char*> captions[] = {
        {"bHouses", "House Scenarios"}, {"Command1", "Financial Assumptions"}, {"bSysOpt", "Options"},
        {"bPrint", "Print Reports"},    {"bDisclaimer", "Disclaimer"},         {"bHelp", "Help"}};
    for (const auto& [button, caption] : captions)
        QCOMPARE(open.Find<QPushButton>(button).text().remove('&'), caption);
}

void MainWindowViewTest::footnoteShowsOneAmpersand() {
    OpenWindow open;
    QCOMPARE(open.LabelText("lblSummaryFootnote"),
             "*Ledgrove only provides estimates & does not account for LTV - check with your bank");
}

void MainWindowViewTest::welcomeShowsTheSteps() {
    OpenWindow open;
    QCOMPARE(open.LabelText("lblStep4Des"),
             "Review/Edit Financial Assumptions and Options to match user preferences.");
    QCOMPARE(open.LabelText("lblStep5Des"), "View results by selecting tabs above.");
    QVERIFY(open.LabelText("lblStep5Des2").startsWith("Select Print Reports.  Add"));
}

void MainWindowViewTest::aWindowWithoutTheControlsEndsTheProgram() {
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGABRT, SIG_DFL);
        const MainScreen screen;
        QWidget window;
        const MainBinding binding(screen, window);
        _exit(0);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGABRT);
}

void MainWindowViewTest::buttonsOfMissingDialogsAreDisabled() {
    OpenWindow open;
    for (const char* button : {"bHouses", "Command1", "bSysOpt", "bPrint"})
        QVERIFY(!open.Find(button).isEnabled());
    QVERIFY(open.Find("bDisclaimer").isEnabled());
    QVERIFY(open.Find("bHelp").isEnabled());
    QCOMPARE(open.Find("bFinancing").focusPolicy(), Qt::NoFocus);
}

void MainWindowViewTest::actionsEnableTheirButtons() {
    Session session;
    RecordingHost host;
    FillAsAtStart(session, host);
    MainActions actions;
    actions.Houses = [&] { session.Screen.lblHomeName.Text = "The Alder"; };
    frmMain window(session, host, actions);
    auto* button = window.findChild<QPushButton*>("bHouses");
    QVERIFY(button->isEnabled());
    button->click();
    QCOMPARE(window.findChild<QLabel*>("lblHomeName")->text(), "The Alder");
}

void MainWindowViewTest::printRunsTheDataCheckFirst() {
    Session session;
    RecordingHost host;
    FillAsAtStart(session, host);
    std::size_t messagesBefore = 0;
    MainActions actions;
    actions.Print = [&] { messagesBefore = host.Messages.size(); };
    frmMain window(session, host, actions);
    window.findChild<QPushButton*>("bPrint")->click();
    QCOMPARE(messagesBefore, std::size_t(1));
    QCOMPARE(host.Messages.front().Title, std::string("Ledgrove Data Check"));
}

void MainWindowViewTest::toolTipsDistinguishThePayments() {
    OpenWindow open;
    for (const char* label : {"lblStdPITI", "lblGMHPITI"})
        QCOMPARE(open.Find(label).toolTip(), "Principal, interest, taxes, insurance and PMI per month");
    for (const char* label : {"lblStdMortPayment", "lblGMHMortPayment"})
        QCOMPARE(open.Find(label).toolTip(), "Principal and interest per month");
}

void MainWindowViewTest::windowFitsASmallScreen() {
    OpenWindow open;
    // 800 x 600 without a frame and the desktop's panels
    QVERIFY(open.Window->minimumSizeHint().width() <= 760);
    QVERIFY(open.Window->minimumSizeHint().height() <= 540);
}

void MainWindowViewTest::closingNotifiesTheProgram() {
    OpenWindow open;
    QSignalSpy closed(open.Window.get(), &frmMain::Closed);
    open.Window->close();
    QCOMPARE(closed.count(), 1);
}

QTEST_MAIN(MainWindowViewTest)
#include "MainWindowViewTest.moc"
